#include "dialogs/message_buttons.h"

#include "core/text.h"
#include "resources/resource_text.h"

#include <array>

namespace velkor6::dialogs {

ButtonSet buttonSet(std::int32_t style) {
    if ((style & 5) == 5)
        return {{u"retry", u"cancel"}, 1};
    if ((style & 4) != 0)
        return {{u"yes", u"no"}, 1};
    if ((style & 3) == 3)
        return {{u"yes", u"no", u"cancel"}, 2};
    if ((style & 2) != 0)
        return {{u"abort", u"retry", u"ignore"}, 2};
    if ((style & 1) != 0)
        return {{u"cmdOK", u"cmdCancel"}, 1};
    return {{u"cmdOK"}, 0};
}

std::int32_t tagResult(std::u16string_view tag) {
    struct Row {
        std::u16string_view tag;
        std::int32_t result;
    };
    constexpr std::array<Row, 9> rows{{{u"ok", 1},
                                       {u"cmdOK", 1},
                                       {u"cancel", 2},
                                       {u"cmdCancel", 2},
                                       {u"abort", 3},
                                       {u"retry", 4},
                                       {u"ignore", 5},
                                       {u"yes", 6},
                                       {u"no", 7}}};
    for (const Row& row : rows)
        if (row.tag == tag)
            return row.result;
    return 2;
}

DialogIcon styleIcon(std::int32_t style) {
    if ((style & 48) == 48)
        return DialogIcon::exclamation;
    if ((style & 64) != 0)
        return DialogIcon::information;
    if ((style & 16) != 0)
        return DialogIcon::critical;
    if ((style & 32) != 0)
        return DialogIcon::question;
    return DialogIcon::none;
}

std::int32_t defaultButtonIndex(std::int32_t style, std::size_t count) {
    std::int32_t index = 0;
    for (std::int32_t i = 0; i <= 3; ++i)
        if ((style & (i * 256)) == i * 256 && static_cast<std::size_t>(i) < count)
            index = i;
    return index;
}

char16_t hotKey(std::u16string_view caption) {
    std::u16string single;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size() && caption[i + 1] == u'&')
            ++i;
        else
            single += caption[i];
    }
    const std::size_t mark = single.find(u'&');
    if (mark == std::u16string::npos || mark + 1 >= single.size())
        return 0;
    return toUpper(single[mark + 1]);
}

DialogButton captionedButton(std::u16string caption, std::int32_t result) {
    DialogButton b;
    b.hotKey = hotKey(caption);
    b.caption = std::move(caption);
    b.result = result;
    return b;
}

std::vector<DialogButton> messageButtons(Module& module, std::int32_t style) {
    std::vector<DialogButton> buttons;
    for (std::u16string_view tag : buttonSet(style).tags)
        buttons.push_back(captionedButton(resources::resText(module, tag, module.currentLanguage()),
                                          tagResult(tag)));
    return buttons;
}

std::optional<std::int32_t> buttonDecision(const DialogForm& form, const DialogEvent& event) {
    const auto resultOf = [&](std::int32_t index) -> std::optional<std::int32_t> {
        if (index < 0 || static_cast<std::size_t>(index) >= form.buttons.size())
            return std::nullopt;
        return form.buttons[static_cast<std::size_t>(index)].result;
    };
    switch (event.kind) {
    case DialogEvent::Kind::button:
    case DialogEvent::Kind::space:
        return resultOf(event.button);
    case DialogEvent::Kind::letter: {
        // Every button with that hot key is pressed in turn; the last one's result stays.
        std::optional<std::int32_t> result;
        for (const DialogButton& b : form.buttons)
            if (b.hotKey != 0 && b.hotKey == toUpper(event.letter))
                result = b.result;
        return result;
    }
    case DialogEvent::Kind::escape:
        return form.cancelButton >= 0 ? resultOf(form.cancelButton) : std::optional(0);
    case DialogEvent::Kind::enter:
        return resultOf(form.defaultButton);
    case DialogEvent::Kind::closeBox:
        return 0;
    }
    return std::nullopt;
}

std::int32_t runButtonForm(DialogHost& host, const DialogForm& form) {
    std::int32_t result = 0;
    host.showModal(form, [&](const DialogEvent& event) {
        const auto decided = buttonDecision(form, event);
        if (decided)
            result = *decided;
        return decided.has_value();
    });
    return result;
}

} // namespace velkor6::dialogs
