#include "velkor6/lib.h"

namespace velkor6 {

lib::lib(std::shared_ptr<Module> module) : module_(std::move(module)) {}

} // namespace velkor6
