#include "core/text.h"
#include "files/path_style.h"

#include <gtest/gtest.h>

namespace velkor6::files {
namespace {

constexpr auto Win = PathStyle::Windows;
constexpr auto Posix = PathStyle::Posix;

TEST(PathStyle, RelativeTest) {
    struct Case {
        std::u16string_view path;
        PathStyle style;
        bool relative;
    };
    const Case cases[] = {
        {u"", Win, true},
        {u"test.txt", Win, true},
        {u"\\\\folder\\test.txt", Win, false},
        {u"C:\\test.txt", Win, false},
        {u"C:foo", Win, false},
        {u"/foo", Win, true},
        {u"\\foo", Win, false},
        {u"file:///C:/test.txt", Win, true},
        {u"/foo", Posix, false},
        {u"\\foo", Posix, false},
        {u"C:foo", Posix, true},
        {u"foo/bar", Posix, true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(isRelativePath(c.path, c.style), c.relative) << toUtf8(c.path);
}

TEST(PathStyle, RemoveFileSpec) {
    struct Case {
        std::u16string_view path;
        PathStyle style;
        std::u16string_view result;
        bool removed;
    };
    const Case cases[] = {
        {u"C:\\foo\\bar.txt", Win, u"C:\\foo", true},
        {u"C:\\foo", Win, u"C:\\", true},
        {u"C:\\", Win, u"C:\\", false},
        {u"C:\\foo\\", Win, u"C:\\foo", true},
        {u"\\foo", Win, u"\\", true},
        {u"foo", Win, u"", true},
        {u"C:foo", Win, u"C:", true},
        {u"C:", Win, u"C:", false},
        {u"\\\\server\\share", Win, u"\\\\server", true},
        {u"C:\\a/b", Win, u"C:\\", true},
        {u"/a/b", Posix, u"/a", true},
        {u"/a", Posix, u"/", true},
        {u"/", Posix, u"/", false},
        {u"a\\b", Posix, u"a", true},
        {u"a", Posix, u"", true},
    };
    for (const auto& c : cases) {
        std::u16string p(c.path);
        EXPECT_EQ(removeFileSpec(p, c.style), c.removed) << toUtf8(c.path);
        EXPECT_EQ(p, c.result) << toUtf8(c.path);
    }
}

TEST(PathStyle, CanonicalizeAndAppend) {
    struct Canon {
        std::u16string_view path;
        PathStyle style;
        std::u16string_view result;
    };
    const Canon canon[] = {
        {u"", Win, u"\\"},
        {u" ", Win, u" "},
        {u"one\\two", Win, u"one\\two"},
        {u"C:\\one\\.\\..\\two\\three\\..", Win, u"C:\\two"},
        {u"C:\\one/.\\two", Win, u"C:\\one/.\\two"},
        {u"C:\\one/.\\..\\two/three\\..\\four/.five", Win, u"C:\\four/.five"},
        {u"../../one/two/", Win, u"../../one/two/"},
        // The shell's own quirks, which clients saw: a ".." that runs out of a relative path
        // leaves a root, "..." backs up, a bare drive gets its separator.
        {u"..\\..\\one\\two\\", Win, u"\\one\\two\\"},
        {u"...\\..\\x.txt", Win, u"\\x.txt"},
        {u"C:\\a\\...", Win, u"C:."},
        {u"d:", Win, u"d:\\"},
        {u".", Win, u"."},
        {u"C:\\..\\x", Win, u"C:\\x"},
        {u"/a/./b/../c", Posix, u"/a/c"},
        {u"a\\..\\..\\b", Posix, u"../b"},
        {u"/a//b/", Posix, u"/a/b/"},
        {u"/../x", Posix, u"/x"},
    };
    for (const auto& c : canon)
        EXPECT_EQ(canonicalize(c.path, c.style), c.result);

    struct Append {
        std::u16string_view path, more;
        PathStyle style;
        std::u16string_view result;
    };
    const Append appends[] = {
        {u"C:\\one", u"\\two\\three", Win, u"C:\\one\\two\\three"},
        {u"C:\\one\\", u"two\\three", Win, u"C:\\one\\two\\three"},
        {u"C:\\one", u"two\\three\\", Win, u"C:\\one\\two\\three\\"},
        {u"", u"two\\three", Win, u"two\\three"},
        {u"", u"", Win, u"\\"},
        {u"C:\\one", u"", Win, u"C:\\one"},
        {u"C: \\ one ", u"two\\three", Win, u"C: \\ one \\two\\three"},
        {u"C:", u"one\\two\\three", Win, u"C:\\one\\two\\three"},
        {u"C:\\", u"..", Win, u"C:\\"},
        {u"C:\\", u"one\\..\\two\\.\\three", Win, u"C:\\two\\three"},
        {u"C:\\", u"one/two/three\\", Win, u"C:\\one/two/three\\"},
        {u"C:\\App", u"D:\\x.ini", Win, u"D:\\x.ini"},
        {u"/app/data", u"..\\logs/run.log", Posix, u"/app/logs/run.log"},
        {u"/app", u"/x", Posix, u"/app/x"},
    };
    for (const auto& c : appends) {
        std::u16string p(c.path);
        EXPECT_TRUE(appendPath(p, c.more, c.style));
        EXPECT_EQ(p, c.result);
    }

    // Past MAX_PATH the Windows functions fail and leave nothing; POSIX has no such limit.
    std::u16string longWin = u"C:\\" + std::u16string(250, u'a');
    EXPECT_FALSE(appendPath(longWin, std::u16string(20, u'b'), Win));
    EXPECT_EQ(longWin, u"");
    std::u16string longPosix = u"/" + std::u16string(300, u'a');
    EXPECT_TRUE(appendPath(longPosix, u"b", Posix));
}

TEST(PathStyle, RelativePathTo) {
    EXPECT_EQ(commonPrefix(u"C:\\one\\two", u"C:\\one\\three", Win), 6u);
    EXPECT_EQ(commonPrefix(u"one\\.two", u"one\\.three", Win), 3u);
    EXPECT_EQ(commonPrefix(u"one\\.\\two", u"one\\.\\three", Win), 5u);
    EXPECT_EQ(commonPrefix(u"one\\..\\two", u"two", Win), 0u);
    EXPECT_EQ(commonPrefix(u"C:\\", u"C:\\", Win), 3u);
    EXPECT_EQ(commonPrefix(u"c:\\ONE\\x", u"C:\\one\\y", Win), 6u);
    EXPECT_EQ(commonPrefix(u"/One/x", u"/one/x", Posix), 1u);

    struct Case {
        std::u16string_view from;
        bool fromFolder;
        std::u16string_view to;
        bool toFolder;
        PathStyle style;
        std::optional<std::u16string_view> result;
    };
    const Case cases[] = {
        {u"C:\\a\\b", true, u"C:\\a\\c\\d.txt", false, Win, u"..\\c\\d.txt"},
        {u"C:\\a", true, u"C:\\a\\x.txt", false, Win, u".\\x.txt"},
        {u"C:\\a", true, u"C:\\a", true, Win, u"."},
        {u"c:\\FolderA\\FolderB\\FolderC", true, u"c:\\FolderA\\FolderD\\FolderE", true, Win,
         u"..\\..\\FolderD\\FolderE"},
        {u"C:\\a", true, u"D:\\b", true, Win, std::nullopt},
        {u"C:\\a\\app.ini", false, u"C:\\b.txt", false, Win, u"..\\b.txt"},
        {u"/srv/app/data", true, u"/srv/app/logs/run.log", false, Posix, u"../logs/run.log"},
        {u"/srv/app/app.ini", false, u"/srv/app/sub/a.txt", false, Posix, u"./sub/a.txt"},
        {u"/a", true, u"/b/c.txt", false, Posix, u"../b/c.txt"},
        {u"rel", true, u"/abs/x", false, Posix, std::nullopt},
    };
    for (const auto& c : cases) {
        const auto r = relativePathTo(c.from, c.fromFolder, c.to, c.toFolder, c.style);
        ASSERT_EQ(r.has_value(), c.result.has_value()) << toUtf8(c.to);
        if (r) {
            EXPECT_EQ(*r, *c.result);
        }
    }
}

} // namespace
} // namespace velkor6::files
