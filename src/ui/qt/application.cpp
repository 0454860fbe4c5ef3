#include "ui/qt/application.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QStringList>
#include <X11/Xlib.h>
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>

namespace velkor6::qt {
namespace {

struct DisplayCloser {
    void operator()(Display* d) const { XCloseDisplay(d); }
};

// Folders Qt searches for platform plugins, in its order.
QStringList pluginFolders() {
    QStringList folders;
    const QString own = qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH");
    if (!own.isEmpty())
        folders << own;
    for (const QString& path :
         qEnvironmentVariable("QT_PLUGIN_PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts))
        folders << path + QStringLiteral("/platforms");
    folders << QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms");
    return folders;
}

bool pluginExists(const QString& name) {
    for (const QString& folder : pluginFolders())
        if (QFileInfo::exists(folder + QStringLiteral("/libq") + name + QStringLiteral(".so")))
            return true;
    return false;
}

// Qt takes the first plugin of QT_QPA_PLATFORM's list ("name:options;name2") that it finds,
// xcb without the variable, and aborts when there is none.
bool platformUsable() {
    const QString wanted = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (wanted.isEmpty())
        return pluginExists(QStringLiteral("xcb"));
    for (const QString& entry : wanted.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        if (pluginExists(entry.section(QLatin1Char(':'), 0, 0)))
            return true;
    return false;
}

} // namespace

bool startApplication() {
    if (QCoreApplication* existing = QCoreApplication::instance())
        return qobject_cast<QApplication*>(existing) != nullptr;
    // A connection that fails inside Qt aborts the process; this one only says no. It stays open
    // until Qt has connected: a connection made right after one was closed fails now and then.
    std::unique_ptr<Display, DisplayCloser> probe;
    // A busy server refuses a connection now and then (EAGAIN); that is no reason to go without
    // a display.
    for (int attempt = 0; attempt < 5 && !probe; ++attempt) {
        if (attempt > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        probe.reset(XOpenDisplay(nullptr));
    }
    if (!probe || !platformUsable())
        return false;
    // Qt keeps a reference to argc and reads argv for the whole life of the application, which
    // is never deleted: other code of the process may hold widgets until it exits.
    static int argc = 1;
    static char name[] = "velkor6";
    static char* argv[] = {name, nullptr};
    // QApplication sets the C library's locale from the environment; the process keeps its own.
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    new QApplication(argc, argv);
    std::setlocale(LC_ALL, locale.c_str());
    QApplication::setQuitOnLastWindowClosed(false);
    return true;
}

} // namespace velkor6::qt
