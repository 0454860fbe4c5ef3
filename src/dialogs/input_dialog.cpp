#include "dialogs/input_dialog.h"

#include "dialogs/message_buttons.h"
#include "dialogs/message_layout.h"
#include "resources/resource_text.h"

#include <algorithm>

namespace velkor6::dialogs {
namespace {

constexpr std::int32_t margin = 12;
constexpr std::int32_t fieldHeight = 21;
constexpr std::int32_t inputWidth = 360;

bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

} // namespace

InputPrompt splitInputPrompt(std::u16string_view prompt) {
    if (prompt.size() >= 3 && isDigit(prompt[0]) && isDigit(prompt[1]) && prompt[2] == u'|')
        return {std::u16string(prompt.substr(3)), (prompt[0] - u'0') * 10 + (prompt[1] - u'0')};
    return {std::u16string(prompt), 0};
}

DialogForm inputForm(Module& module, std::u16string_view prompt, std::u16string_view title,
                     std::u16string_view initial, bool hidden) {
    DialogHost& host = *module.platform().dialogs;
    const InputPrompt p = splitInputPrompt(prompt);
    DialogForm form;
    form.kind = DialogForm::Kind::input;
    form.title = std::u16string(title);
    DialogText description;
    description.text = description.plainText = p.text;
    const std::int32_t room = inputWidth - 2 * margin;
    PixelSize size = host.measureText(p.text, description.font, 0);
    if (size.width > room) {
        description.wordWrap = true;
        size = host.measureText(p.text, description.font, room);
    }
    description.rect = {margin, margin, std::min(size.width, room), size.height};
    form.texts = {std::move(description)};

    DialogField field;
    field.text = std::u16string(initial);
    field.maxLength = p.maxLength;
    field.passwordChar = hidden ? u'*' : 0;
    field.rect = {margin, margin + size.height + 6, room, fieldHeight};
    form.field = std::move(field);

    const std::int16_t language = module.currentLanguage();
    form.buttons = {captionedButton(resources::resText(module, u"cmdOK", language), 1),
                    captionedButton(resources::resText(module, u"cmdCancel", language), 2)};
    form.defaultButton = 0;
    form.cancelButton = 1;
    const std::int32_t buttonsTop = form.field->rect.top + fieldHeight + margin;
    placeButtonRow(form, inputWidth * twipsPerPixel, buttonsTop);
    form.clientSize = {inputWidth, buttonsTop + buttonHeight + bottomMargin};
    return form;
}

std::int32_t showInput(Module& module, std::u16string_view prompt, std::u16string_view title,
                       std::u16string& value, std::u16string_view initial, bool hidden) {
    const DialogForm form = inputForm(module, prompt, title, initial, hidden);
    std::int32_t result = 2;
    std::u16string typed;
    module.platform().dialogs->showModal(form, [&](const DialogEvent& event) {
        const auto decided = buttonDecision(form, event);
        if (decided) {
            // The close box cancels.
            result = *decided == 1 ? 1 : 2;
            typed = event.text;
        }
        return decided.has_value();
    });
    if (result == 1) {
        if (form.field->maxLength > 0 &&
            typed.size() > static_cast<std::size_t>(form.field->maxLength))
            typed.resize(static_cast<std::size_t>(form.field->maxLength));
        value = std::move(typed);
    }
    return result;
}

} // namespace velkor6::dialogs
