// The public face of the wrappers (velkor6/qt.h).
#include "ui/qt/widget_object.h"
#include "ui/qt/widget_registry.h"
#include "velkor6/qt.h"

namespace velkor6::qt {

ObjectRef wrap(QWidget* widget) {
    return widget == nullptr ? ObjectRef() : wrapped(widget).object();
}

std::int32_t windowHandle(QWidget* widget) {
    return handleOfWidget(widget);
}

QWidget* widgetOf(std::int32_t handle) {
    return widgetOfHandle(handle);
}

} // namespace velkor6::qt
