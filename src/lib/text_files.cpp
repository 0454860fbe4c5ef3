// Predefined expressions and text files: the `lib` members and their rows in the member table.
#include "files/text_generation.h"
#include "lib/lib_members.h"

namespace velkor6 {

void lib::prfReplacePredefinedExpressions(std::u16string& sString, const Variant* vExpr) {
    files::replacePredefinedExpressions(sString, vExpr, *module().platform().clock, locale());
}

std::u16string lib::prfTextStream(std::u16string_view sFilename) {
    try {
        return files::textFromFileBytes(module().platform().fileSystem->readFile(sFilename));
    } catch (const std::exception&) {
        return {};
    }
}

std::u16string lib::prfPreFormatXML(std::u16string_view sXML) {
    return files::preFormatXml(sXML);
}

} // namespace velkor6

namespace velkor6::dispatch {

void addTextFileMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back(
        {63,
         u"prfReplacePredefinedExpressions",
         CallKind::Method,
         {output(u"sString", T::String), optionalByRef(u"vExpr", T::Variant, Variant::missing())},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.prfReplacePredefinedExpressions(a.strRef(0), a[1].isMissing() ? nullptr : &a[1]);
             return {};
         },
         u"Expands the caller's %KEY% pairs, then %CRLF% %TAB% %DATE% %DATE!% %DATE!!% %TIME% "
         u"%TIME!% %DATETIME% %LASTDAY%, in sString.",
         u"vExpr holds key, value, key, value ... read from index 0. Keys compare without regard "
         u"to case; each step runs over the whole text, so a value holding a later placeholder is "
         u"expanded too. An odd number of elements raises error 9 after the complete pairs, with "
         u"sString holding what was replaced. %LASTDAY% is the last day of the previous month, or "
         u"of the current one after the 20th."});
    t.push_back({64,
                 u"prfTextStream",
                 CallKind::Method,
                 {required(u"sFilename", T::String)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.prfTextStream(a.str(0)); },
                 u"A text file's whole text: UTF-16 LE when it starts with FF FE, else ANSI.",
                 u"The UTF-16 byte-order mark is dropped; a UTF-8 file reads as ANSI. A missing, "
                 u"unreadable or empty file gives \"\"."});
    t.push_back({65,
                 u"prfPreFormatXML",
                 CallKind::Method,
                 {required(u"sXML", T::String)},
                 T::String,
                 [](lib& l, Args& a) -> Variant { return l.prfPreFormatXML(a.str(0)); },
                 u"Indents flat XML: one element per line, a tab per level.",
                 u"A closing tag always starts a line; text-only elements close on the next line; "
                 u"processing instructions and comments open a level that never closes."});
}

} // namespace velkor6::dispatch
