#include "velkor6/lib.h"

namespace velkor6 {

std::shared_ptr<applib> lib::vkrInitApp(const HostApp& oApp, std::u16string_view sAppName) {
    auto context = std::make_shared<applib>(module_);
    context->init(oApp, sAppName);
    return context;
}

} // namespace velkor6
