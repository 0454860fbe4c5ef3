// The text members with any texts, positions and lengths; the errors they raise are results.
#include "text/text_members.h"

#include "fuzz_input.h"
#include "velkor6/vb_error.h"

using namespace velkor6;
using namespace velkor6::text;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    const auto start = in.number<std::int16_t>();
    const auto length = in.number<std::int16_t>();
    const auto flags = in.number<std::uint8_t>();
    const auto flag = [flags](int bit) { return (flags >> bit & 1) != 0; };
    const std::u16string source = in.text();
    const std::u16string find = in.text();
    const std::u16string other = in.text();
    const std::u16string signs = in.text();
    const Locale& loc = Locale::englishUS();

    auto guarded = [](auto call) {
        try {
            call();
        } catch (const VbError&) {
        }
    };
    guarded([&] {
        std::u16string found;
        vkrFindSubString(source, find, start, flag(0), flag(1), flag(2), &found);
    });
    guarded([&] { vkrFindLastSubString(source, find, start, flag(0)); });
    guarded([&] { vkrHasSubString(source, find, start, flag(0)); });
    guarded([&] { vkrCountSubString(source, find, start, flag(0)); });
    guarded([&] { vkrCountSubStringExt(source, find, start, flag(0), signs); });
    guarded([&] { vkrGetSubString(source, find, other, start, flag(0), flag(1)); });
    guarded([&] {
        std::u16string before, term, after;
        vkrSeparateString(source, find, before, term, after, start, flag(0));
    });
    guarded([&] {
        vkrReplaceInString(source, find, other, start, flag(0), flag(1), flag(2), flag(3));
    });
    guarded([&] {
        vkrReplaceInStringExt(source, find, other, loc, start, flag(0), flag(1), flag(2), flag(4),
                              flag(5), signs);
    });
    guarded([&] { vkrIsInSigns(source, signs, start, length); });
    guarded([&] { vkrIsNumericWord(source, start, length, loc); });
    guarded([&] { vkrMid(source, start, length); });
    guarded([&] {
        std::u16string target = source;
        vkrMidLet(target, start, length, other);
    });
    return 0;
}
