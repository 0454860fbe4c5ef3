// The operating-system services the library asks for; one implementation per platform,
// and a fake one in the tests.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/platform/clock.h"
#include "velkor6/platform/dialog_host.h"
#include "velkor6/platform/environment.h"
#include "velkor6/platform/file_store.h"
#include "velkor6/platform/file_system.h"
#include "velkor6/platform/input_state.h"
#include "velkor6/platform/registry.h"
#include "velkor6/platform/settings_files.h"
#include "velkor6/platform/shell.h"
#include "velkor6/platform/ui.h"
#include "velkor6/platform/window_manager.h"
#include "velkor6/platform/xml.h"

#include <memory>
#include <string>

namespace velkor6 {

struct Platform {
    std::unique_ptr<Clock> clock;
    std::unique_ptr<FileSystem> fileSystem;
    std::unique_ptr<Environment> environment;
    std::unique_ptr<InputState> input;
    std::unique_ptr<UserInterface> ui;
    // Draws the library's own dialogs and the status window.
    std::unique_ptr<DialogHost> dialogs;
    std::unique_ptr<Shell> shell;
    std::unique_ptr<Registry> registry;
    std::unique_ptr<FileStore> fileStore;
    std::unique_ptr<WindowManager> windowManager;
    std::unique_ptr<XmlService> xml;
    // The system's own settings-file functions; null where it has none, and the library reads
    // and writes the files itself.
    std::unique_ptr<SettingsFiles> settingsFiles;
    // The folder of the binary that holds the library (the library's own settings file sits
    // there), without a trailing separator.
    std::u16string libraryFolder;

    // The services of the operating system this library was built for.
    static std::unique_ptr<Platform> createNative();
};

// The user's locale as the operating system reports it.
Locale nativeLocale();

} // namespace velkor6
