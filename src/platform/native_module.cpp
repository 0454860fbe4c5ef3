// The module a program gets when it names no platform: the one the library was built for. It
// lives with the platforms, since the core knows only their interfaces.
#include "velkor6/module.h"

namespace velkor6 {

std::shared_ptr<Module> Module::createDefault() {
    return std::make_shared<Module>(Platform::createNative(), nativeLocale());
}

} // namespace velkor6
