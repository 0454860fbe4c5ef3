// Rows of the text members (search, count, cut and replace).
#include "lib/lib_members.h"

namespace velkor6::dispatch {

void addTextMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back({u"vkrFindSubString",
                 Kind::Method,
                 {required(u"sSource", T::String), required(u"sFind", T::String),
                  optional(u"iStartSearch", T::Integer, std::int16_t{1}),
                  optional(u"bIgnoreCase", T::Boolean, true), optional(u"bFindFirst", T::Boolean, true),
                  optional(u"bWholeWord", T::Boolean, false),
                  optionalByRef(u"sFound", T::String, u"")},
                 T::Integer,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrFindSubString(a.str(0), a.str(1), a.i16(2), a.b(3), a.b(4),
                                               a.b(5), &a.strRef(6));
                 },
                 u"Position of the first (or first listed) alternative of sFind; writes it to "
                 u"sFound."});
}

} // namespace velkor6::dispatch
