#include "dialogs/rich_message.h"

#include "core/convert.h"
#include "dialogs/message_buttons.h"
#include "dialogs/message_layout.h"
#include "dialogs/rtf_text.h"

#include <algorithm>
#include <cmath>

namespace velkor6::dialogs {
namespace {

std::int32_t twipsOf(std::u16string_view piece, const Locale& locale) {
    // Val-like: a piece that reads as no number gives no size.
    const auto n = parseNumber(piece, locale);
    if (!n || !std::isfinite(*n) || *n < -2147483648.0 || *n > 2147483647.0)
        return 0;
    return static_cast<std::int32_t>(roundHalfEven(*n));
}

} // namespace

RichPrompt splitRichPrompt(std::u16string_view prompt, const Locale& locale) {
    RichPrompt p;
    const std::size_t first = prompt.find(u'|');
    if (first == std::u16string_view::npos) {
        p.text = std::u16string(prompt);
        return p;
    }
    p.text = std::u16string(prompt.substr(0, first));
    const std::u16string_view rest = prompt.substr(first + 1);
    const std::size_t second = rest.find(u'|');
    p.widthTwips = twipsOf(rest.substr(0, second), locale);
    if (second != std::u16string_view::npos) {
        const std::u16string_view height = rest.substr(second + 1);
        p.heightTwips = twipsOf(height.substr(0, height.find(u'|')), locale);
    }
    return p;
}

DialogForm richMessageForm(Module& module, const RichMessage& message) {
    const RichPrompt prompt = splitRichPrompt(message.prompt, module.locale());
    const std::int32_t width = message.widthTwips > 0   ? message.widthTwips
                               : prompt.widthTwips >= 1 ? prompt.widthTwips
                                                        : richDesignedWidthTwips;
    const std::int32_t height = message.heightTwips >= 1  ? message.heightTwips
                                : prompt.heightTwips >= 1 ? prompt.heightTwips
                                                          : richDesignedHeightTwips;
    DialogForm form;
    form.kind = DialogForm::Kind::richMessage;
    form.title = message.title.empty() ? std::u16string(libraryTitle) : message.title;
    form.icon = styleIcon(message.style);
    form.previewKeys = true;
    form.iconRect = {symbolLeft, symbolTop, symbolSize, symbolSize};
    form.buttons = messageButtons(module, message.style);
    form.cancelButton = static_cast<std::int32_t>(buttonSet(message.style).cancel);
    form.defaultButton = defaultButtonIndex(message.style, form.buttons.size());

    form.clientSize = {width / twipsPerPixel, height / twipsPerPixel};
    const std::int32_t left =
        form.icon == DialogIcon::none ? symbolLeft : symbolLeft + symbolSize + 10;
    const std::int32_t buttonsTop =
        std::max(symbolTop, form.clientSize.height - buttonHeight - bottomMargin);
    DialogText body;
    body.rich = true;
    body.text = u"{" + prompt.text + u"}";
    body.plainText = rtfPlainText(body.text);
    body.wordWrap = true;
    body.rect = {left, symbolTop, std::max(0, form.clientSize.width - left - symbolLeft),
                 std::max(0, buttonsTop - symbolTop - 15)};
    form.texts = {std::move(body)};
    placeButtonRow(form, width, buttonsTop);
    form.clientSize.height =
        std::max(form.clientSize.height, buttonsTop + buttonHeight + bottomMargin);
    return form;
}

std::int32_t showRichMessage(Module& module, const RichMessage& message) {
    return runButtonForm(*module.platform().dialogs, richMessageForm(module, message));
}

} // namespace velkor6::dialogs
