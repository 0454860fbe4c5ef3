// Numbers and dates read from text in two locales (also leniently, and as hexadecimal), and the
// Like operator.
#include "core/convert.h"
#include "core/date.h"
#include "core/like.h"
#include "fuzz_input.h"
#include "values/hex.h"
#include "values/numbers.h"
#include "velkor6/vb_error.h"

using namespace velkor6;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    const bool textMode = in.flag();
    const std::u16string text = in.text();
    const std::u16string pattern = in.text();
    for (const Locale* loc : {&Locale::englishUS(), &Locale::germanGermany()}) {
        parseNumber(text, *loc);
        parseDate(text, *loc);
        values::lenientNumber(text, *loc);
        try {
            toDouble(Variant(text), *loc);
        } catch (const VbError&) {
        }
        try {
            values::readHexLong(text);
        } catch (const VbError&) {
        }
    }
    try {
        like(text, pattern, textMode ? Compare::Text : Compare::Binary);
    } catch (const VbError&) {
    }
    return 0;
}
