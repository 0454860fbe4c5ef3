#include "platform/posix/file_registry.h"
#include "platform/posix/file_store.h"
#include "platform/posix/library_folder.h"
#include "platform/posix/services.h"
#include "platform/posix/window_manager.h"
#include "platform/posix/x_display.h"
#include "platform/posix/xml_service.h"
#include "ui/dialog_host_choice.h"

namespace velkor6 {

std::unique_ptr<Platform> Platform::createNative() {
    auto p = std::make_unique<Platform>();
    // Opened by the first call that needs the display.
    auto x = std::make_shared<posix::XConnection>();
    p->clock = posix::createClock();
    p->fileSystem = posix::createFileSystem();
    p->environment = posix::createEnvironment();
    p->input = posix::createInputState(x);
    p->dialogs = ui::createDialogHost();
    p->ui = posix::createUserInterface(x, *p->dialogs);
    p->shell = posix::createShell();
    p->registry = posix::createRegistry();
    p->fileStore = posix::createFileStore();
    p->windowManager = posix::createWindowManager(x);
    p->xml = posix::createXmlService();
    p->fonts = posix::createFonts();
    p->libraryFolder = posix::libraryFolder();
    return p;
}

} // namespace velkor6
