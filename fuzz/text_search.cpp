// The text members with any texts, positions and lengths; the errors they raise are results.
#include "fuzz_input.h"
#include "velkor6/lib.h"
#include "velkor6/vb_error.h"

#include <memory>

using namespace velkor6;

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
    // The text members need no operating-system service: a bare platform will do.
    static lib l(std::make_shared<Module>(std::make_unique<Platform>(), Locale::englishUS()));

    auto guarded = [](auto call) {
        try {
            call();
        } catch (const VbError&) {
        }
    };
    guarded([&] {
        std::u16string found;
        l.vkrFindSubString(source, find, start, flag(0), flag(1), flag(2), &found);
    });
    guarded([&] { l.vkrFindLastSubString(source, find, start, flag(0)); });
    guarded([&] { l.vkrHasSubString(source, find, start, flag(0)); });
    guarded([&] { l.vkrCountSubString(source, find, start, flag(0)); });
    guarded([&] { l.vkrCountSubStringExt(source, find, start, flag(0), signs); });
    guarded([&] { l.vkrGetSubString(source, find, other, start, flag(0), flag(1)); });
    guarded([&] {
        std::u16string before, term, after;
        l.vkrSeparateString(source, find, before, term, after, start, flag(0));
    });
    guarded([&] {
        l.vkrReplaceInString(source, find, other, start, flag(0), flag(1), flag(2), flag(3));
    });
    guarded([&] {
        l.vkrReplaceInStringExt(source, find, other, start, flag(0), flag(1), flag(2), flag(4),
                                flag(5), signs);
    });
    guarded([&] { l.vkrIsInSigns(source, signs, start, length); });
    guarded([&] { l.vkrIsNumericWord(source, start, length); });
    guarded([&] { l.vkrMid(source, start, length); });
    guarded([&] {
        std::u16string target = source;
        l.vkrMidLet(target, start, length, other);
    });
    return 0;
}
