#include "platform/posix/file_registry.h"
#include "platform/posix/services.h"

namespace velkor6 {

std::unique_ptr<Platform> Platform::createNative() {
    auto p = std::make_unique<Platform>();
    p->clock = posix::createClock();
    p->fileSystem = posix::createFileSystem();
    p->environment = posix::createEnvironment();
    p->input = posix::createInputState();
    p->ui = posix::createUserInterface();
    p->shell = posix::createShell();
    p->registry = posix::createRegistry();
    return p;
}

} // namespace velkor6
