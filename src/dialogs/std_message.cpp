#include "dialogs/std_message.h"

#include "core/text.h"
#include "dialogs/message_buttons.h"
#include "dialogs/message_layout.h"
#include "velkor6/vb_error.h"

#include <array>
#include <cstdio>

namespace velkor6::dialogs {
namespace {

DialogText label(std::u16string text) {
    DialogText t;
    t.plainText = text;
    t.text = std::move(text);
    return t;
}

} // namespace

std::uint32_t paletteColour(std::int32_t index) {
    constexpr std::array<std::uint32_t, 16> palette{
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    if (index < 0 || index > 15)
        throw VbError(5);
    return palette[static_cast<std::size_t>(index)];
}

DialogForm stdMessageForm(Module& module, const StdMessage& message) {
    DialogForm form;
    form.kind = DialogForm::Kind::message;
    form.title = message.title.empty() ? std::u16string(libraryTitle) : message.title;
    form.icon = styleIcon(message.style);
    form.previewKeys = true;
    DialogText headline = label(message.prompt);
    headline.font.pointSize = message.fontSize;
    headline.font.bold = message.fontBold;
    headline.font.color = paletteColour(message.promptColor);
    form.texts = {std::move(headline), label(message.detail)};
    form.buttons = messageButtons(module, message.style);
    form.cancelButton = static_cast<std::int32_t>(buttonSet(message.style).cancel);
    form.defaultButton = defaultButtonIndex(message.style, form.buttons.size());
    layOutLabelForm(*module.platform().dialogs, form);
    return form;
}

std::int32_t showStdMessage(Module& module, const StdMessage& message) {
    return runButtonForm(*module.platform().dialogs, stdMessageForm(module, message));
}

std::u16string errorNumberText(std::int32_t number) {
    if (number >= 0)
        return fromUtf8(std::to_string(number));
    char hex[9];
    std::snprintf(hex, sizeof hex, "%08X", static_cast<unsigned>(number));
    return u"&H" + fromUtf8(hex);
}

void showError(Module& module, std::int32_t number, std::u16string_view description,
               std::u16string_view source) {
    try {
        StdMessage m;
        m.prompt = u"Runtime error '" + errorNumberText(number) + u"':";
        m.detail = std::u16string(description);
        m.style = 48;
        m.title = std::u16string(source);
        showStdMessage(module, m);
    } catch (const std::exception&) {
    }
}

std::int32_t showSystemMessage(Module& module, std::u16string_view text, std::u16string_view title,
                               std::int32_t style) {
    DialogForm form;
    form.kind = DialogForm::Kind::systemMessage;
    form.systemStyle = style;
    form.title = std::u16string(title);
    form.icon = styleIcon(style);
    form.previewKeys = true;
    DialogText headline = label(std::u16string(text));
    headline.font.bold = false;
    form.texts = {std::move(headline), label({})};
    form.buttons = messageButtons(module, style);
    form.cancelButton = static_cast<std::int32_t>(buttonSet(style).cancel);
    form.defaultButton = defaultButtonIndex(style, form.buttons.size());
    layOutLabelForm(*module.platform().dialogs, form);
    return runButtonForm(*module.platform().dialogs, form);
}

} // namespace velkor6::dialogs
