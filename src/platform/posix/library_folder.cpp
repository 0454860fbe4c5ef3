#include "platform/posix/library_folder.h"

#include "platform/posix/utf8_path.h"

#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <unistd.h>

namespace velkor6::posix {
namespace {

void marker() {}

std::string programPath() {
    std::string buffer(PATH_MAX, '\0');
    const ssize_t n = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (n <= 0)
        return {};
    buffer.resize(static_cast<std::size_t>(n));
    return buffer;
}

} // namespace

std::u16string libraryFolder() {
    // The loader reports a shared library by its absolute path, but the program itself by the
    // name it was started with, which need not be absolute.
    std::string file;
    Dl_info info{};
    if (::dladdr(reinterpret_cast<void*>(&marker), &info) != 0 && info.dli_fname != nullptr &&
        info.dli_fname[0] == '/') {
        char resolved[PATH_MAX];
        if (::realpath(info.dli_fname, resolved) != nullptr)
            file = resolved;
    }
    if (file.empty())
        file = programPath();
    const std::size_t slash = file.rfind('/');
    if (slash == std::string::npos)
        return {};
    return fromNative(slash == 0 ? std::string("/") : file.substr(0, slash));
}

} // namespace velkor6::posix
