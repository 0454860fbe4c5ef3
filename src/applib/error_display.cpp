#include "applib/error_display.h"

#include "core/text.h"

#include <string>

namespace velkor6::app {

void showError(Module& module, std::int32_t number, std::u16string_view description,
               std::u16string_view source) {
    constexpr std::int32_t okWithStopSign = 16;
    const std::u16string text = std::u16string(description) + u"\r\n\r\nError " +
                                fromUtf8(std::to_string(number)) + u" (" + std::u16string(source) +
                                u")";
    module.platform().ui->messageBox(text, u"velkor6", okWithStopSign);
}

} // namespace velkor6::app
