// What the library's loader looks up after loading this one.
#include "ui/qt/application.h"
#include "ui/qt/qt_host.h"

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
