#include "fake/fake_dialog_host.h"

#include <algorithm>

namespace velkor6::fake {

DialogEvent FakeDialogHost::button(std::int32_t index, std::u16string text) {
    DialogEvent e;
    e.kind = DialogEvent::Kind::button;
    e.button = index;
    e.text = std::move(text);
    return e;
}

DialogEvent FakeDialogHost::key(DialogEvent::Kind kind, char16_t letter, std::int32_t focus) {
    DialogEvent e;
    e.kind = kind;
    e.letter = letter;
    e.button = focus;
    return e;
}

DialogEvent FakeDialogHost::showModal(const DialogForm& form, const DialogDecision& decide) {
    forms_.push_back(form);
    std::vector<DialogEvent> events;
    if (!script_.empty()) {
        events = std::move(script_.front());
        script_.pop_front();
    }
    events.push_back(key(DialogEvent::Kind::escape));
    events.push_back(key(DialogEvent::Kind::closeBox));
    for (DialogEvent& event : events) {
        // An event without typed text leaves the field as the form shows it.
        if (event.text.empty() && form.field)
            event.text = form.field->text;
        if (event.clientSize == PixelSize{})
            event.clientSize = form.clientSize;
        if (decide(event)) {
            accepted_.push_back(event);
            return event;
        }
    }
    accepted_.push_back(events.back());
    return events.back();
}

PixelSize FakeDialogHost::measureText(std::u16string_view text, const DialogFont&,
                                      std::int32_t wrapWidth) {
    const std::size_t perLine = wrapWidth > 0 ? std::max<std::size_t>(1, wrapWidth / 6) : 0;
    std::size_t widest = 0, lines = 0, start = 0;
    while (true) {
        const std::size_t end = text.find(u'\n', start);
        const std::size_t length = (end == std::u16string_view::npos ? text.size() : end) - start;
        widest = std::max(widest, perLine > 0 ? std::min(length, perLine) : length);
        lines += perLine > 0 && length > 0 ? (length + perLine - 1) / perLine : 1;
        if (end == std::u16string_view::npos)
            break;
        start = end + 1;
    }
    return {static_cast<std::int32_t>(widest * 6), static_cast<std::int32_t>(lines * 13)};
}

void FakeDialogHost::showStatus(const StatusWindow& window) {
    if (!status_)
        ++statusCreations_;
    status_ = window;
    statusVisible_ = true;
}

} // namespace velkor6::fake

namespace velkor6::fake {

std::vector<std::u16string> FakeDialogHost::chooseFiles(const FileDialogRequest& request) {
    fileRequests_.push_back(request);
    if (files_.empty())
        return {};
    std::vector<std::u16string> paths = std::move(files_.front());
    files_.pop_front();
    return paths;
}

std::u16string FakeDialogHost::chooseFolder(const FolderDialogRequest& request) {
    folderRequests_.push_back(request);
    if (folders_.empty())
        return {};
    std::u16string path = std::move(folders_.front());
    folders_.pop_front();
    return path;
}

} // namespace velkor6::fake
