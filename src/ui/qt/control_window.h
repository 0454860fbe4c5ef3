// A wrapped widget as the control window the library's list-view messages and window styles
// reach by its handle.
#pragma once

#include "velkor6/platform/control_window.h"

#include <cstdint>
#include <memory>

class QWidget;

namespace velkor6::qt {

// The control window of a widget; its operations do nothing and answer 0, "" or -1 once the
// widget is gone.
std::unique_ptr<ControlWindow> controlWindowOf(QWidget* widget);

// Window style bits the widgets answer (WindowStyleConstants and the edit and button styles).
namespace wstyle {
inline constexpr std::uint32_t visible = 0x10000000;
inline constexpr std::uint32_t disabled = 0x08000000;
inline constexpr std::uint32_t child = 0x40000000;
inline constexpr std::uint32_t esMultiline = 0x4;
inline constexpr std::uint32_t esPassword = 0x20;
inline constexpr std::uint32_t esReadOnly = 0x800;
inline constexpr std::uint32_t esNumber = 0x2000;
inline constexpr std::uint32_t bsLeft = 0x100;
inline constexpr std::uint32_t bsRight = 0x200;
inline constexpr std::uint32_t bsCenter = 0x300;
} // namespace wstyle

} // namespace velkor6::qt
