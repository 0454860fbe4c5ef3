#include "ui/headless/headless_host.h"

#include "core/text.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <sstream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace velkor6::ui {
namespace {

bool isTerminal(int descriptor) {
#ifdef _WIN32
    return _isatty(descriptor) != 0;
#else
    return isatty(descriptor) != 0;
#endif
}

// The caption as the user reads it: access-key marks gone, "&&" a literal "&".
std::string shownCaption(std::u16string_view caption) {
    std::u16string shown;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size())
            ++i;
        shown += caption[i];
    }
    return toUtf8(shown);
}

const char* iconName(DialogIcon icon) {
    switch (icon) {
    case DialogIcon::critical:
        return "critical";
    case DialogIcon::question:
        return "question";
    case DialogIcon::exclamation:
        return "exclamation";
    case DialogIcon::information:
        return "information";
    case DialogIcon::none:
        break;
    }
    return nullptr;
}

std::optional<std::int32_t> number(const std::string& text) {
    if (text.empty() || text.size() > 9 ||
        !std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    return std::stoi(text);
}

std::int32_t buttonWithResult(const DialogForm& form, std::int32_t result) {
    for (std::size_t i = 0; i < form.buttons.size(); ++i)
        if (form.buttons[i].result == result)
            return static_cast<std::int32_t>(i);
    return -1;
}

std::string trimmedLine(std::string line) {
    while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
        line.pop_back();
    return line;
}

} // namespace

HeadlessHost::HeadlessHost(std::deque<std::string> answers, bool interactive, std::istream& in,
                           std::ostream& out)
    : answers_(std::move(answers)), interactive_(interactive), in_(&in), out_(&out) {}

HeadlessHost HeadlessHost::fromEnvironment() {
    std::deque<std::string> answers;
    if (const char* value = std::getenv("VELKOR6_ANSWERS"); value != nullptr) {
        std::istringstream lines(value);
        for (std::string line; std::getline(lines, line);)
            answers.push_back(trimmedLine(line));
    }
    return HeadlessHost(std::move(answers), isTerminal(0) && isTerminal(2), std::cin, std::cerr);
}

void HeadlessHost::write(const DialogForm& form) {
    std::ostream& out = *out_;
    out << "--- " << toUtf8(form.title) << " ---\n";
    if (const char* icon = iconName(form.icon))
        out << "(" << icon << ")\n";
    for (const DialogText& text : form.texts)
        if (!text.plainText.empty())
            out << toUtf8(text.plainText) << '\n';
    if (form.field) {
        out << "["
            << (form.field->passwordChar != 0 ? std::string(form.field->text.size(), '*')
                                              : toUtf8(form.field->text))
            << "]";
        if (form.field->maxLength > 0)
            out << " (at most " << form.field->maxLength << " characters)";
        out << '\n';
    }
    for (std::size_t i = 0; i < form.buttons.size(); ++i) {
        const DialogButton& b = form.buttons[i];
        out << "  " << b.result << " = " << shownCaption(b.caption);
        if (b.hotKey != 0)
            out << " [" << static_cast<char>(b.hotKey) << "]";
        if (static_cast<std::int32_t>(i) == form.defaultButton)
            out << " (default)";
        out << '\n';
    }
    out.flush();
}

DialogEvent HeadlessHost::scripted(const DialogForm& form, const std::string& answer) const {
    DialogEvent event;
    event.text = form.field ? form.field->text : std::u16string();
    event.clientSize = form.clientSize;
    if (answer.rfind("text:", 0) == 0) {
        event.kind = DialogEvent::Kind::button;
        event.button = buttonWithResult(form, 1);
        event.text = fromUtf8(answer.substr(5));
        if (form.field && form.field->maxLength > 0 &&
            event.text.size() > static_cast<std::size_t>(form.field->maxLength))
            event.text.resize(static_cast<std::size_t>(form.field->maxLength));
        return event;
    }
    if (const auto result = number(answer)) {
        if (*result == 0) {
            event.kind = DialogEvent::Kind::closeBox;
            return event;
        }
        event.kind = DialogEvent::Kind::button;
        event.button = buttonWithResult(form, *result);
        if (event.button >= 0)
            return event;
    }
    event.kind = DialogEvent::Kind::escape;
    return event;
}

std::optional<DialogEvent> HeadlessHost::asked(const DialogForm& form) {
    std::ostream& out = *out_;
    DialogEvent event;
    event.clientSize = form.clientSize;
    event.text = form.field ? form.field->text : std::u16string();
    std::string line;
    if (form.field && form.field->passwordChar == 0 && !form.field->locked && form.field->enabled) {
        out << "Type the text and press Enter (an empty line keeps it, Ctrl+D cancels): ";
        out.flush();
        if (!std::getline(*in_, line))
            return std::nullopt;
        line = trimmedLine(line);
        if (!line.empty())
            event.text = fromUtf8(line);
        event.kind = DialogEvent::Kind::button;
        event.button = buttonWithResult(form, 1);
        return event;
    }
    out << "Choose (a number, a letter, an empty line for Enter, Ctrl+D for Esc): ";
    out.flush();
    if (!std::getline(*in_, line))
        return std::nullopt;
    line = trimmedLine(line);
    if (line.empty()) {
        event.kind = DialogEvent::Kind::enter;
    } else if (const auto result = number(line)) {
        event.kind = DialogEvent::Kind::button;
        event.button = buttonWithResult(form, *result);
    } else if (line.size() == 1 && std::isalpha(static_cast<unsigned char>(line[0]))) {
        event.kind = DialogEvent::Kind::letter;
        event.letter = toUpper(static_cast<char16_t>(line[0]));
    } else {
        event.kind = DialogEvent::Kind::button; // asks again
    }
    return event;
}

DialogEvent HeadlessHost::showModal(const DialogForm& form, const DialogDecision& decide) {
    write(form);
    if (!answers_.empty()) {
        const std::string answer = answers_.front();
        answers_.pop_front();
        const DialogEvent event = scripted(form, answer);
        if (decide(event))
            return event;
    } else if (interactive_) {
        while (const auto event = asked(form)) {
            if (event->kind == DialogEvent::Kind::button && event->button < 0)
                continue;
            if (decide(*event))
                return *event;
        }
    }
    // As Esc answers; where Esc is refused, as the close box does. Nobody waits at the other end,
    // so the dialog ends with that even when the form refuses it.
    DialogEvent event;
    event.text = form.field ? form.field->text : std::u16string();
    event.clientSize = form.clientSize;
    event.kind = DialogEvent::Kind::escape;
    if (decide(event))
        return event;
    event.kind = DialogEvent::Kind::closeBox;
    decide(event);
    return event;
}

// A rough figure of an average character of the font; nothing is drawn, the numbers only feed
// the layout.
PixelSize HeadlessHost::measureText(std::u16string_view text, const DialogFont& font,
                                    std::int32_t wrapWidth) {
    const std::int32_t charWidth = std::max(1, font.pointSize * 3 / 4 + (font.bold ? 1 : 0));
    const std::int32_t lineHeight = std::max(1, font.pointSize * 5 / 3);
    const std::size_t perLine =
        wrapWidth > 0 ? static_cast<std::size_t>(std::max(1, wrapWidth / charWidth)) : 0;
    std::int32_t widest = 0, lines = 0;
    std::size_t start = 0;
    while (true) {
        std::size_t end = text.find(u'\n', start);
        std::size_t length = (end == std::u16string_view::npos ? text.size() : end) - start;
        if (length > 0 && text[start + length - 1] == u'\r')
            --length;
        std::size_t wrapped = perLine > 0 && length > 0 ? (length + perLine - 1) / perLine : 1;
        std::size_t longest = perLine > 0 ? std::min(length, perLine) : length;
        widest = std::max(widest, static_cast<std::int32_t>(longest) * charWidth);
        lines += static_cast<std::int32_t>(wrapped);
        if (end == std::u16string_view::npos)
            break;
        start = end + 1;
    }
    return {widest, lines * lineHeight};
}

void HeadlessHost::showStatus(const StatusWindow& window) {
    // Only a change of the words is written; a moving counter would flood the terminal.
    const std::string shown = toUtf8(window.title) + ": " + toUtf8(window.message.plainText);
    if (shown == shownStatus_)
        return;
    shownStatus_ = shown;
    *out_ << "[" << shown << "]\n";
    out_->flush();
}

} // namespace velkor6::ui

namespace velkor6::ui {

std::string HeadlessHost::pathAnswer() {
    std::string line;
    if (!answers_.empty()) {
        line = answers_.front();
        answers_.pop_front();
    } else if (interactive_) {
        *out_ << "Type the path and press Enter (an empty line or Ctrl+D cancels): ";
        out_->flush();
        if (!std::getline(*in_, line))
            return {};
        return trimmedLine(line);
    }
    return line.rfind("path:", 0) == 0 ? line.substr(5) : std::string();
}

std::vector<std::u16string> HeadlessHost::chooseFiles(const FileDialogRequest& request) {
    std::ostream& out = *out_;
    out << "--- "
        << (request.title.empty() ? std::string(request.save ? "Save As" : "Open")
                                  : toUtf8(request.title))
        << " ---\n";
    out << (request.save          ? "Save a file"
            : request.multiSelect ? "Open files"
                                  : "Open a file")
        << " in " << toUtf8(request.startFolder) << '\n';
    for (std::size_t i = 0; i < request.filters.size(); ++i)
        out << "  " << (static_cast<std::int32_t>(i) == request.filterIndex ? "* " : "  ")
            << toUtf8(request.filters[i].description) << " (" << toUtf8(request.filters[i].pattern)
            << ")\n";
    if (!request.fileName.empty())
        out << "[" << toUtf8(request.fileName) << "]\n";
    const std::string answer = pathAnswer();
    std::vector<std::u16string> paths;
    std::size_t start = 0;
    while (start <= answer.size() && !answer.empty()) {
        const std::size_t end = request.multiSelect ? answer.find('|', start) : std::string::npos;
        const std::string path =
            answer.substr(start, end == std::string::npos ? std::string::npos : end - start);
        if (!path.empty())
            paths.push_back(fromUtf8(path));
        if (end == std::string::npos)
            break;
        start = end + 1;
    }
    return paths;
}

std::u16string HeadlessHost::chooseFolder(const FolderDialogRequest& request) {
    std::ostream& out = *out_;
    out << "--- "
        << (request.title.empty() ? std::string("Browse for Folder") : toUtf8(request.title))
        << " ---\n";
    out << "Choose a folder" << (request.allowNewFolder ? " (a new one is made)" : "") << " in "
        << toUtf8(request.startFolder) << '\n';
    return fromUtf8(pathAnswer());
}

} // namespace velkor6::ui
