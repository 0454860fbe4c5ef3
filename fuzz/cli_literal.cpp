// The program's literals: any text read as a literal or a call line, and every value written as
// a typed literal reads back to the same literal; numbers and dates from any bits too.
#include "core/text.h"
#include "fuzz_input.h"
#include "literal.h"
#include "velkor6/vb_error.h"

#include <cmath>
#include <cstdlib>

using namespace velkor6;
using namespace velkor6::cli;

namespace {

// A literal typedLiteral wrote must read back as the value it stands for.
void readsBack(const Variant& v) {
    const std::u16string text = typedLiteral(v);
    std::optional<Variant> again;
    try {
        again = parseLiteral(text);
    } catch (const UsageError&) {
        std::abort();
    }
    if (!again || typedLiteral(*again) != text)
        std::abort();
}

bool writable(double d) {
    return std::isfinite(d);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    const auto d = in.number<double>();
    const auto f = in.number<float>();
    const auto serial = in.number<double>();
    const auto scaled = in.number<std::int64_t>();
    const std::u16string text = in.text();

    if (writable(d))
        readsBack(Variant(d));
    else
        typedLiteral(Variant(d));
    if (writable(f))
        readsBack(Variant(f));
    else
        typedLiteral(Variant(f));
    if (serial > -657435.0 && serial < 2958466.0)
        readsBack(Variant(Date{serial}));
    else
        typedLiteral(Variant(Date{serial}));
    readsBack(Variant(Currency{scaled}));

    try {
        if (auto v = parseLiteral(text))
            readsBack(*v);
        parseCommandArgument(text);
    } catch (const UsageError&) {
    }
    try {
        parseScriptLine(text);
    } catch (const UsageError&) {
    }
    return 0;
}
