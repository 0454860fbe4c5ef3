// Number codes and value scrambling: the `lib` members and their rows in the member table.
#include "values/value_codes.h"

#include "lib/lib_members.h"

namespace velkor6 {

std::u16string lib::vkrLng2Str(std::int32_t lValue) {
    return values::longToCode(lValue);
}

std::int32_t lib::vkrStr2Lng(std::u16string_view sValue) {
    return values::codeToLong(sValue);
}

std::u16string lib::vkrEncryptedValue(std::u16string_view sValue) {
    return values::scrambleText(sValue);
}

std::u16string lib::vkrDecryptedValue(std::u16string_view sValue) {
    return values::unscrambleText(sValue);
}

} // namespace velkor6

namespace velkor6::dispatch {

void addValueCodeMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back({106,
                 u"vkrLng2Str",
                 CallKind::Method,
                 {required(u"lValue", T::Long)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrLng2Str(a.i32(0)); },
                 u"lValue as a short text code: its digits in base 36 (0-9, then A-Z), with a "
                 u"\"-\" before a negative value.",
                 u"No leading zeros and no blanks; at most 7 digits. vkrStr2Lng reads every code "
                 u"back exactly. Examples: 0 is \"0\", 35 is \"Z\", 36 is \"10\", -1 is \"-1\", "
                 u"2147483647 is \"ZIK0ZJ\", -2147483648 is \"-ZIK0ZK\"."});
    t.push_back({107,
                 u"vkrStr2Lng",
                 CallKind::Method,
                 {required(u"sValue", T::String)},
                 T::Long,
                 [](lib& l, Args& a) -> Variant { return l.vkrStr2Lng(a.str(0)); },
                 u"The Long a code of vkrLng2Str stands for.",
                 u"An optional \"-\" followed by base-36 digits in either letter case; leading "
                 u"zeros are allowed. Anything else (\"\", a lone \"-\", blanks, \"+\", any other "
                 u"character) raises error 13 (Type mismatch); a code beyond the Long range "
                 u"(above \"ZIK0ZJ\", below \"-ZIK0ZK\") raises error 6 (Overflow). Example: "
                 u"vkrStr2Lng(\"zz\") is 1295."});
    t.push_back(
        {108,
         u"vkrEncryptedValue",
         CallKind::Method,
         {required(u"sValue", T::String)},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrEncryptedValue(a.str(0)); },
         u"Scrambles sValue so that a casual reader of a settings file cannot read it; this is "
         u"no encryption, as the key is in the library.",
         u"Use it to keep a password out of plain sight, never as protection against someone "
         u"who has the library. The code holds only A-Z, a-z, 0-9, \"-\" and \"_\" (no blanks, "
         u"\";\", \"=\", \"%\" or line breaks), so it survives a settings file unchanged, and "
         u"vkrDecryptedValue returns every text exactly, any UTF-16 text included. The same text "
         u"always gives the same code; \"\" gives \"\". Method: the text's UTF-16 code units as "
         u"little-endian bytes, preceded by a salt byte and followed by a check byte (both from "
         u"an FNV-1a hash of the bytes), each byte XORed with a xorshift32 key stream (seeded "
         u"from a fixed key and the length) and with the byte written before it, then written in "
         u"the URL-safe Base64 alphabet without padding: 4 characters for every 3 bytes, so a "
         u"text of n characters gives about 2.7 n + 3."});
    t.push_back({109,
                 u"vkrDecryptedValue",
                 CallKind::Method,
                 {required(u"sValue", T::String)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.vkrDecryptedValue(a.str(0)); },
                 u"The text vkrEncryptedValue scrambled into sValue.",
                 u"\"\" gives \"\". A text vkrEncryptedValue cannot have written (another "
                 u"character, a wrong length, a failed check: a text typed in by hand or cut "
                 u"short) raises error -2147221504 (80040000) with the source "
                 u"\"velkor6.vkrDecryptedValue\"; a changed character is found in all but about "
                 u"one case in 65536. Example: vkrDecryptedValue(vkrEncryptedValue(\"Geheim\")) is "
                 u"\"Geheim\"."});
}

} // namespace velkor6::dispatch
