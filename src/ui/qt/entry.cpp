// What the library's loader looks up after loading this one.
#include "ui/qt/application.h"
#include "ui/qt/control_window.h"
#include "ui/qt/qt_host.h"
#include "ui/qt/widget_registry.h"

// A new host, owned by the caller, or null when Qt cannot show widgets in this process.
extern "C" __attribute__((visibility("default"))) velkor6::DialogHost* velkor6_qt_dialog_host() {
    try {
        if (!velkor6::qt::startApplication())
            return nullptr;
        return new velkor6::qt::QtDialogHost;
    } catch (...) {
        return nullptr;
    }
}

// The control window behind a handle that velkor6::qt gave a widget, owned by the caller; null
// for any other handle. Asked by the library's window manager only where this library is already
// loaded.
extern "C" __attribute__((visibility("default"))) velkor6::ControlWindow*
velkor6_qt_control_window(std::int32_t handle) {
    try {
        QWidget* widget = velkor6::qt::widgetOfHandle(handle);
        return widget == nullptr ? nullptr : velkor6::qt::controlWindowOf(widget).release();
    } catch (...) {
        return nullptr;
    }
}
