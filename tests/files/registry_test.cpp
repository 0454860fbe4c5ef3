#include "core/text.h"
#include "files/registry_scripts.h"
#include "lib/lib_members.h"
#include "platform/memory_registry.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>
#include <optional>
#include <tuple>

namespace velkor6 {
namespace {

using namespace std::string_literals;
using regtest::ansiScript;
using regtest::utf16Script;

constexpr RegHandle hkcu = regroot::currentUser;
constexpr RegHandle hklm = regroot::localMachine;

std::string unicodeScript() {
    return utf16Script(u"Windows Registry Editor Version 5.00\r\n"
                       u"\r\n"
                       u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Velkor]\r\n"
                       u"\"Expand\"=hex(2):25,00,54,00,45,00,4d,00,50,00,25,00,00,00\r\n"
                       u"\"Multi\"=hex(7):61,00,00,00,62,00,00,00,00,00\r\n"
                       u"\"Text\"=\"Grüße\"\r\n"
                       u"\"Cyrillic\"=\"Жук\"\r\n"
                       u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Velkor\\LЖ]\r\n"
                       u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Velkor\\Zebra]\r\n"
                       u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Velkor\\Later]\r\n");
}

std::unique_ptr<MemoryRegistry> loadedRegistry() {
    auto reg = std::make_unique<MemoryRegistry>();
    EXPECT_TRUE(reg->load(ansiScript()));
    EXPECT_TRUE(reg->load(unicodeScript()));
    return reg;
}

lib libOver(std::unique_ptr<Registry> reg, const Locale& loc = Locale::englishUS()) {
    auto platform = std::make_unique<Platform>();
    platform->registry = std::move(reg);
    return lib(std::make_shared<Module>(std::move(platform), loc));
}

std::optional<RegValue> query(Registry& reg, RegHandle root, std::u16string_view path,
                              std::u16string_view name, std::size_t capacity = 1024) {
    const Registry::Key key = reg.open(root, path, regaccess::queryValue);
    RegValue value;
    if (!key || reg.queryValue(key.handle(), name, capacity, value) != regstatus::success)
        return std::nullopt;
    return value;
}

std::vector<std::u16string> texts(const VariantArray& a) {
    std::vector<std::u16string> out;
    for (const Variant& v : a.items)
        out.push_back(v.string());
    return out;
}

TEST(RegistryScripts, ReadEveryValueFormOfBothFormats) {
    const auto reg = loadedRegistry();
    struct Case {
        RegHandle root;
        std::u16string_view path;
        std::u16string_view name;
        std::uint32_t type;
        std::string data;
    };
    const std::u16string_view test = u"software\\velkor test";
    const Case cases[] = {
        {hkcu, test, u"", regtype::sz, "default text\0"s},
        {hkcu, test, u"TEXT", regtype::sz, "say \"hi\" C:\\temp\0"s},
        {hkcu, test, u"Umlaut", regtype::sz, "Gr\xFC\xDF\x65\0"s},
        {hkcu, test, u"Dword", regtype::dword, "\xFF\xFF\xFF\xFF"s},
        {hkcu, test, u"Bin", regtype::binary, "AB\0C"s},
        {hkcu, test, u"Expand", regtype::expandSz, "%TEMP%\0"s},
        {hkcu, test, u"Multi", regtype::multiSz, "a\0b\0\0"s},
        {hkcu, test, u"Qword", regtype::qword, "\x01\0\0\0\0\0\0\0"s},
        // The same data written in the newer format reads the same through the ANSI functions.
        {hklm, u"SOFTWARE\\Velkor", u"Expand", regtype::expandSz, "%TEMP%\0"s},
        {hklm, u"SOFTWARE\\Velkor", u"Multi", regtype::multiSz, "a\0b\0\0"s},
        {hklm, u"SOFTWARE\\Velkor", u"Text", regtype::sz, "Gr\xFC\xDF\x65\0"s},
        {hklm, u"SOFTWARE\\Velkor", u"Cyrillic", regtype::sz, "???\0"s},
        {regroot::classesRoot, u".VKR", u"", regtype::sz, "velkor.file\0"s},
    };
    for (const Case& c : cases) {
        const auto value = query(*reg, c.root, c.path, c.name);
        ASSERT_TRUE(value.has_value()) << toUtf8(c.name);
        EXPECT_EQ(value->type, c.type) << toUtf8(c.name);
        EXPECT_EQ(value->data, c.data) << toUtf8(c.name);
    }
}

TEST(RegistryScripts, SkipWhatTheyCannotReadAndApplyDeletions) {
    MemoryRegistry reg;
    EXPECT_FALSE(reg.load("[HKEY_CURRENT_USER\\x]\r\n\"a\"=\"b\"\r\n"));
    EXPECT_FALSE(reg.load(""));
    // UTF-8 without a mark, as editors on Linux save it; a later script overrides an earlier one.
    ASSERT_TRUE(reg.load("Windows Registry Editor Version 5.00\n"
                         "\"Orphan\"=\"before any key\"\n"
                         "[HKEY_NOWHERE\\Soft]\n"
                         "\"Lost\"=\"x\"\n"
                         "[HKCU\\Soft]\n"
                         "\"BadHex\"=hex:zz,01\n"
                         "\"Open\"=\"no end\n"
                         "\"Kept\"=dword:1 ; trailing comment\n"
                         "\"Drop\"=\"x\"\n"
                         "\"Name\"=\"Gr\xC3\xBC\xC3\x9F\x65\"\n"
                         "[HKCU\\Soft\\Gone\\Deep]\n"));
    ASSERT_TRUE(
        reg.load("REGEDIT4\n[-HKEY_CURRENT_USER\\Soft\\Gone]\n[-HKCU\\Never\\There]\n[HKCU\\Soft]\n"
                 "\"Drop\"=-\n\"Kept\"=dword:00000002\n"));

    EXPECT_FALSE(reg.open(regroot::currentUser, u"Soft\\Gone", regaccess::queryValue));
    EXPECT_FALSE(reg.open(regroot::currentUser, u"Never", regaccess::queryValue));
    EXPECT_FALSE(query(reg, hkcu, u"Soft", u"Drop"));
    EXPECT_FALSE(query(reg, hkcu, u"Soft", u"BadHex"));
    EXPECT_FALSE(query(reg, hkcu, u"Soft", u"Open"));
    EXPECT_FALSE(query(reg, hkcu, u"Soft", u"Orphan"));
    EXPECT_EQ(query(reg, hkcu, u"Soft", u"Kept")->data, "\x02\0\0\0"s);
    EXPECT_EQ(query(reg, hkcu, u"Soft", u"Name")->data, "Gr\xFC\xDF\x65\0"s);
}

TEST(MemoryRegistry, OpensQueriesAndEnumeratesLikeTheAnsiFunctions) {
    const auto reg = loadedRegistry();
    std::int32_t status = -1;
    const auto openStatus = [&](RegHandle parent, std::u16string_view path,
                                std::uint32_t access = regaccess::queryValue) {
        reg->open(parent, path, access, &status);
        return status;
    };
    EXPECT_EQ(openStatus(hkcu, u"SOFTWARE\\VELKOR TEST\\\\"), regstatus::success);
    EXPECT_EQ(openStatus(hkcu, u"\\Software"), regstatus::badPathname);
    EXPECT_EQ(openStatus(regroot::classesRoot, u"\\.vkr"), regstatus::success);
    EXPECT_EQ(openStatus(hkcu, u"Software\\\\Velkor Test"), regstatus::badPathname);
    EXPECT_EQ(openStatus(hkcu, u"Software\\Nothing"), regstatus::fileNotFound);
    EXPECT_EQ(openStatus(hkcu, u"Software", regaccess::setValue), regstatus::accessDenied);
    EXPECT_EQ(openStatus(12345, u"Software"), regstatus::invalidHandle);
    EXPECT_EQ(reg->open(hkcu, u"", regaccess::queryValue).handle(), hkcu);
    // Names the code page cannot hold come back as "?" and no longer open.
    EXPECT_EQ(openStatus(hklm, u"SOFTWARE\\Velkor\\LЖ"), regstatus::fileNotFound);

    {
        const Registry::Key key =
            reg->open(hkcu, u"Software\\Velkor Test\\Pair", regaccess::enumerateSubKeys);
        ASSERT_TRUE(key);
        EXPECT_EQ(reg->openKeyCount(), 1u);
        std::u16string name;
        EXPECT_EQ(reg->enumKey(key.handle(), 0, 255, name), regstatus::success);
        EXPECT_EQ(name, u"Alpha");
        EXPECT_EQ(reg->enumKey(key.handle(), 1, 255, name), regstatus::success);
        EXPECT_EQ(name, u"beta");
        EXPECT_EQ(reg->enumKey(key.handle(), 2, 255, name), regstatus::noMoreItems);
        EXPECT_EQ(reg->enumKey(key.handle(), 0, 5, name), regstatus::moreData);
        RegValue value;
        EXPECT_EQ(reg->queryValue(key.handle(), u"", 1024, value), regstatus::accessDenied);
    }
    EXPECT_EQ(reg->openKeyCount(), 0u);

    RegValue value;
    const Registry::Key test = reg->open(hkcu, u"Software\\Velkor Test", regaccess::queryValue);
    EXPECT_EQ(reg->queryValue(test.handle(), u"Long1024", 1024, value), regstatus::moreData);
    EXPECT_EQ(value.type, regtype::sz);
    EXPECT_EQ(reg->queryValue(test.handle(), u"Long1023", 1024, value), regstatus::success);
    EXPECT_EQ(value.data.size(), 1024u);
}

TEST(RegistryMembers, ReadValuesWithTheirDefaults) {
    lib l = libOver(loadedRegistry());
    const std::u16string_view key = u"Software\\Velkor Test";

    // Name, default, result.
    const std::tuple<std::u16string_view, std::u16string_view, std::u16string> strings[] = {
        {u"Missing", u"abc", u"abc"},
        {u"Empty", u"abc", u""},
        {u"", u"abc", u"default text"},
        {u"Text", u"", u"say \"hi\" C:\\temp"},
        {u"Umlaut", u"", u"Grüße"},
        {u"Dword", u"abc", u"-1"},
        {u"Bin", u"", u"AB\0C"s},
        {u"Expand", u"", u"%TEMP%"},
        {u"Multi", u"abc", u""},
        {u"Qword", u"abc", u""},
        {u"Long1023", u"abc", std::u16string(1023, u'x')},
        {u"Long1024", u"abc", u"abc"},
    };
    for (const auto& [name, defaultValue, expected] : strings)
        EXPECT_EQ(l.regGetString(hkcu, key, name, defaultValue), expected) << toUtf8(name);
    EXPECT_EQ(l.regGetString(hkcu, u"Software\\Nothing", u"Text", u"abc"), u"abc");

    const std::pair<std::u16string_view, std::int32_t> longs[] = {
        {u"Number", 42}, {u"Dword", -1}, {u"Short", 65535}, {u"Big", 1},      {u"Word", 0},
        {u"Empty", 0},   {u"Multi", 0},  {u"Missing", 7},   {u"Decimal", 25},
    };
    for (const auto& [name, expected] : longs)
        EXPECT_EQ(l.regGetLong(hkcu, key, name, 7), expected) << toUtf8(name);
    // Numeric text is read in the user's locale: "2,5" is 2.5 in German, rounded half to even.
    lib german = libOver(loadedRegistry(), Locale::germanGermany());
    EXPECT_EQ(german.regGetLong(hkcu, key, u"Decimal"), 2);

    EXPECT_EQ(l.regGetValue(hkcu, key, u"Dword"), Variant(std::int32_t{-1}));
    EXPECT_EQ(l.regGetValue(hkcu, key, u"Number"), Variant(u"42"));
    EXPECT_EQ(l.regGetValue(hkcu, key, u"Missing"), Variant(u""));
    EXPECT_EQ(l.regGetValue(hkcu, key, u"Missing", Variant(2.5)), Variant(2.5));
    EXPECT_EQ(l.regGetValue(hkcu, key, u"Multi", Variant(2.5)), Variant(u""));

    // Without a registry service nothing opens.
    lib bare = libOver(nullptr);
    EXPECT_EQ(bare.regGetString(hkcu, key, u"Text", u"abc"), u"abc");
    EXPECT_EQ(bare.regSubKeyCount(hkcu, key), 0);
}

TEST(RegistryMembers, CountAndListSubKeys) {
    auto owned = loadedRegistry();
    MemoryRegistry& reg = *owned;
    lib l = libOver(std::move(owned));
    const std::u16string test = u"Software\\Velkor Test";

    EXPECT_EQ(l.regSubKeyCount(hkcu, test + u"\\Tree"), 4);
    EXPECT_EQ(l.regSubKeyCount(hkcu, test + u"\\Pair"), 3);
    EXPECT_EQ(l.regSubKeyCount(hkcu, test + u"\\Leaf"), 1);
    EXPECT_EQ(l.regSubKeyCount(hkcu, test + u"\\Nothing"), 0);
    // "\" + name does not open below a root, so the first sub-key ends the counting.
    EXPECT_EQ(l.regSubKeyCount(hkcu, u""), 1);
    // "LЖ" comes back as "L?", which does not open, and ends the counting before Zebra.
    EXPECT_EQ(l.regSubKeyCount(hklm, u"SOFTWARE\\Velkor"), 2);
    // The counting leaves its keys open: Tree, alpha, One, Two.
    const std::size_t before = reg.openKeyCount();
    l.regSubKeyCount(hkcu, test + u"\\Tree");
    EXPECT_EQ(reg.openKeyCount(), before + 4);

    VariantArray keys;
    l.regFindKeys(hkcu, test + u"\\Pair", keys);
    EXPECT_EQ(texts(keys), (std::vector<std::u16string>{u"Alpha", u"beta"}));
    EXPECT_EQ(keys.element, VarType::String);
    EXPECT_EQ(keys.bounds, (std::vector<ArrayBound>{{0, 2}}));
    l.regFindKeys(hkcu, test + u"\\Piped", keys);
    EXPECT_EQ(texts(keys), (std::vector<std::u16string>{u"a", u"b", u"c"}));
    l.regFindKeys(hklm, u"SOFTWARE\\Velkor", keys);
    EXPECT_EQ(texts(keys), (std::vector<std::u16string>{u"Later", u"L?", u"Zebra"}));
    l.regFindKeys(hkcu, test + u"\\Leaf", keys);
    EXPECT_TRUE(keys.items.empty());
    EXPECT_EQ(keys.bounds, (std::vector<ArrayBound>{{0, 0}}));
    keys = Variant::array({Variant(u"kept")}, VarType::String).array();
    l.regFindKeys(hkcu, test + u"\\Nothing", keys);
    EXPECT_EQ(texts(keys), (std::vector<std::u16string>{u"kept"}));
}

TEST(RegistryMembers, ReachableByName) {
    lib l = libOver(loadedRegistry());
    const auto& table = dispatch::libMembers();
    Variant root(hkcu);
    Variant path(u"Software\\Velkor Test\\Pair");
    Variant keys = Variant::array({});
    std::vector<dispatch::Argument> args = {{&root, {}}, {&path, {}}, {&keys, {}}};
    dispatch::invoke(table, l, u"REGFINDKEYS", CallKind::Method, args, l.locale());
    ASSERT_TRUE(keys.isArray());
    EXPECT_EQ(texts(keys.array()), (std::vector<std::u16string>{u"Alpha", u"beta"}));

    Variant name(u"Missing");
    Variant fallback(std::int16_t{9});
    std::vector<dispatch::Argument> named = {
        {&root, {}}, {&path, {}}, {&name, {}}, {&fallback, u"lDefaultValue"}};
    EXPECT_EQ(dispatch::invoke(table, l, u"regGetLong", CallKind::Method, named, l.locale()),
              Variant(std::int32_t{9}));
    named.pop_back();
    EXPECT_EQ(dispatch::invoke(table, l, u"regGetValue", CallKind::Method, named, l.locale()),
              Variant(u""));
}

} // namespace
} // namespace velkor6
