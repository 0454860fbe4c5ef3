#include "applib/edit_file.h"

#include "files/paths.h"
#include "files/registry.h"
#include "velkor6/applib.h"

namespace velkor6 {
namespace app {
namespace {

// Show commands as the system's shell takes them; the minimised start is what the editors have
// always been started with.
constexpr std::int32_t showMinimized = 6;
constexpr std::int32_t windowMinimizedWithFocus = 2;

} // namespace

void openForEditing(Platform& platform, std::u16string_view path, const Locale& loc) {
    try {
        typFileInfo info;
        if (path.empty() || !files::separateFile(*platform.fileSystem, path, info))
            return;
        Registry* registry = platform.registry.get();
        const std::u16string fileType =
            files::regGetString(registry, regroot::classesRoot, u"." + info.lpExt, u"", u"", loc);
        const std::u16string command = files::regGetString(
            registry, regroot::classesRoot, fileType + u"\\shell\\edit\\command", u"", u"", loc);
        const std::u16string file = info.lpFileName + u"." + info.lpExt;
        Shell& shell = *platform.shell;
        if (command.empty()) {
            shell.execute(u"open", file, u"", info.lpPath, showMinimized);
            return;
        }
        if (shell.execute(u"edit", file, u"", info.lpPath, showMinimized) > 32)
            return;
        if (command.find(u"%1") != std::u16string::npos)
            shell.startWithFile(command, path, windowMinimizedWithFocus);
        else
            shell.execute(u"open", file, u"", info.lpPath, showMinimized);
    } catch (const std::exception&) {
    }
}

} // namespace app

} // namespace velkor6
