// Call by name and compression: the `lib` members and their rows in the member table.
#include "lib/lib_members.h"
#include "lzw/global_var.h"

namespace velkor6 {

Variant lib::vkrGlobalVar(std::u16string_view sName, const Variant& vParam) {
    return lzw::callGlobalVar(sName, vParam, locale());
}

} // namespace velkor6

namespace velkor6::dispatch {

void addCallByNameMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back(
        {22,
         u"vkrGlobalVar",
         CallKind::Method,
         {required(u"sName", T::String), optional(u"vParam", T::Variant, Variant::missing())},
         T::Variant,
         [](lib& l, Args& a) -> Variant { return l.vkrGlobalVar(a.str(0), a[1]); },
         u"Calls the library function sName with the text vParam: \"Deflate\" compresses it, "
         u"\"Inflate\" and \"InflateStrict\" decompress it. The name may be in any letter case.",
         u"Compressed texts hold one character per byte (its ANSI code): 9-bit LZW codes, a "
         u"dictionary of 512 entries that starts over with a clear code whenever it is full, and "
         u"an end code. Characters without an ANSI code are compressed as \"?\".\n\n"
         u"\"Inflate\" is the library's established decoder, kept unchanged for existing callers. "
         u"After each clear code the compressor "
         u"stores, at entry 258, the string that overflowed the full dictionary, but \"Inflate\" "
         u"stores a single character there. Whenever a compressed text uses code 258 after a "
         u"clear code, which long or repetitive texts do, \"Inflate\" returns a different text "
         u"than was compressed.\n\n"
         u"\"InflateStrict\" decodes every text that \"Deflate\" writes back to the original: "
         u"after a clear code, entry 258 is the string decoded just before the clear code "
         u"followed by the first character of the next string (or of the string itself when the "
         u"next code is 258). Where no code 258 follows a clear code, both give the same text.\n\n"
         u"The empty text compresses to Chr(3) & Chr(2), a clear code followed directly by the "
         u"end code; both decoders return \"\" for it.\n\n"
         u"A text whose first code is not the clear code decompresses to \"\". A text too short to "
         u"hold the clear code and one more code raises error 9 (Subscript out of range); "
         u"\"InflateStrict\" also raises error 9 for a text \"Deflate\" cannot have written (a "
         u"code not yet defined, a full dictionary without a clear code, no end code). A damaged "
         u"text that would decompress to more than 2^30 characters raises error 14 (Out of "
         u"string space). A name other than these three raises error 438 with the source "
         u"\"velkor6.vkrGlobalVar\"; a missing vParam raises error 449."});
}

} // namespace velkor6::dispatch
