#include "dialogs/message_layout.h"

#include "dialogs/message_buttons.h"

#include <algorithm>

namespace velkor6::dialogs {

void placeButtonRow(DialogForm& form, std::int32_t widthTwips, std::int32_t top) {
    const auto count = static_cast<std::int32_t>(form.buttons.size());
    const std::int32_t middle = widthTwips / 30;
    const std::int32_t row = count * buttonWidth + std::max(0, count - 1) * buttonGap;
    std::int32_t left = middle - row / 2;
    for (DialogButton& b : form.buttons) {
        b.rect = {left, top, buttonWidth, buttonHeight};
        left += buttonWidth + buttonGap;
    }
}

void layOutLabelForm(DialogHost& host, DialogForm& form, std::int32_t widthTwips) {
    DialogText& headline = form.texts.at(0);
    DialogText& detail = form.texts.at(1);
    form.iconRect = {symbolLeft, symbolTop, symbolSize, symbolSize};
    const std::int32_t labelLeft =
        form.icon == DialogIcon::none ? symbolLeft : symbolLeft + symbolSize + 10;

    for (DialogText* label : {&headline, &detail}) {
        const PixelSize size = host.measureText(label->plainText, label->font, 0);
        label->rect = {labelLeft, symbolTop, size.width, size.height};
        label->wordWrap = false;
    }
    const std::int32_t wanted =
        (std::max(headline.rect.width, detail.rect.width) + labelLeft + symbolLeft) * twipsPerPixel;
    widthTwips = std::max(widthTwips, wanted);

    const std::int32_t room = widthTwips / twipsPerPixel - labelLeft - symbolLeft;
    for (DialogText* label : {&headline, &detail})
        if (label->rect.width > room) {
            label->rect.width = room;
            label->wordWrap = true;
            label->rect.height = host.measureText(label->plainText, label->font, room).height;
        }
    detail.rect.top = headline.rect.top + headline.rect.height + 10;

    const std::int32_t buttonsTop = detail.rect.top + detail.rect.height + 15;
    placeButtonRow(form, widthTwips, buttonsTop);
    form.clientSize = {widthTwips / twipsPerPixel, buttonsTop + buttonHeight + bottomMargin};
}

} // namespace velkor6::dialogs
