// A module over a platform made entirely of fakes, with handles on each fake.
#pragma once

#include "fake/fake_clock.h"
#include "fake/fake_dialog_host.h"
#include "fake/fake_file_store.h"
#include "fake/fake_file_system.h"
#include "fake/fake_services.h"
#include "fake/fake_window_manager.h"
#include "platform/memory_registry.h"
#include "velkor6/module.h"

#include <memory>

namespace velkor6::fake {

// Owns the module; the references stay valid as long as the module lives.
struct FakePlatform {
    explicit FakePlatform(const Locale& locale = Locale::englishUS());

    FakeClock& clock;
    FakeFileSystem& files;
    FakeEnvironment& environment;
    FakeInput& input;
    FakeUi& ui;
    FakeDialogHost& dialogs;
    FakeShell& shell;
    MemoryRegistry& registry; // empty until a test loads a script
    FakeFileStore& fileStore;
    FakeWindowManager& windows;
    std::shared_ptr<Module> module;

private:
    FakePlatform(std::unique_ptr<Platform> platform, const Locale& locale);
};

} // namespace velkor6::fake
