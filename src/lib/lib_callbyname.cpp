#include "lzw/global_var.h"
#include "velkor6/lib.h"

namespace velkor6 {

Variant lib::vkrGlobalVar(std::u16string_view sName, const Variant& vParam) {
    return lzw::callGlobalVar(sName, vParam, locale());
}

} // namespace velkor6
