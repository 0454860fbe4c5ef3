// The command line: the `applib` members and their rows.
#include "applib/command_line.h"
#include "core/convert.h"
#include "core/text.h"
#include "lib/applib_members.h"
#include "velkor6/applib.h"
#include "velkor6/record_object.h"

namespace velkor6 {

std::int32_t applib::splitCommandLine(const Variant& vCommandLine) {
    std::vector<app::CommandWord> words;
    if (vCommandLine.isMissing())
        words = app::splitCommandWords(module_->platform().environment->commandLine(), true);
    else
        words = app::splitCommandWords(toString(vCommandLine, locale()), false);
    std::vector<typCmdParam> params;
    for (auto& p : app::readCommandParams(words))
        params.push_back({std::move(p.name), std::move(p.value)});
    commandLine_ = std::move(params);
    return static_cast<std::int32_t>(commandLine_->size());
}

const std::vector<typCmdParam>& applib::commandParams() {
    if (!commandLine_)
        splitCommandLine();
    return *commandLine_;
}

bool applib::cmdHasParam(std::u16string_view sName) {
    const std::u16string_view name = app::bareSwitchName(sName);
    for (const typCmdParam& p : commandParams()) {
        if (!p.Name.empty() && textEqual(p.Name, name, Compare::Text))
            return true;
    }
    return false;
}

std::vector<typCmdParam> applib::cmdParams() {
    return commandParams();
}

Variant applib::cmdParam(const Variant& vName, const Variant& vDefault) {
    const std::vector<typCmdParam>& params = commandParams();
    if (vName.isString()) {
        const std::u16string_view name = app::bareSwitchName(vName.string());
        for (auto p = params.rbegin(); p != params.rend(); ++p) {
            if (!p->Name.empty() && textEqual(p->Name, name, Compare::Text))
                return p->value;
        }
        return vDefault;
    }
    std::int32_t index = toLong(vName, locale());
    for (const typCmdParam& p : params) {
        if (p.Name.empty() && --index == 0)
            return p.value;
    }
    return vDefault;
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

Variant paramRecords(const std::vector<typCmdParam>& params, const Locale& loc) {
    std::vector<Variant> records;
    for (const typCmdParam& p : params) {
        records.emplace_back(ObjectRef(std::make_shared<RecordObject>(
            u"typCmdParam",
            std::vector<RecordObject::Field>{{u"Name", p.Name}, {u"value", p.value}}, loc)));
    }
    return Variant::array(std::move(records));
}

} // namespace

void addCommandLineMembers(Table<applib>& t) {
    using T = VarType;
    t.push_back(
        {19,
         u"splitCommandLine",
         CallKind::Method,
         {optional(u"vCommandLine", T::Variant, Variant::missing())},
         T::Long,
         [](applib& a, Args& r) -> Variant { return a.splitCommandLine(r[0]); },
         u"Reads a command line into named and positional parameters and returns their count.",
         u"vCommandLine holds the arguments alone, as VB's Command$ gives them; without it the "
         u"process's own command line is read and its first word, the program, is dropped (on "
         u"Windows the text GetCommandLineW gives; on Linux the process's arguments, each "
         u"written with the quoting below so that it reads back unchanged, a leading \"/\" or "
         u"\"-\" outside the quotes so that a switch stays one). The parameters "
         u"replace those read before; cmdHasParam, cmdParams and cmdParam read the process's "
         u"command line themselves when nothing has been read yet.\n\n"
         u"Words: blanks and tabs separate words outside quotes. A double quote opens a quoted "
         u"part, in which blanks belong to the word; a quote closes it, but two quotes in a row "
         u"inside a quoted part give one literal quote and close the part. Backslashes are "
         u"literal except before a quote: 2n backslashes and a quote give n backslashes and the "
         u"quote opens or closes a part; 2n+1 backslashes and a quote give n backslashes and a "
         u"literal quote. \"\" alone is an empty word. These are the rules of CommandLineToArgvW "
         u"(the program's name: up to the next blank, or from a quote to the next quote, "
         u"without escapes).\n\n"
         u"Parameters, from left to right: a word starting with \"/\", \"-\" or \"--\" is a "
         u"switch, unless its first character comes from a quoted part (\"/x\" or \"\"/x), the "
         u"prefix stands alone, or a digit, "
         u"\".\", \"=\" or \":\" follows the prefix (-5 and -.5 are values). The name runs to "
         u"the first \"=\" or \":\", the value is the rest (it may be empty); without either, "
         u"the next word is the value when it is no switch, else the value is \"\". Any other "
         u"word is a positional parameter with the name \"\". A lone -- is dropped and makes "
         u"every later word positional. A value that starts with \"/\" or \"-\" is given after "
         u"\"=\" or quoted.\n\n"
         u"Example: /user=Anna -Verbose \"C:\\My Files\\a.txt\" --out:x.log -n 5 -- -q gives "
         u"user=Anna, Verbose=\"C:\\My Files\\a.txt\", out=x.log, n=5 and the positional -q, "
         u"count 5. a\\\\\\\"b is a\\\"b; a\\\\b is a\\\\b; \"a\"\"b c\" is a\"b and c (the pair "
         u"of "
         u"quotes ends the quoted part, so the blank separates). A value "
         u"that is neither missing nor text is converted to text (CStr); Null raises error 94."});
    t.push_back(
        {20,
         u"cmdHasParam",
         CallKind::Method,
         {required(u"sName", T::String)},
         T::Boolean,
         [](applib& a, Args& r) -> Variant { return a.cmdHasParam(r.str(0)); },
         u"True when the command line holds a switch named sName.",
         u"Names compare without regard to letter case; a leading \"/\", \"-\" or \"--\" of "
         u"sName is not part of the name, so \"/Verbose\", \"-verbose\" and \"VERBOSE\" ask the "
         u"same. A switch given without a value counts. Positional parameters have no name: \"\" "
         u"gives False."});
    t.push_back(
        {21,
         u"cmdParams",
         CallKind::Method,
         {},
         T::Variant,
         [](applib& a, Args&) -> Variant { return paramRecords(a.cmdParams(), a.locale()); },
         u"Every parameter of the command line as an array of typCmdParam records (Name, "
         u"value), lower bound 0, in command-line order.",
         u"A switch repeated is listed each time. A positional parameter has the Name "
         u"\"\"; a switch without a value has the value \"\". No parameters give an empty "
         u"array (UBound -1)."});
    t.push_back(
        {22,
         u"cmdParam",
         CallKind::Method,
         {required(u"vName", T::Variant), optional(u"vDefault", T::Variant, Variant(u""))},
         T::Variant,
         [](applib& a, Args& r) -> Variant { return a.cmdParam(r[0], r[1]); },
         u"The value of the switch vName, or of the vName-th positional parameter; vDefault "
         u"when the command line has none.",
         u"A text vName names a switch as cmdHasParam does; when the switch is given more than "
         u"once the last value wins. Any other vName is converted to a Long (errors 13, 6 and 94 "
         u"as CLng raises them) and counts the positional parameters from 1. Values are text; "
         u"a switch given without a value gives \"\", not vDefault. Example: after "
         u"splitCommandLine(\"/db=sales -v report.txt\"), cmdParam(\"DB\") is \"sales\", "
         u"cmdParam(\"v\") is \"report.txt\" (the next word), cmdParam(1, \"none\") is "
         u"\"none\"."});
}

} // namespace velkor6::dispatch
