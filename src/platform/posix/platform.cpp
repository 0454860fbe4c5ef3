#include "platform/posix/file_registry.h"
#include "platform/posix/file_store.h"
#include "platform/posix/library_folder.h"
#include "platform/posix/services.h"
#include "platform/posix/window_manager.h"
#include "platform/posix/xml_service.h"
#include "ui/dialog_host_choice.h"

namespace velkor6 {

std::unique_ptr<Platform> Platform::createNative() {
    auto p = std::make_unique<Platform>();
    p->clock = posix::createClock();
    p->fileSystem = posix::createFileSystem();
    p->environment = posix::createEnvironment();
    p->input = posix::createInputState();
    p->ui = posix::createUserInterface();
    p->dialogs = ui::createDialogHost();
    p->shell = posix::createShell();
    p->registry = posix::createRegistry();
    p->fileStore = posix::createFileStore();
    p->windowManager = posix::createWindowManager();
    p->xml = posix::createXmlService();
    p->libraryFolder = posix::libraryFolder();
    return p;
}

} // namespace velkor6
