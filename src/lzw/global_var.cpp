#include "lzw/global_var.h"

#include "core/convert.h"
#include "core/text.h"
#include "lzw/lzw.h"
#include "platform/ansi.h"
#include "velkor6/vb_error.h"

namespace velkor6::lzw {

std::u16string deflateText(std::u16string_view text) {
    return fromAnsi(deflate(toAnsi(text)));
}

std::u16string inflateText(std::u16string_view packed) {
    return fromAnsi(inflate(toAnsi(packed)));
}

std::u16string inflateStrictText(std::u16string_view packed) {
    return fromAnsi(inflateStrict(toAnsi(packed)));
}

Variant callGlobalVar(std::u16string_view name, const Variant& param, const Locale& loc) {
    using Fn = std::u16string (*)(std::u16string_view);
    const std::u16string key = upperCase(name);
    Fn fn = nullptr;
    if (key == u"DEFLATE")
        fn = deflateText;
    else if (key == u"INFLATE")
        fn = inflateText;
    else if (key == u"INFLATESTRICT")
        fn = inflateStrictText;
    else
        throw VbError(vberr::noSuchMember, VbError::describe(vberr::noSuchMember),
                      u"velkor6.vkrGlobalVar");
    if (param.isMissing())
        throw VbError(vberr::argumentNotOptional);
    return fn(toString(param, loc));
}

} // namespace velkor6::lzw
