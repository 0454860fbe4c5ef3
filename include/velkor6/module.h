// The module context: everything that lives as long as the library is loaded.
#pragma once

#include <memory>
#include <string>

#include "velkor6/locale.h"
#include "velkor6/platform/platform.h"

namespace velkor6 {

// Module-wide state of one loaded library, and the platform it runs on. Tests create their own
// modules over a fake platform so that they never share state; the front ends use one module
// over the native platform.
class Module {
public:
    Module(std::unique_ptr<Platform> platform, Locale locale);

    // A module over the native platform and the user's locale.
    static std::shared_ptr<Module> createDefault();

    Platform& platform() { return *platform_; }
    const Locale& locale() const { return locale_; }
    void setLocale(Locale locale) { locale_ = std::move(locale); }

    // The user's temporary folder, read once for the whole module; empty until first use.
    std::u16string& tempFolderCache() { return tempFolder_; }

private:
    std::unique_ptr<Platform> platform_;
    Locale locale_;
    std::u16string tempFolder_;
};

} // namespace velkor6
