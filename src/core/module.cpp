#include "velkor6/module.h"

namespace velkor6 {

Module::Module(std::unique_ptr<Platform> platform, Locale locale)
    : platform_(std::move(platform)), locale_(std::move(locale)) {}

} // namespace velkor6
