#include "velkor6/module.h"

namespace velkor6 {

Module::Module(std::unique_ptr<Platform> platform, Locale locale)
    : platform_(std::move(platform)), locale_(std::move(locale)) {}

std::shared_ptr<Module> Module::createDefault() {
    return std::make_shared<Module>(Platform::createNative(), nativeLocale());
}

} // namespace velkor6
