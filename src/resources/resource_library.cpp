#include "resources/resource_library.h"

#include "core/text.h"
#include "files/dir_listing.h"
#include "files/file_io.h"
#include "files/path_style.h"
#include "platform/ansi.h"
#include "resources/resource_text.h"

#include <algorithm>

namespace velkor6::resources {
namespace {

constexpr std::int32_t errorAccessDenied = 5;
constexpr std::int32_t errorModuleNotFound = 126;
constexpr std::int32_t errorBadImage = 193;

std::u16string replaceAll(std::u16string_view text, std::u16string_view find,
                          std::u16string_view with) {
    std::u16string result;
    std::size_t from = 0;
    for (std::size_t at; (at = text.find(find, from)) != std::u16string_view::npos;
         from = at + find.size())
        result.append(text.substr(from, at - from)).append(with);
    return result.append(text.substr(from));
}

std::size_t fileNameStart(std::u16string_view path, PathStyle style) {
    for (std::size_t i = path.size(); i > 0; --i) {
        if (files::isSeparator(path[i - 1], style) ||
            (style == PathStyle::Windows && i == 2 && path[1] == u':'))
            return i;
    }
    return 0;
}

std::u16string withDefaultExtension(std::u16string_view path, PathStyle style) {
    const std::u16string_view name = path.substr(fileNameStart(path, style));
    if (name.ends_with(u'.'))
        return std::u16string(path.substr(0, path.size() - 1));
    if (!name.empty() && name.find(u'.') == std::u16string_view::npos)
        return std::u16string(path) + u".dll";
    return std::u16string(path);
}

} // namespace

std::u16string resourceLibraryName(std::u16string_view setting, std::u16string_view language) {
    return replaceAll(setting, u"%L", language);
}

std::optional<std::u16string> findResourceLibrary(FileSystem& fs, std::u16string_view setting,
                                                  std::u16string_view language) {
    std::u16string name = resourceLibraryName(setting, language);
    if (files::fileExists(fs, name))
        return name;
    // On a file system that tells letter case apart "ResEN.dll" misses "Resen.dll", which the
    // language list shows as English.
    const std::u16string pattern = replaceAll(setting, u"%L", u"??");
    const std::size_t nameStart = fileNameStart(pattern, fs.pathStyle());
    const std::size_t at = std::u16string_view(pattern).substr(nameStart).find(u"??");
    if (at == std::u16string_view::npos)
        return std::nullopt;
    const std::u16string wanted = upperCase(language);
    for (const std::u16string& found : files::listNormalFiles(fs, pattern)) {
        if (found.size() >= at + 2 && upperCase(std::u16string_view(found).substr(at, 2)) == wanted)
            return pattern.substr(0, nameStart) + found;
    }
    return std::nullopt;
}

LoadedLibrary loadResourceLibrary(FileSystem& fs, std::u16string_view path) {
    const std::u16string file = withDefaultExtension(path, fs.pathStyle());
    if (!fs.isFile(file))
        return {std::nullopt, errorModuleNotFound};
    auto bytes = fs.readFile(file);
    if (!bytes)
        return {std::nullopt, errorAccessDenied};
    auto image = PeImage::read(std::move(*bytes));
    if (!image)
        return {std::nullopt, errorBadImage};
    return {std::move(image), 0};
}

std::u16string loadString(const PeImage& image, std::int64_t id) {
    constexpr std::size_t bufferChars = 32767;
    if (id < 0 || id > 0xFFFF)
        return {};
    std::u16string text = image.string(static_cast<std::uint32_t>(id));
    if (text.size() >= bufferChars)
        text.resize(bufferChars - 1);
    return text;
}

std::u16string resourceText(std::string_view bytes) {
    std::u16string text = fromAnsi(bytes);
    const std::size_t tag = text.find(u'<');
    if (tag != std::u16string::npos && tag > 0)
        text.erase(0, tag);
    return text;
}

std::vector<std::u16string> availableLanguages(FileSystem& fs, const XmlDocument& doc,
                                               std::u16string_view setting) {
    const std::u16string pattern = replaceAll(setting, u"%L", u"??");
    const std::u16string_view patternName =
        std::u16string_view(pattern).substr(fileNameStart(pattern, fs.pathStyle()));
    const std::size_t at = patternName.find(u"??");
    if (at == std::u16string_view::npos)
        return {};
    std::vector<std::u16string> found;
    for (const std::u16string& name : files::listNormalFiles(fs, pattern)) {
        if (name.size() >= at + 2)
            found.push_back(upperCase(std::u16string_view(name).substr(at, 2)));
    }
    std::vector<std::u16string> entries;
    for (const Language& lang : languages(doc)) {
        if (std::ranges::find(found, lang.extension) != found.end())
            entries.push_back(lang.langid + u";" + lang.name + u";" + lang.extension);
    }
    return entries;
}

} // namespace velkor6::resources
