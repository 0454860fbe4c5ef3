#include "controls/list_view.h"

#include "core/convert.h"
#include "velkor6/vb_error.h"

namespace velkor6::controls {

ListView::ListView(ObjectRef control, WindowManager* windows, const Locale& loc)
    : control_(std::move(control)), windows_(windows), locale_(loc) {
    if (!control_)
        throw VbError(vberr::objectNotSet);
}

Variant ListView::property(Object& object, std::u16string_view name) const {
    return object.call(name, CallKind::PropertyGet, {});
}

WindowHandle ListView::window() const {
    return toLong(property(*control_, u"hwnd"), locale_);
}

std::int32_t ListView::columnCount() const {
    const Variant headers = property(*control_, u"ColumnHeaders");
    if (!headers.isObject() || !headers.object())
        throw VbError(vberr::objectRequired);
    return toLong(property(*headers.object(), u"Count"), locale_);
}

// The control window where the platform knows the control (a Qt widget, a window of this
// process), else the list-view message.
std::int32_t ListView::columnWidth(std::int32_t column) const {
    if (windows_ == nullptr)
        return 0;
    const WindowHandle handle = window();
    if (const std::shared_ptr<ControlWindow> control = windows_->controlWindow(handle))
        return control->columnWidth(column);
    return windows_->sendMessage(handle, lvm::getColumnWidth, column, 0);
}

void ListView::setColumnWidth(std::int32_t column, std::int32_t width) const {
    if (windows_ == nullptr)
        return;
    const WindowHandle handle = window();
    if (const std::shared_ptr<ControlWindow> control = windows_->controlWindow(handle))
        control->setColumnWidth(column, width);
    else
        windows_->sendMessage(handle, lvm::setColumnWidth, column, width);
}

} // namespace velkor6::controls
