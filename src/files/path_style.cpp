#include "files/path_style.h"

#include "core/text.h"

#include <algorithm>
#include <vector>

namespace velkor6::files {
namespace {

constexpr std::size_t maxPath = 260;

bool tooLong(std::size_t length, PathStyle style) {
    return style == PathStyle::Windows && length >= maxPath;
}

bool hasDrive(std::u16string_view p, PathStyle style) {
    return style == PathStyle::Windows && p.size() >= 2 && p[1] == u':';
}

bool isUnc(std::u16string_view p, PathStyle style) {
    return style == PathStyle::Windows && p.size() >= 2 && p[0] == u'\\' && p[1] == u'\\';
}

// The root of an absolute path for joining below it ("C:\", "\\srv\share", "\", "/").
std::u16string stripToRoot(std::u16string_view p, PathStyle style) {
    if (hasDrive(p, style))
        return std::u16string(p.substr(0, 2)) + u'\\';
    if (isUnc(p, style)) {
        std::size_t end = p.find(u'\\', 2);
        if (end != std::u16string_view::npos)
            end = p.find(u'\\', end + 1);
        return std::u16string(p.substr(0, end));
    }
    if (!p.empty() && isSeparator(p[0], style))
        return std::u16string(1, separator(style));
    return {};
}

// "\\server\share" and nothing more: the root that a ".." must not climb out of.
bool isUncServerShare(std::u16string_view p) {
    if (p.size() < 2 || p[0] != u'\\' || p[1] != u'\\')
        return false;
    const auto separators = std::count(p.begin() + 2, p.end(), u'\\');
    return separators == 1;
}

// The shell's canonicalization works on characters, not components, and the programs this
// library serves saw its results, quirks included: "..." backs up like ".." followed by ".",
// a ".." at the start of a relative path stays, and one that runs out of path leaves a root
// "\" behind and swallows the next character. The steps below reproduce it, reading stale
// characters past the current end of the output just as the shell's in-place buffer does.
std::u16string canonicalizeShell(std::u16string_view path) {
    if (path.empty())
        return u"\\";
    std::u16string out(path.size() + 2, u'\0');
    std::size_t end = 0;
    std::size_t i = 0;
    const auto at = [&](std::size_t k) { return k < path.size() ? path[k] : u'\0'; };
    if (path[0] == u'\\') {
        out[end++] = path[i++];
    } else if (at(1) == u':') {
        out[end++] = path[i++];
        out[end++] = path[i++];
        if (at(i) == u'\\')
            out[end++] = path[i++];
    }
    while (i < path.size()) {
        const bool dot = path[i] == u'.';
        if (dot && at(i + 1) == u'\\' && (i == 0 || path[i - 1] == u'\\' || path[i - 1] == u':')) {
            i += 2;
        } else if (dot && at(i + 1) == u'.' && end > 0 && out[end - 1] == u'\\') {
            out[end] = u'\0';
            if (end > 1 && (out[end - 2] != u'\\' || end > 2)) {
                if (out[end - 2] == u':' && (end > 3 || (end == 3 && out[0] == u':'))) {
                    end -= 2;
                    while (end > 0 && out[end] != u'\\')
                        --end;
                    end = out[end] == u'\\' ? end + 1 : 0;
                } else if (out[end - 2] != u':' &&
                           !isUncServerShare(std::u16string_view(out).substr(0, end))) {
                    end -= 2;
                }
            }
            while (end > 0 && out[end] != u'\\')
                --end;
            if (end == 0) {
                out[end++] = u'\\';
                ++i;
            }
            i += 2;
        } else {
            out[end++] = path[i++];
        }
    }
    if (end == 2 && out[1] == u':')
        out[end++] = u'\\';
    out.resize(end);
    return out;
}

} // namespace

bool ignoresCase(PathStyle style) {
    return style == PathStyle::Windows;
}

bool sameNameChar(char16_t a, char16_t b, PathStyle style) {
    return ignoresCase(style) ? foldCase(a) == foldCase(b) : a == b;
}

bool isSeparator(char16_t c, PathStyle style) {
    return c == u'\\' || (style == PathStyle::Posix && c == u'/');
}

char16_t separator(PathStyle style) {
    return style == PathStyle::Windows ? u'\\' : u'/';
}

std::u16string_view untilNul(std::u16string_view s) {
    return s.substr(0, s.find(u'\0'));
}

bool isRelativePath(std::u16string_view path, PathStyle style) {
    if (path.empty())
        return true;
    if (isSeparator(path[0], style))
        return false;
    return !hasDrive(path, style);
}

bool removeFileSpec(std::u16string& path, PathStyle style) {
    const std::size_t n = path.size();
    std::size_t cut = 0;
    std::size_t i = 0;
    // A leading separator belongs to the root; on Windows a second one (UNC) too.
    if (i < n && isSeparator(path[i], style))
        cut = ++i;
    if (style == PathStyle::Windows && i < n && path[i] == u'\\')
        cut = ++i;
    while (i < n) {
        if (isSeparator(path[i], style)) {
            cut = i;
        } else if (style == PathStyle::Windows && path[i] == u':') {
            // The drive stays, with the separator of its root.
            cut = ++i;
            if (i < n && path[i] == u'\\')
                cut = i + 1;
            if (i >= n)
                break;
        }
        ++i;
    }
    if (cut >= n)
        return false;
    path.resize(cut);
    return true;
}

std::u16string canonicalize(std::u16string_view path, PathStyle style) {
    if (style == PathStyle::Windows)
        return canonicalizeShell(path);
    if (path.empty())
        return u"/";
    const std::size_t root = isSeparator(path[0], style) ? 1 : 0;
    std::u16string result = root == 1 ? u"/" : u"";

    std::vector<std::u16string_view> parts;
    std::u16string_view rest = path.substr(root);
    bool more = !rest.empty();
    while (more) {
        std::size_t end = 0;
        while (end < rest.size() && !isSeparator(rest[end], style))
            ++end;
        const std::u16string_view part = rest.substr(0, end);
        more = end < rest.size();
        rest = more ? rest.substr(end + 1) : std::u16string_view();
        if (part == u".")
            continue;
        if (part == u"..") {
            if (!parts.empty() && parts.back() != u"..")
                parts.pop_back();
            else if (root == 0)
                parts.push_back(part);
            continue;
        }
        // Doubled separators collapse; the empty part after a trailing one stays.
        if (part.empty() && more)
            continue;
        parts.push_back(part);
    }
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0)
            result += u'/';
        result += parts[i];
    }
    return result;
}

std::optional<std::u16string> combinePaths(std::u16string_view folder, std::u16string_view file,
                                           PathStyle style) {
    if (tooLong(folder.size(), style) || tooLong(file.size(), style))
        return std::nullopt;
    std::u16string joined;
    if (file.empty()) {
        joined = folder;
    } else if (folder.empty() || !isRelativePath(file, style)) {
        if (folder.empty() || !isSeparator(file[0], style) || isUnc(file, style)) {
            joined = file;
        } else {
            joined = stripToRoot(folder, style);
            if (joined.empty())
                return std::nullopt;
            if (!isSeparator(joined.back(), style))
                joined += separator(style);
            joined += file.substr(1);
        }
    } else {
        joined = folder;
        if (!isSeparator(joined.back(), style))
            joined += separator(style);
        joined += file;
    }
    std::u16string result = canonicalize(joined, style);
    if (tooLong(result.size(), style))
        return std::nullopt;
    return result;
}

bool appendPath(std::u16string& path, std::u16string_view more, PathStyle style) {
    if (!isUnc(more, style)) {
        while (!more.empty() && isSeparator(more[0], style))
            more.remove_prefix(1);
    }
    auto combined = combinePaths(path, more, style);
    if (!combined) {
        path.clear();
        return false;
    }
    path = std::move(*combined);
    return true;
}

std::size_t commonPrefix(std::u16string_view a, std::u16string_view b, PathStyle style) {
    const auto boundary = [&](std::u16string_view s, std::size_t i) {
        return i == s.size() || isSeparator(s[i], style);
    };
    std::optional<std::size_t> length;
    for (std::size_t i = 0;; ++i) {
        if (boundary(a, i) && boundary(b, i))
            length = i;
        if (i == a.size() || i == b.size() || !sameNameChar(a[i], b[i], style))
            break;
    }
    if (!length)
        return 0;
    // The separator of a root belongs to the shared part.
    if (*length == 2 && hasDrive(a, style) && a.size() > 2)
        return 3;
    if (*length == 0 && style == PathStyle::Posix && !a.empty() && !b.empty() &&
        isSeparator(a[0], style) && isSeparator(b[0], style))
        return 1;
    return *length;
}

std::optional<std::u16string> relativePathTo(std::u16string_view from, bool fromIsFolder,
                                             std::u16string_view to, bool toIsFolder,
                                             PathStyle style) {
    const char16_t sep = separator(style);
    std::u16string base(from);
    if (!fromIsFolder)
        removeFileSpec(base, style);
    std::u16string target(to);
    if (!toIsFolder)
        removeFileSpec(target, style);
    const std::size_t shared = commonPrefix(base, target, style);
    if (shared == 0)
        return std::nullopt;

    std::u16string result;
    std::u16string_view rest = std::u16string_view(base).substr(shared);
    while (!rest.empty()) {
        while (!rest.empty() && isSeparator(rest[0], style))
            rest.remove_prefix(1);
        if (rest.empty())
            break;
        std::size_t end = 0;
        while (end < rest.size() && !isSeparator(rest[end], style))
            ++end;
        if (!result.empty())
            result += sep;
        result += u"..";
        rest.remove_prefix(end);
    }
    if (result.empty())
        result.push_back(u'.');
    const std::u16string_view tail = to.substr(std::min(shared, to.size()));
    if (!tail.empty()) {
        if (!isSeparator(tail[0], style))
            result += sep;
        result += tail;
    }
    if (tooLong(result.size(), style))
        return std::nullopt;
    return result;
}

} // namespace velkor6::files
