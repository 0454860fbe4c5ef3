#include "fake/fake_platform.h"

#ifdef _WIN32
#include "platform/win32/services.h"
#else
#include "platform/posix/xml_service.h"
#endif

namespace velkor6::fake {
namespace {

std::unique_ptr<Platform> makePlatform() {
    auto p = std::make_unique<Platform>();
    auto clock = std::make_unique<FakeClock>();
    auto files = std::make_unique<FakeFileSystem>(*clock);
    auto environment = std::make_unique<FakeEnvironment>();
    // The special folders exist on the fake drive, as they would on a real installation.
    for (const auto& [csidl, path] : environment->specialFolders())
        files->addFolder(path);
    p->clock = std::move(clock);
    p->fileSystem = std::move(files);
    p->environment = std::move(environment);
    p->input = std::make_unique<FakeInput>();
    p->ui = std::make_unique<FakeUi>();
    p->dialogs = std::make_unique<FakeDialogHost>();
    p->shell = std::make_unique<FakeShell>();
    p->registry = std::make_unique<MemoryRegistry>();
    p->fileStore = std::make_unique<FakeFileStore>(static_cast<FakeFileSystem&>(*p->fileSystem));
    p->windowManager = std::make_unique<FakeWindowManager>();
    // Parsing touches nothing of the system: the tests use the real parser (MSXML on Windows).
#ifdef _WIN32
    p->xml = win32::createXmlService();
#else
    p->xml = posix::createXmlService();
#endif
    // A folder that does not exist: the library's own settings stay unwritten unless a test
    // creates it.
    p->libraryFolder = u"C:\\Program Files (x86)\\velkor6";
    return p;
}

template <class T, class U>
T& as(const std::unique_ptr<U>& service) {
    return static_cast<T&>(*service);
}

} // namespace

FakePlatform::FakePlatform(const Locale& locale) : FakePlatform(makePlatform(), locale) {}

FakePlatform::FakePlatform(std::unique_ptr<Platform> p, const Locale& locale)
    : clock(as<FakeClock>(p->clock)), files(as<FakeFileSystem>(p->fileSystem)),
      environment(as<FakeEnvironment>(p->environment)), input(as<FakeInput>(p->input)),
      ui(as<FakeUi>(p->ui)), dialogs(as<FakeDialogHost>(p->dialogs)),
      shell(as<FakeShell>(p->shell)), registry(as<MemoryRegistry>(p->registry)),
      fileStore(as<FakeFileStore>(p->fileStore)), windows(as<FakeWindowManager>(p->windowManager)),
      module(std::make_shared<Module>(std::move(p), locale)) {}

} // namespace velkor6::fake
