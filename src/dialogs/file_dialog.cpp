#include "dialogs/file_dialog.h"

#include "core/text.h"
#include "dialogs/std_message.h"
#include "files/path_style.h"
#include "velkor6/enums.h"
#include "velkor6/module.h"
#include "velkor6/platform/file_system.h"
#include "velkor6/platform/platform.h"

namespace velkor6::dialogs {
namespace {

std::vector<std::u16string_view> split(std::u16string_view text, char16_t at) {
    std::vector<std::u16string_view> pieces;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = text.find(at, start);
        pieces.push_back(text.substr(start, end == std::u16string_view::npos ? end : end - start));
        if (end == std::u16string_view::npos)
            return pieces;
        start = end + 1;
    }
}

std::u16string cleanPattern(std::u16string_view pattern) {
    std::u16string clean;
    for (std::u16string_view part : split(pattern, u';')) {
        part = trimSpaces(part);
        if (part.empty())
            continue;
        if (!clean.empty())
            clean += u';';
        clean += part;
    }
    return clean;
}

bool isFolder(FileSystem& files, std::u16string_view path) {
    const auto status = files.status(path);
    return status && status->isDirectory();
}

// The folder itself when it exists, else the nearest existing folder above it, else the current
// directory.
std::u16string existingFolder(FileSystem& files, std::u16string_view folder) {
    if (trimSpaces(folder).empty())
        return files.currentDirectory();
    std::u16string path = files.fullPath(folder);
    while (!isFolder(files, path))
        if (!files::removeFileSpec(path, files.pathStyle()))
            return files.currentDirectory();
    return path;
}

// A host hands back full paths; a relative one (typed in advance) is taken from the start folder.
std::u16string pickedPath(FileSystem& files, std::u16string_view startFolder,
                          std::u16string_view picked) {
    if (!files::isRelativePath(picked, files.pathStyle()))
        return files.fullPath(picked);
    const auto combined = files::combinePaths(startFolder, picked, files.pathStyle());
    return files.fullPath(combined ? *combined : std::u16string(picked));
}

std::u16string_view fileNamePart(std::u16string_view path, PathStyle style) {
    std::size_t i = path.size();
    while (i > 0 && !files::isSeparator(path[i - 1], style))
        --i;
    return path.substr(i);
}

// A picked path as the caller receives it: full, with the default extension where its name has
// none. Empty when the request's rules refuse it.
std::u16string acceptedFile(FileSystem& files, const FileDialogRequest& request,
                            std::u16string_view picked) {
    std::u16string path = pickedPath(files, request.startFolder, picked);
    const std::u16string_view name = fileNamePart(path, files.pathStyle());
    if (name.empty())
        return {};
    if (!request.defaultExtension.empty() && name.find(u'.') == std::u16string_view::npos)
        path += u'.' + request.defaultExtension;
    const auto status = files.status(path);
    if (status && status->isDirectory())
        return {};
    if (request.fileMustExist && !status)
        return {};
    if (request.pathMustExist) {
        std::u16string folder = path;
        files::removeFileSpec(folder, files.pathStyle());
        if (!isFolder(files, folder))
            return {};
    }
    return path;
}

} // namespace

std::vector<FileFilter> parseFilters(std::u16string_view spec) {
    std::vector<FileFilter> filters;
    if (spec.empty())
        return filters;
    const std::vector<std::u16string_view> pieces = split(spec, u'|');
    for (std::size_t i = 0; i < pieces.size(); i += 2) {
        const bool lone = i + 1 == pieces.size();
        FileFilter filter{std::u16string(trimSpaces(pieces[i])),
                          cleanPattern(lone ? pieces[i] : pieces[i + 1])};
        if (filter.pattern.empty())
            continue;
        if (filter.description.empty() || lone)
            filter.description = filter.pattern;
        filters.push_back(std::move(filter));
    }
    return filters;
}

FileDialogRequest fileDialogRequest(FileSystem& files, const FileDialogArguments& arguments) {
    const PathStyle style = files.pathStyle();
    FileDialogRequest request;
    request.save = arguments.save;
    request.title = arguments.title;
    request.filters = parseFilters(arguments.filter);
    if (arguments.filterIndex >= 1 &&
        arguments.filterIndex <= static_cast<std::int32_t>(request.filters.size()))
        request.filterIndex = arguments.filterIndex - 1;

    std::u16string start = arguments.startFolder;
    const std::u16string_view name = fileNamePart(arguments.fileName, style);
    if (name.size() < arguments.fileName.size()) {
        const std::u16string_view folder = std::u16string_view(arguments.fileName)
                                               .substr(0, arguments.fileName.size() - name.size());
        start = files::isRelativePath(folder, style) && !start.empty()
                    ? start + files::separator(style) + std::u16string(folder)
                    : std::u16string(folder);
    }
    request.startFolder = existingFolder(files, start);
    request.fileName = std::u16string(name);

    std::u16string_view extension = trimSpaces(arguments.defaultExtension);
    while (!extension.empty() && extension.front() == u'.')
        extension.remove_prefix(1);
    request.defaultExtension = std::u16string(extension);

    const std::int32_t flags = arguments.flags;
    request.overwritePrompt = arguments.save && (flags & OFN_OVERWRITEPROMPT) != 0;
    request.fileMustExist = !arguments.save && (flags & OFN_FILEMUSTEXIST) != 0;
    request.pathMustExist = request.fileMustExist || (flags & OFN_PATHMUSTEXIST) != 0;
    request.multiSelect = !arguments.save && (flags & OFN_ALLOWMULTISELECT) != 0;
    request.readOnlyBox = !arguments.save && (flags & OFN_HIDEREADONLY) == 0;
    return request;
}

std::u16string chooseFiles(Module& module, const FileDialogArguments& arguments) {
    Platform& platform = module.platform();
    FileSystem& files = *platform.fileSystem;
    const FileDialogRequest request = fileDialogRequest(files, arguments);
    // A host that cannot check the rules itself (answers given in advance) may hand back what
    // they refuse: the dialog is then shown again, as an interactive one would stay open.
    while (true) {
        const std::vector<std::u16string> picked = platform.dialogs->chooseFiles(request);
        if (picked.empty())
            return {};
        std::u16string result;
        bool refused = false;
        for (const std::u16string& p : picked) {
            const std::u16string path = acceptedFile(files, request, p);
            if (path.empty()) {
                refused = true;
                break;
            }
            if (!result.empty())
                result += pathListSeparator;
            result += path;
            if (!request.multiSelect)
                break;
        }
        if (!refused)
            return result;
    }
}

FolderDialogRequest folderDialogRequest(FileSystem& files, std::u16string_view title,
                                        std::u16string_view startFolder, std::int32_t flags) {
    FolderDialogRequest request;
    request.title = std::u16string(title);
    request.startFolder = existingFolder(files, startFolder);
    request.editBox = (flags & BIF_EDITBOX) != 0;
    request.allowNewFolder =
        (flags & BIF_NEWDIALOGSTYLE) != 0 && (flags & BIF_NONEWFOLDERBUTTON) == 0;
    return request;
}

std::u16string chooseFolder(Module& module, std::u16string_view title,
                            std::u16string_view startFolder, std::int32_t flags) {
    Platform& platform = module.platform();
    FileSystem& files = *platform.fileSystem;
    FolderDialogRequest request = folderDialogRequest(files, title, startFolder, flags);
    while (true) {
        const std::u16string picked = platform.dialogs->chooseFolder(request);
        if (picked.empty())
            return {};
        const std::u16string path = pickedPath(files, request.startFolder, picked);
        const auto status = files.status(path);
        if (status && status->isDirectory())
            return path;
        if (!status && request.allowNewFolder) {
            if (files.createFolder(path))
                return path;
            showError(module, pathFileAccessError, u"Path/File access error: " + path,
                      u"velkor6.vkrChoosePath");
        }
        // Opens again where the refused folder would have been.
        request.startFolder = existingFolder(files, path);
    }
}

} // namespace velkor6::dialogs
