// Searches, rewrites and rounds with velkor6, and shows how its errors arrive.
#include <cstdint>
#include <iostream>
#include <string>
#include <string_view>
#include <velkor6/lib.h>
#include <velkor6/vb_error.h>

namespace {

// The library's text is UTF-16, as the automation clients it serves hold it.
std::string utf8(std::u16string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (c >= 0xD800 && c < 0xDC00 && i + 1 < text.size())
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00);
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

} // namespace

int main() {
    // One module per process: it holds what the library keeps while it is loaded.
    velkor6::lib lib(velkor6::Module::createDefault());

    const std::u16string sql = u"Select a, b FROM t WHERE a = 1";
    std::u16string found;
    const std::int16_t at = lib.vkrFindSubString(sql, u"from|where", 1, true, true, false, &found);
    std::cout << "first keyword: " << utf8(found) << " at " << at << '\n';

    std::cout << "rewritten: "
              << utf8(lib.vkrReplaceInString(sql, u"a", u"x", 1, true, false, true, true)) << '\n';
    std::cout << "words: " << lib.vkrCountSubString(u"one two one", u"one") << '\n';

    try {
        // A date literal for SQL needs a date, or text that reads as one.
        lib.vkrSQLDate(velkor6::Variant(u"abc"));
    } catch (const velkor6::VbError& e) {
        std::cout << "error " << e.number() << ": " << utf8(e.description()) << '\n';
    }
}
