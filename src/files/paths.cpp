#include "files/paths.h"

#include "core/text.h"
#include "files/path_style.h"

namespace velkor6::files {
namespace {

std::size_t lastSeparator(std::u16string_view s, PathStyle style) {
    for (std::size_t i = s.size(); i > 0; --i) {
        if (isSeparator(s[i - 1], style))
            return i - 1;
    }
    return std::u16string_view::npos;
}

} // namespace

std::u16string getFullPath(std::u16string_view folder, std::u16string_view file, PathStyle style) {
    std::u16string result(folder);
    if (result.empty() || !isSeparator(result.back(), style))
        result += separator(style);
    if (!file.empty() && isSeparator(file[0], style))
        file.remove_prefix(1);
    result += file;
    return result;
}

std::u16string getAbsolutePath(std::u16string_view source, std::u16string_view target,
                               PathStyle style) {
    target = untilNul(target);
    if (!isRelativePath(target, style))
        return std::u16string(target);
    std::u16string result(untilNul(source));
    removeFileSpec(result, style);
    appendPath(result, target, style);
    return result;
}

std::u16string getRelativePath(FileSystem& fs, std::u16string_view source,
                               std::u16string_view target) {
    source = untilNul(source);
    target = untilNul(target);
    const bool sourceIsFolder = !source.empty() && fs.isDirectory(source);
    auto relative = relativePathTo(source, sourceIsFolder, target, false, fs.pathStyle());
    return relative ? std::move(*relative) : std::u16string(target);
}

std::u16string comparableFolder(FileSystem& fs, std::u16string_view folder) {
    if (ignoresCase(fs.pathStyle()))
        return lowerCase(folder);
    return folder.empty() ? std::u16string() : fs.resolvedPath(folder);
}

void changeToPath(FileSystem& fs, std::u16string_view path) {
    const std::size_t sep = lastSeparator(path, fs.pathStyle());
    if (sep != std::u16string_view::npos)
        path = path.substr(0, sep);
    if (comparableFolder(fs, fs.currentDirectory()) == comparableFolder(fs, path))
        return;
    // Each step on its own: a failing drive change does not keep the folder from changing.
    fs.setCurrentDrive(path.substr(0, 2));
    fs.setCurrentDirectory(path);
}

bool separateFile(FileSystem& fs, std::u16string_view fullName, typFileInfo& info) {
    const PathStyle style = fs.pathStyle();
    info = typFileInfo{};
    info.lpFullName = fullName;

    std::u16string_view rest = fullName;
    const std::size_t sep = lastSeparator(fullName, style);
    if (sep != std::u16string_view::npos) {
        info.lpPath = fullName.substr(0, sep + 1);
        rest = fullName.substr(sep + 1);
    }
    const std::size_t dot = rest.rfind(u'.');
    if (dot != std::u16string_view::npos) {
        info.lpExt = rest.substr(dot + 1);
        rest = rest.substr(0, dot);
    }
    if (style == PathStyle::Windows) {
        if (info.lpPath.size() >= 2 && info.lpPath[1] == u':') {
            info.lpDrive = std::u16string(1, toUpper(info.lpPath[0]));
        } else if (rest.size() >= 2 && rest[1] == u':') {
            info.lpDrive = std::u16string(1, toUpper(rest[0]));
        } else {
            const std::u16string current = fs.currentDirectory();
            if (current.empty())
                return false;
            info.lpDrive = std::u16string(1, toUpper(current[0]));
        }
    }
    info.lpFileName = rest;
    return true;
}

std::u16string systemDir(FileSystem& fs, std::u16string& cache) {
    if (cache.empty())
        cache = fs.windowsFolder();
    return cache;
}

std::u16string tempDir(FileSystem& fs, std::u16string& cache) {
    if (cache.empty()) {
        std::u16string folder = fs.tempFolder();
        const PathStyle style = fs.pathStyle();
        if (folder.empty() || !isSeparator(folder.back(), style))
            folder += separator(style);
        cache = std::move(folder);
    }
    return cache;
}

} // namespace velkor6::files
