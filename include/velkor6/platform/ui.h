// The platform's own user interface: the plain message box and the event queue.
#pragma once

#include "velkor6/export.h"

#include <cstdint>
#include <string_view>

namespace velkor6 {

// Result codes of message boxes and the library's dialogs.
namespace dlgresult {
inline constexpr std::int32_t ok = 1;
inline constexpr std::int32_t cancel = 2;
inline constexpr std::int32_t abort = 3;
inline constexpr std::int32_t retry = 4;
inline constexpr std::int32_t ignore = 5;
inline constexpr std::int32_t yes = 6;
inline constexpr std::int32_t no = 7;
} // namespace dlgresult

// The result of the default button of a message-box style: the button set is style AND 7 and
// the default button (AND 768) counts 0, 256, 512 from the left; past the last button the
// first one is the default.
constexpr std::int32_t defaultButtonResult(std::int32_t style) {
    using namespace dlgresult;
    constexpr std::int32_t sets[6][3] = {{ok, 0, 0},        {ok, cancel, 0}, {abort, retry, ignore},
                                         {yes, no, cancel}, {yes, no, 0},    {retry, cancel, 0}};
    const std::int32_t set = style & 7;
    if (set > 5)
        return ok;
    const std::int32_t index = (style & 768) >> 8;
    const std::int32_t result = index < 3 ? sets[set][index] : 0;
    return result != 0 ? result : sets[set][0];
}

class VELKOR6_API UserInterface {
public:
    virtual ~UserInterface() = default;
    // The system's plain message box: text, title and style bits (buttons, icon, default
    // button). Returns the result code of the button the user chose.
    virtual std::int32_t messageBox(std::u16string_view text, std::u16string_view title,
                                    std::int32_t style) = 0;
    // Lets pending user-interface events run once (VB's DoEvents).
    virtual void serveEvents() = 0;
};

} // namespace velkor6
