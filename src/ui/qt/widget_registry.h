// The handles of wrapped widgets, kept as the Qt application's state.
#pragma once

#include <cstdint>

class QWidget;

namespace velkor6::qt {

// The first handle given to a widget. X11 resource ids stay below 0x20000000, so a handle of
// ours is never mistaken for an X window and the other way round.
inline constexpr std::int32_t firstWidgetHandle = 0x60000000;

// The widget's handle, given now if it has none; 0 for null or without a QCoreApplication.
std::int32_t handleOfWidget(QWidget* widget);
// nullptr for a handle that was never given or whose widget was destroyed.
QWidget* widgetOfHandle(std::int32_t handle);

} // namespace velkor6::qt
