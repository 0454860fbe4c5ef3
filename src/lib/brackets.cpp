// Brackets and expressions: the `lib` members and their rows in the member table.
#include "text/brackets.h"

#include "lib/lib_members.h"
#include "velkor6/vb_error.h"

namespace velkor6 {

std::u16string lib::vkrExtractBrackets(std::u16string_view sSource, std::u16string_view sBrackets,
                                       std::int16_t iStart) {
    if (iStart < 1)
        throw VbError(vberr::invalidCall);
    const auto region = text::findBrackets(sSource, sBrackets, iStart - 1);
    if (!region)
        return {};
    return std::u16string(sSource.substr(region->open + 1, region->close - region->open - 1));
}

std::u16string lib::vkrExtractExpression(std::u16string_view sSource,
                                         std::u16string_view sSeparators,
                                         std::u16string_view sBrackets, bool bIgnoreCase,
                                         std::u16string* sRest) {
    const auto hit = text::findTopLevel(sSource, sSeparators, sBrackets,
                                        bIgnoreCase ? Compare::Text : Compare::Binary);
    // Both parts are copied before sRest is written: sSource may be a view of it.
    std::u16string first(trimSpaces(hit ? sSource.substr(0, hit->index) : sSource));
    std::u16string rest(hit ? trimSpaces(sSource.substr(hit->index + hit->length)) : u"");
    if (sRest != nullptr)
        *sRest = std::move(rest);
    return first;
}

std::u16string lib::vkrPhraseWithoutBrackets(std::u16string_view sSource,
                                             std::u16string_view sBrackets) {
    return text::withoutBrackets(sSource, sBrackets);
}

bool lib::vkrSeparateFunction(std::u16string_view sSource, std::u16string& sName,
                              std::vector<std::u16string>& vArgs) {
    auto call = text::separateFunction(sSource);
    sName = call ? std::move(call->name) : std::u16string();
    vArgs = call ? std::move(call->args) : std::vector<std::u16string>();
    return call.has_value();
}

std::u16string lib::vkrReplaceDecimalChars(std::u16string_view sSource,
                                           std::u16string_view sDecimalChar) {
    if (sDecimalChar.size() > 1)
        throw VbError(vberr::invalidCall);
    const char16_t decimal = sDecimalChar.empty() ? locale().decimal : sDecimalChar[0];
    char16_t grouping = decimal == u',' ? u'.' : (decimal == u'.' ? u',' : locale().grouping);
    if (grouping == decimal)
        grouping = 0;
    return text::withDecimalPoints(sSource, decimal, grouping);
}

std::u16string lib::vkrResConv(std::u16string_view sText, bool bToXML) {
    return bToXML ? text::toXmlAttribute(sText) : text::fromXmlAttribute(sText);
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

Variant stringArray(std::vector<std::u16string> items) {
    VariantArray a;
    a.element = VarType::String;
    for (auto& item : items)
        a.items.emplace_back(std::move(item));
    a.bounds = {ArrayBound{0, static_cast<std::int32_t>(a.items.size())}};
    return Variant(std::move(a));
}

} // namespace

void addBracketMembers(Table<lib>& t) {
    using T = VarType;
    t.push_back(
        {100,
         u"vkrExtractBrackets",
         CallKind::Method,
         {required(u"sSource", T::String), optional(u"sBrackets", T::String, u"()"),
          optional(u"iStart", T::Integer, std::int16_t{1})},
         T::String,
         [](lib& l, Args& a) -> Variant {
             return l.vkrExtractBrackets(a.str(0), a.str(1), a.i16(2));
         },
         u"The text between the first opening bracket at or after iStart and its matching "
         u"closing bracket, without the brackets.",
         u"sBrackets lists bracket pairs as a sign-pair list (\"()|[]|{}\"); the first opening "
         u"sign of any listed pair counts, and brackets of that pair nest inside it. Brackets "
         u"inside quoted literals (\"...\" and '...', where a doubled quote stands for one) are "
         u"ordinary characters; quotes are followed from the start of the text, also before "
         u"iStart. \"\" when no opening bracket follows or it is never closed. A pair that is not "
         u"two different characters, or iStart below 1, raises error 5. Example: "
         u"vkrExtractBrackets(\"Sum(a * (b + 1)) + c\") is \"a * (b + 1)\"; "
         u"vkrExtractBrackets(\"x = ')' & f(1)\") is \"1\"."});
    t.push_back(
        {101,
         u"vkrExtractExpression",
         CallKind::Method,
         {required(u"sSource", T::String), optional(u"sSeparators", T::String, u","),
          optional(u"sBrackets", T::String, u"()|[]|{}"),
          optional(u"bIgnoreCase", T::Boolean, true), optionalOutput(u"sRest", T::String, u"")},
         T::String,
         [](lib& l, Args& a) -> Variant {
             return l.vkrExtractExpression(a.str(0), a.str(1), a.str(2), a.b(3), &a.strRef(4));
         },
         u"The first expression of sSource: the text before the first separator that stands "
         u"outside brackets and quotes, trimmed; sRest receives the trimmed text after that "
         u"separator.",
         u"sSeparators lists alternatives (\",|;\" or \" AND | OR \"); at one position the "
         u"alternative listed first wins, empty alternatives are ignored, and bIgnoreCase "
         u"compares them as text. Separators inside a region of sBrackets (a sign-pair list) or "
         u"inside quoted literals (\"...\", '...') do not count; a closing bracket without its "
         u"opening one is an ordinary character. Without a separator the whole trimmed text is "
         u"the result and sRest is \"\". Repeated calls on sRest walk through a list. A bracket "
         u"pair that is not two different characters raises error 5. Example: "
         u"vkrExtractExpression(\"f(a, b), 'x,y', 3\", , , , sRest) is \"f(a, b)\" with sRest "
         u"\"'x,y', 3\"."});
    t.push_back(
        {102,
         u"vkrPhraseWithoutBrackets",
         CallKind::Method,
         {required(u"sSource", T::String), optional(u"sBrackets", T::String, u"()")},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrPhraseWithoutBrackets(a.str(0), a.str(1)); },
         u"sSource with every bracketed part removed, brackets and nested parts included, "
         u"trimmed.",
         u"Parts are found as vkrExtractBrackets finds them, left to right: sBrackets is a "
         u"sign-pair list and brackets inside quoted literals are kept. Where a removed part had a "
         u"blank on both sides one blank goes, so words stay one blank apart. An opening bracket "
         u"that is never closed and everything after it stay. Example: "
         u"vkrPhraseWithoutBrackets(\"Customer (inactive) list\") is \"Customer list\"; "
         u"vkrPhraseWithoutBrackets(\"Sum(x) + (y)\") is \"Sum +\"."});
    t.push_back(
        {103,
         u"vkrSeparateFunction",
         CallKind::Method,
         {required(u"sSource", T::String), output(u"sName", T::String),
          output(u"vArgs", T::Variant)},
         T::Boolean,
         [](lib& l, Args& a) -> Variant {
             std::vector<std::u16string> args;
             const bool ok = l.vkrSeparateFunction(a.str(0), a.strRef(1), args);
             a[2] = stringArray(std::move(args));
             return ok;
         },
         u"True when sSource is a function call name(arguments): sName receives the name and "
         u"vArgs the arguments as a String array (lower bound 0), each trimmed.",
         u"sSource is trimmed; the name is the text before the first \"(\" outside quotes, "
         u"trimmed and not empty, and the \")\" matching that bracket must be the last "
         u"character. Arguments are split at the commas outside quoted literals (\"...\", '...') "
         u"and outside (), [] and {}; quotes and brackets stay in the arguments. \"f()\" gives no "
         u"arguments (UBound -1), \"f(a,)\" two, the second \"\". Otherwise the result is False, "
         u"sName \"\" and vArgs an empty array. Example: vkrSeparateFunction(\"IIf(a > 1, "
         u"'x, y', Max(b, c))\", n, v) gives n = \"IIf\" and v = (\"a > 1\", \"'x, y'\", "
         u"\"Max(b, c)\")."});
    t.push_back(
        {104,
         u"vkrReplaceDecimalChars",
         CallKind::Method,
         {required(u"sSource", T::String), optional(u"sDecimalChar", T::String, u"")},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrReplaceDecimalChars(a.str(0), a.str(1)); },
         u"sSource with the decimal separator of every number turned into a point and its "
         u"grouping separators dropped, for SQL.",
         u"The decimal separator is sDecimalChar, or the user's when it is \"\" (more than one "
         u"character raises error 5); the grouping separator is \".\" for \",\" and \",\" for "
         u"\".\". A number begins with a digit that does not follow a letter, digit, \"_\" or "
         u"separator, and runs over digits and separators up to its last digit; an exponent (E, "
         u"a sign, digits) may follow and is kept. It changes only when it holds exactly one "
         u"decimal separator, grouping separators stand only before it with three digits "
         u"between them and after it, and no letter, digit or \"_\" follows. Quoted literals "
         u"(\"...\", '...') stay as they are. A number without a decimal separator is left as it "
         u"is, so \"1.234\" in German stays; a list of numbers keeps its meaning when a blank "
         u"follows each comma (\"IN (1, 5)\"). Example with \",\": \"Preis > 1.234,5 AND Code = "
         u"'2,5' AND x1,5\" gives \"Preis > 1234.5 AND Code = '2,5' AND x1,5\"."});
    t.push_back(
        {105,
         u"vkrResConv",
         CallKind::Method,
         {required(u"sText", T::String), optional(u"bToXML", T::Boolean, true)},
         T::String,
         [](lib& l, Args& a) -> Variant { return l.vkrResConv(a.str(0), a.b(1)); },
         u"Converts a text to the form it has in an attribute of a resource document "
         u"(bToXML True) or back (False).",
         u"The texts of a resource document are attribute values (the text attribute of an item, "
         u"where \"&\" marks a caption's access key and is written \"&amp;\"). To XML: & < > \" "
         u"and ' become &amp; &lt; &gt; &quot; &apos;, tab, line feed and carriage return "
         u"become &#9; &#10; &#13; (raw ones would be read back as blanks); everything else "
         u"stays. Back: those five names and character references &#n; and &#xh; (up to U+10FFFF, "
         u"not a surrogate or 0; above U+FFFF as a surrogate pair) become their characters; any "
         u"other \"&\" stays as it is. Example: vkrResConv(\"&Save <all>\") is \"&amp;Save "
         u"&lt;all&gt;\", and vkrResConv(\"&amp;Ja&#10;\", False) is \"&Ja\" & vbLf."});
}

} // namespace velkor6::dispatch
