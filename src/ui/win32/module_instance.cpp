#include "ui/win32/module_instance.h"

namespace velkor6::ui::win32 {
namespace {

void marker() {}

} // namespace

HINSTANCE moduleInstance() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&marker), &module);
    return module;
}

} // namespace velkor6::ui::win32
