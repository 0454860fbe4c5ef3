// Rows of the context's language and resources.
#include "lib/applib_members.h"

namespace velkor6::dispatch {

void addLanguageMembers(Table<applib>& t) {
    using T = VarType;
    t.push_back({16,
                 u"language",
                 CallKind::PropertyGet,
                 {},
                 T::Integer,
                 [](applib& a, Args&) -> Variant { return a.language(); },
                 u"The language number of the context (1 German, 2 English, ...), from the "
                 u"setting Language in section Application.",
                 u"Without that setting DefaultLanguage counts, and without that the system: "
                 u"German in Germany, else English. The number found is stored as Language and "
                 u"becomes the language of the library's dialogs."});
    t.push_back({16,
                 u"language",
                 CallKind::PropertyLet,
                 {required(u"value", T::Integer)},
                 T::Empty,
                 [](applib& a, Args& r) -> Variant {
                     a.languageLet(r.i16(0));
                     return {};
                 },
                 u"Stores the language number and makes it the language of the library's "
                 u"dialogs.",
                 u""});
}

} // namespace velkor6::dispatch
