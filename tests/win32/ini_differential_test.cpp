// The portable INI reader and writer against the system's private-profile functions, on the
// same generated files: small files made of the lines that matter (headers in other case and
// with blanks, quotes, lines without "=", comments, the three line ends, duplicates), a few
// lookups on each and one write. A difference that one of the reasons below accounts for is
// counted under it; any other difference fails the test.
// clang-format off
#include <windows.h>
// clang-format on

#include "applib/ini_document.h"
#include "applib/profile_file.h"
#include "core/text.h"
#include "platform/ansi.h"
#include "platform/win32/wide.h"
#include "velkor6/platform/platform.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <initializer_list>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace velkor6::app {
namespace {

namespace fs = std::filesystem;
using win32::fromWide;
using win32::wide;

struct Lookup {
    std::u16string section, key, fallback;
};

struct Change {
    std::u16string section, key;
    std::optional<std::u16string> value; // nullopt deletes
};

struct Case {
    std::optional<std::u16string> text; // nullopt: there is no file
    bool utf8 = false;                  // with a byte-order mark; else the ANSI code page
    std::vector<Lookup> lookups;
    Change change;
};

template <class T, std::size_t N>
const T& pick(std::mt19937& random, const T (&items)[N]) {
    return items[std::uniform_int_distribution<std::size_t>(0, N - 1)(random)];
}

bool chance(std::mt19937& random, int percent) {
    return std::uniform_int_distribution<int>(0, 99)(random) < percent;
}

const std::u16string headers[] = {
    u"[App]",       u"[app]",         u"[ APP ]",      u"[\tApp]  ; note", u"[Other]",
    u"[Two Words]", u"[ two words ]", u"[\u00C4pfel]", u"[\u00E4pfel]",    u"[App"};
const std::u16string entries[] = {u"key=plain",
                                  u"  Key  =  spaced value  \t",
                                  u"KEY=upper",
                                  u"key=\"double\"",
                                  u"key='single'",
                                  u"key=\"mixed'",
                                  u"key=\"",
                                  u"key= \" inner \" ",
                                  u"key=",
                                  u"key",
                                  u"key==x",
                                  u"other=o\x1A",
                                  u"other = \"a\" b \"c\"",
                                  u";key=comment",
                                  u"; a comment",
                                  u"k2=\u00E4\u20AC",
                                  u"\u00C4pfel=upper",
                                  u"\u00E4pfel=lower",
                                  u"=nameless",
                                  u"",
                                  u"   "};
const std::u16string sectionNames[] = {u"App",       u"app",        u"  APP ",     u"Other",
                                       u"two words", u"Two  Words", u"\u00E4pfel", u"\u00C4PFEL",
                                       u"Missing",   u"[App"};
const std::u16string keyNames[] = {u"key",        u"KEY",  u" key\t",      u"other",  u"k2",
                                   u"\u00E4pfel", u";key", u"; a comment", u"missing"};
const std::u16string blankNames[] = {u"", u"  "};
const std::u16string fallbacks[] = {u"", u"def"};
const std::u16string fallbacksWithBlanks[] = {u"def  ", u"  two words \t"};
const std::optional<std::u16string> newValues[] = {u"new",      u"  padded  ", u"\"quoted\"",
                                                   u"'single'", u"",           u"\u00E4\u20AC",
                                                   u"x=y",      std::nullopt,  std::nullopt};

std::u16string lineEnd(std::mt19937& random, int style) {
    static const std::u16string ends[] = {u"\r\n", u"\n", u"\r"};
    return style < 3 ? ends[style] : pick(random, ends);
}

Case generatedCase(std::mt19937& random) {
    Case c;
    if (!chance(random, 3)) {
        // CR LF, LF, CR only, or mixed.
        const int style = std::uniform_int_distribution<int>(0, 3)(random);
        std::vector<std::u16string> lines;
        const int before = chance(random, 15) ? 1 : 0;
        for (int i = 0; i < before; ++i)
            lines.push_back(pick(random, entries));
        const int sections = std::uniform_int_distribution<int>(0, 4)(random);
        for (int s = 0; s < sections; ++s) {
            lines.push_back(chance(random, 3) ? u"[]" : pick(random, headers));
            const int n = std::uniform_int_distribution<int>(0, 4)(random);
            for (int i = 0; i < n; ++i)
                lines.push_back(pick(random, entries));
        }
        std::u16string text;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            text += lines[i];
            if (i + 1 < lines.size() || !chance(random, 25))
                text += lineEnd(random, style);
        }
        c.text = text;
        c.utf8 = chance(random, 10);
    }
    // Blank names and defaults with trailing blanks are rare: their differences are few kinds.
    const auto section = [&random] {
        return chance(random, 3) ? pick(random, blankNames) : pick(random, sectionNames);
    };
    const auto key = [&random] {
        return chance(random, 3) ? pick(random, blankNames) : pick(random, keyNames);
    };
    for (int i = 0; i < 4; ++i) {
        const std::u16string s = section();
        const std::u16string k = key();
        c.lookups.push_back(
            {s, k,
             chance(random, 10) ? pick(random, fallbacksWithBlanks) : pick(random, fallbacks)});
    }
    const std::u16string s = section();
    const std::u16string k = key();
    c.change = {s, k, pick(random, newValues)};
    return c;
}

std::string encoded(const std::u16string& text, bool utf8) {
    const std::wstring w = wide(text);
    const UINT page = utf8 ? CP_UTF8 : CP_ACP;
    const int n = WideCharToMultiByte(page, 0, w.data(), static_cast<int>(w.size()), nullptr, 0,
                                      nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(n), '\0');
    WideCharToMultiByte(page, 0, w.data(), static_cast<int>(w.size()), bytes.data(), n, nullptr,
                        nullptr);
    return utf8 ? "\xEF\xBB\xBF" + bytes : bytes;
}

std::optional<std::string> contentOf(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

// Letters beyond A-Z in small letters, so that names differing only in their case are equal.
std::u16string foldedBeyondAscii(std::u16string s) {
    for (char16_t& c : s) {
        if (c >= 0x80)
            c = toLower(c);
    }
    return s;
}

Case foldedBeyondAscii(Case c) {
    if (c.text)
        c.text = foldedBeyondAscii(*c.text);
    for (Lookup& l : c.lookups) {
        l.section = foldedBeyondAscii(l.section);
        l.key = foldedBeyondAscii(l.key);
    }
    c.change.section = foldedBeyondAscii(c.change.section);
    c.change.key = foldedBeyondAscii(c.change.key);
    return c;
}

Case withDefaultsTrimmed(Case c) {
    for (Lookup& l : c.lookups)
        l.fallback.erase(l.fallback.find_last_not_of(u" \t") + 1);
    return c;
}

Case withNamesTrimmed(Case c) {
    c.change.section = trimProfileBlanks(c.change.section);
    c.change.key = trimProfileBlanks(c.change.key);
    return c;
}

// Headers "[]" named "[-]".
Case withEmptyHeadersNamed(Case c) {
    if (c.text) {
        for (std::size_t at = c.text->find(u"[]"); at != std::u16string::npos;
             at = c.text->find(u"[]", at))
            c.text->replace(at, 2, u"[-]");
    }
    return c;
}

bool blank(std::u16string_view name) {
    return trimProfileBlanks(name).empty();
}

std::u16string shown(std::u16string_view s) {
    static constexpr char16_t hexDigits[] = u"0123456789ABCDEF";
    std::u16string out;
    for (const char16_t c : s) {
        if (c == u'\r')
            out += u"\\r";
        else if (c == u'\n')
            out += u"\\n";
        else if (c == u'\t')
            out += u"\\t";
        else if (c < 0x20)
            out += {u'\\', u'x', hexDigits[c >> 4], hexDigits[c & 0xF]};
        else
            out += c;
    }
    return out;
}

std::string shown(const std::optional<std::string>& bytes) {
    return bytes ? toUtf8(shown(fromAnsi(*bytes))) : "(no file)";
}

// Each case in a file of its own: the system's reader keeps recently read files and trusts
// their time stamps, which a quick rewrite under one name need not change.
class Files {
public:
    Files() {
        // Under Wine, a folder in memory: on disk, every write and deletion waits for it.
        const fs::path memory = L"Z:\\dev\\shm";
        std::error_code ec;
        folder_ = (fs::is_directory(memory, ec) ? memory : fs::temp_directory_path()) /
                  ("velkor6-ini-" + std::to_string(GetCurrentProcessId()));
        fs::create_directories(folder_);
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    ~Files() {
        std::error_code ec;
        fs::remove_all(folder_, ec);
    }

    // A new file with the case's bytes (or none, if the case has no file).
    fs::path place(const Case& c) {
        const fs::path path = folder_ / ("f" + std::to_string(next_++) + ".ini");
        if (c.text) {
            std::ofstream out(path, std::ios::binary);
            out << encoded(*c.text, c.utf8);
        }
        return path;
    }

private:
    fs::path folder_;
    unsigned next_ = 0;
};

void removeFile(const fs::path& path) {
    std::error_code ec;
    fs::remove(path, ec);
}

std::u16string ourRead(const std::optional<IniDocument>& document, const Lookup& l) {
    if (!document)
        return l.fallback;
    return document->value(l.section, l.key).value_or(l.fallback);
}

std::u16string systemRead(const fs::path& path, const Lookup& l) {
    std::vector<wchar_t> buffer(4096);
    const DWORD n = GetPrivateProfileStringW(
        wide(l.section).c_str(), wide(l.key).c_str(), wide(l.fallback).c_str(), buffer.data(),
        static_cast<DWORD>(buffer.size()), path.wstring().c_str());
    return fromWide(std::wstring_view(buffer.data(), n));
}

// The file as the system's reader understands it: every section it lists, with its entries.
std::u16string systemView(const fs::path& path) {
    std::vector<wchar_t> buffer(65536);
    const auto list = [&buffer](DWORD n) {
        std::vector<std::wstring> items;
        for (const wchar_t* p = buffer.data(); p < buffer.data() + n && *p != 0;
             p += std::wcslen(p) + 1)
            items.emplace_back(p);
        return items;
    };
    const std::wstring file = path.wstring();
    auto names = list(GetPrivateProfileSectionNamesW(
        buffer.data(), static_cast<DWORD>(buffer.size()), file.c_str()));
    names.insert(names.begin(), L"");
    std::u16string view;
    for (const std::wstring& name : names) {
        view += u"[" + fromWide(name) + u"]\n";
        const DWORD n = GetPrivateProfileSectionW(name.c_str(), buffer.data(),
                                                  static_cast<DWORD>(buffer.size()), file.c_str());
        for (const std::wstring& entry : list(n))
            view += fromWide(entry) + u"\n";
    }
    return view;
}

struct Reason {
    const char* name;
    const char* why;
};

const Reason blankName = {
    "deliberate: blank section or key name",
    "such a name reads the default and writes nothing, as Wine's own tests expect of an empty "
    "section or key name; Wine itself reads the lines before the first header as a section named "
    "\"\" and the line \"=x\" as a key named \"\", and writes such names"};
const Reason defaultAsGiven = {
    "deliberate: the default comes back as given",
    "the settings accessors return the caller's default unchanged; the system function drops "
    "its trailing blanks"};
const Reason caseBeyondAscii = {
    "deliberate: case of letters beyond A-Z",
    "names compare without case for every letter, as VB's text comparison does; Wine's profile "
    "functions ignore the case of A-Z only"};
const Reason layout = {
    "deliberate: layout of a rewritten file",
    "the writer changes only the line concerned and keeps the bytes of every other line; Wine "
    "writes the whole file anew from what it has read (CR LF line ends, no blank lines, no blanks "
    "around the names, \"=\" and values it read), where Windows keeps what it does not change "
    "(Wine's own tests expect the bytes before the first section to survive, and Wine fails them)"};
const Reason emptyFileLeft = {
    "deliberate: deleting from a missing file leaves an empty file",
    "the writer takes its lock on the file and so creates it, as Windows leaves an empty file "
    "behind; Wine creates none (its tests mark that as a Wine bug)"};

const Reason untrimmedDelete = {
    "deliberate: a deletion trims the names",
    "a deletion finds its section and key with the blanks around the names dropped, as a read "
    "and a write do; Wine deletes only where the names match as given"};
const Reason emptyHeader = {
    "deliberate: a header \"[]\" stays",
    "the writer keeps the line \"[]\"; Wine writes the section it names without a header, so "
    "that its keys join the section before it when the file is read again"};
const Reason several = {"deliberate: several of these reasons at once",
                        "the difference goes only when the changes of more than one of the "
                        "reasons above are made together"};

struct Explanation {
    const Reason* reason;
    Case (*change)(Case);
};

// The reason whose change to the case makes the difference go, or several of them together;
// nullptr when none does.
template <class Agrees>
const Reason* explanation(const Case& c, std::initializer_list<Explanation> options,
                          Agrees agrees) {
    for (const Explanation& e : options) {
        if (agrees(e.change(c)))
            return e.reason;
    }
    Case all = c;
    for (const Explanation& e : options)
        all = e.change(std::move(all));
    return agrees(all) ? &several : nullptr;
}

class Tally {
public:
    explicit Tally(const char* function) : function_(function) {}

    void same() { ++cases_; }
    void explained(const Reason& reason) {
        ++cases_;
        for (auto& [r, count] : explained_) {
            if (r == &reason) {
                ++count;
                return;
            }
        }
        explained_.emplace_back(&reason, 1);
    }
    void unexplained(const std::string& detail) {
        ++cases_;
        if (++unexplained_ <= 10)
            std::printf("  %s: %s\n", function_, detail.c_str());
    }

    void report() const {
        std::size_t differences = unexplained_;
        for (const auto& e : explained_)
            differences += e.second;
        std::printf("%s: %zu cases, %zu differences, %zu unexplained\n", function_, cases_,
                    differences, unexplained_);
        for (const auto& [reason, count] : explained_)
            std::printf("  %zu %s (%s)\n", count, reason->name, reason->why);
        EXPECT_EQ(unexplained_, 0u) << function_;
    }

private:
    const char* function_;
    std::size_t cases_ = 0;
    std::size_t unexplained_ = 0;
    std::vector<std::pair<const Reason*, std::size_t>> explained_;
};

class IniDifferential : public ::testing::Test {
protected:
    std::unique_ptr<Platform> platform_ = Platform::createNative();
    ProfileFile ours_{*platform_};
    Files files_;

    // The file as our reader has it; nullopt when there is none.
    std::optional<IniDocument> ourDocument(const fs::path& path) {
        const auto bytes = platform_->fileSystem->readFile(path.u16string());
        return bytes ? std::optional<IniDocument>(*bytes) : std::nullopt;
    }

    // Both readers on the case's file; the system's answer first.
    std::pair<std::u16string, std::u16string> readBoth(const Case& c, const Lookup& l) {
        const fs::path path = files_.place(c);
        std::pair result(systemRead(path, l), ourRead(ourDocument(path), l));
        removeFile(path);
        return result;
    }

    enum class Outcome { Same, SameMeaning, Differ };
    struct Written {
        Outcome outcome = Outcome::Differ;
        bool systemOk = false, ourOk = false;
        std::optional<std::string> systemBytes, ourBytes;
    };

    // The case's change by both writers, each on its own copy of the file.
    Written writeBoth(const Case& c) {
        const Change& w = c.change;
        const fs::path system = files_.place(c);
        const fs::path ours = files_.place(c);
        const std::wstring value = w.value ? wide(*w.value) : std::wstring();
        Written result;
        result.systemOk = WritePrivateProfileStringW(wide(w.section).c_str(), wide(w.key).c_str(),
                                                     w.value ? value.c_str() : nullptr,
                                                     system.wstring().c_str()) != FALSE;
        result.ourOk = ours_.write(ours.u16string(), w.section, w.key, w.value);
        result.systemBytes = contentOf(system);
        result.ourBytes = contentOf(ours);
        if (result.systemOk == result.ourOk && result.systemBytes == result.ourBytes)
            result.outcome = Outcome::Same;
        else if (result.systemOk == result.ourOk && result.systemBytes && result.ourBytes &&
                 systemView(system) == systemView(ours))
            result.outcome = Outcome::SameMeaning;
        removeFile(system);
        removeFile(ours);
        return result;
    }
};

std::string describe(const Case& c) {
    return "file \"" + (c.text ? toUtf8(shown(*c.text)) : std::string("(none)")) + "\"";
}

std::string describe(const Lookup& l) {
    return "[" + toUtf8(l.section) + "] \"" + toUtf8(l.key) + "\" default \"" + toUtf8(l.fallback) +
           "\"";
}

TEST_F(IniDifferential, ReadsAndWritesAgreeWithTheProfileFunctions) {
    Tally reads("GetPrivateProfileString");
    Tally writes("WritePrivateProfileString");
    std::mt19937 random(7);
    for (int n = 0; n < 2000; ++n) {
        const Case c = generatedCase(random);

        const fs::path path = files_.place(c);
        const auto document = ourDocument(path);
        for (std::size_t i = 0; i < c.lookups.size(); ++i) {
            const Lookup& l = c.lookups[i];
            const std::u16string system = systemRead(path, l);
            const std::u16string ours = ourRead(document, l);
            if (system == ours) {
                reads.same();
                continue;
            }
            if (blank(l.section) || blank(l.key)) {
                reads.explained(blankName);
                continue;
            }
            const auto agrees = [&](const Case& t) {
                const auto [theirs, mine] = readBoth(t, t.lookups[i]);
                return theirs == mine;
            };
            if (const Reason* reason = explanation(
                    c,
                    {{&defaultAsGiven, withDefaultsTrimmed}, {&caseBeyondAscii, foldedBeyondAscii}},
                    agrees)) {
                reads.explained(*reason);
                continue;
            }
            reads.unexplained(describe(c) + " " + describe(l) + ": system \"" +
                              toUtf8(shown(system)) + "\", ours \"" + toUtf8(shown(ours)) + "\"");
        }
        removeFile(path);

        const Written written = writeBoth(c);
        const Change& w = c.change;
        const auto agrees = [&](const Case& t) { return writeBoth(t).outcome != Outcome::Differ; };
        if (written.outcome == Outcome::Same)
            writes.same();
        else if (blank(w.section) || blank(w.key))
            writes.explained(blankName);
        else if (written.outcome == Outcome::SameMeaning)
            writes.explained(layout);
        else if (!c.text && !w.value && !written.systemBytes && written.ourBytes == "")
            writes.explained(emptyFileLeft);
        else if (const Reason* reason = explanation(c,
                                                    {{&untrimmedDelete, withNamesTrimmed},
                                                     {&emptyHeader, withEmptyHeadersNamed},
                                                     {&caseBeyondAscii, foldedBeyondAscii}},
                                                    agrees))
            writes.explained(*reason);
        else
            writes.unexplained(describe(c) + " [" + toUtf8(w.section) + "] \"" + toUtf8(w.key) +
                               "\" = " + (w.value ? "\"" + toUtf8(*w.value) + "\"" : "(delete)") +
                               ": system " + std::to_string(written.systemOk) + " \"" +
                               shown(written.systemBytes) + "\", ours " +
                               std::to_string(written.ourOk) + " \"" + shown(written.ourBytes) +
                               "\"");
    }
    reads.report();
    writes.report();
}

} // namespace
} // namespace velkor6::app
