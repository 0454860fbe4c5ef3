// The path, file and folder members of `lib`. Each traps its own failures and answers with its
// neutral result, so none of them raises.
#include "files/compare_folders.h"
#include "files/file_io.h"
#include "files/find_file.h"
#include "files/folders.h"
#include "files/paths.h"
#include "velkor6/lib.h"

namespace velkor6 {
namespace {

// The title of the library's own messages: the file description of its version information.
constexpr std::u16string_view fileDescription = u"velkor6";

template <class F, class R>
R trapped(F f, R neutral) {
    try {
        return f();
    } catch (const std::exception&) {
        return neutral;
    }
}

} // namespace

std::u16string lib::vkrGetFullPath(std::u16string_view sPath, std::u16string_view sFile) {
    return files::getFullPath(sPath, sFile, module().platform().fileSystem->pathStyle());
}

std::u16string lib::vkrSystemDir() {
    return trapped(
        [&] { return files::systemDir(*module().platform().fileSystem, windowsDirectory_); },
        windowsDirectory_);
}

std::u16string lib::vkrTempDir() {
    Module& m = module();
    return trapped([&] { return files::tempDir(*m.platform().fileSystem, m.tempFolderCache()); },
                   m.tempFolderCache());
}

std::u16string lib::vkrFileStream(std::u16string_view sFilename) {
    return trapped(
        [&] { return files::readFileStream(*module().platform().fileSystem, sFilename); },
        std::u16string());
}

void lib::vkrFileStreamLet(std::u16string_view sFilename, std::u16string_view value) {
    trapped(
        [&] { return files::writeFileStream(*module().platform().fileSystem, sFilename, value); },
        false);
}

void lib::vkrChangeToPath(std::u16string_view sPath) {
    trapped(
        [&] {
            files::changeToPath(*module().platform().fileSystem, sPath);
            return true;
        },
        false);
}

std::u16string lib::vkrGetAbsolutePath(std::u16string_view sSource, std::u16string_view sTarget) {
    return trapped(
        [&] {
            return files::getAbsolutePath(sSource, sTarget,
                                          module().platform().fileSystem->pathStyle());
        },
        std::u16string());
}

std::u16string lib::vkrGetRelativePath(std::u16string_view sSource, std::u16string_view sTarget) {
    return trapped(
        [&] { return files::getRelativePath(*module().platform().fileSystem, sSource, sTarget); },
        std::u16string());
}

bool lib::vkrFileExists(std::u16string_view filename) {
    return trapped([&] { return files::fileExists(*module().platform().fileSystem, filename); },
                   false);
}

bool lib::vkrPathExists(std::u16string_view sPath) {
    return trapped([&] { return files::pathExists(*module().platform().fileSystem, sPath); },
                   false);
}

std::u16string lib::vkrFindFile(std::u16string_view sFilename, std::u16string_view sFolder) {
    Platform& p = module().platform();
    return trapped([&] { return files::findFile(*p.fileSystem, *p.input, sFilename, sFolder); },
                   std::u16string());
}

bool lib::vkrCheckAttributes(std::u16string_view sPathName, std::int16_t iAllowedAttribute) {
    Platform& p = module().platform();
    return trapped(
        [&] {
            return files::checkAttributes(*p.fileSystem, *p.ui, sPathName, iAllowedAttribute,
                                          fileDescription);
        },
        false);
}

bool lib::vkrSeparateFile(std::u16string_view sFullName, typFileInfo& tFileInfo) {
    return trapped(
        [&] { return files::separateFile(*module().platform().fileSystem, sFullName, tFileInfo); },
        false);
}

std::u16string lib::prfGetSpecialFolder(std::int32_t lngCSIDL) {
    return trapped([&] { return module().platform().environment->specialFolder(lngCSIDL); },
                   std::u16string());
}

bool lib::prfChangeDir(std::u16string_view sFolder) {
    return trapped([&] { return files::changeDir(*module().platform().fileSystem, sFolder); },
                   false);
}

bool lib::prfMakeDir(std::u16string_view sFolder) {
    return trapped([&] { return files::makeDir(*module().platform().fileSystem, sFolder); }, false);
}

bool lib::prfCompareFiles(std::u16string_view sFilename, std::u16string_view sSource,
                          std::u16string_view sTarget) {
    return trapped(
        [&] {
            return files::compareFiles(*module().platform().fileSystem, sFilename, sSource,
                                       sTarget);
        },
        false);
}

bool lib::prfCompareFolders(std::u16string_view sSource, std::u16string_view sTarget,
                            std::u16string_view sMask, const ObjectRef& oSplash) {
    Platform& p = module().platform();
    return trapped(
        [&] {
            return files::compareFolders(*p.fileSystem, *p.ui, locale(), sSource, sTarget, sMask,
                                         oSplash);
        },
        false);
}

Variant lib::prfGetFileList(std::u16string_view sFolder, std::u16string_view sMask,
                            std::u16string_view sLikeFilter) {
    VariantArray names;
    names.element = VarType::String;
    try {
        for (std::u16string& name :
             files::getFileList(*module().platform().fileSystem, sFolder, sMask, sLikeFilter))
            names.items.emplace_back(std::move(name));
    } catch (const std::exception&) {
        names.items.clear();
    }
    names.bounds = {ArrayBound{0, static_cast<std::int32_t>(names.items.size())}};
    return Variant(std::move(names));
}

bool lib::prfIsAdmin() {
    return trapped([&] { return module().platform().environment->userIsAdmin(); }, false);
}

} // namespace velkor6
