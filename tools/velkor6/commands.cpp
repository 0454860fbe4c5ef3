#include "commands.h"

#include "app_options.h"
#include "core/convert.h"
#include "core/format.h"
#include "core/text.h"
#include "lib/applib_members.h"
#include "lib/cpp_declaration.h"
#include "lib/lib_members.h"
#include "literal.h"
#include "velkor6/record_object.h"
#include "velkor6/vb_error.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace velkor6::cli {
namespace {

std::ostream& operator<<(std::ostream& os, std::u16string_view s) {
    return os << toUtf8(s);
}

// A POSIX locale name reached the module through the environment (main sets LC_ALL); the
// presets are set here.
std::shared_ptr<Module> makeModule(const Options& options) {
    auto module = Module::createDefault();
    if (isLocalePreset(options.locale))
        module->setLocale(Locale::preset(fromUtf8(options.locale)));
    return module;
}

// What VB's Print shows for a value.
std::u16string printText(const Variant& v, const Locale& loc) {
    switch (v.type()) {
    case VarType::Empty:
        return u"";
    case VarType::Null:
        return u"Null";
    case VarType::String:
        return v.string();
    case VarType::Boolean:
        return v.boolean() ? u"True" : u"False";
    case VarType::Date:
        return formatGeneralDate(v.date(), loc);
    case VarType::Object:
        return v.object() ? v.object()->typeName() : u"Nothing";
    case VarType::Error:
        return typedLiteral(v);
    default:
        break;
    }
    if (v.isArray())
        return typedLiteral(v);
    return toString(v, loc);
}

// NAME = LITERAL; a record shows each field as NAME.FIELD = LITERAL.
void printNamed(std::u16string_view name, const Variant& v, std::ostream& out) {
    if (v.isObject()) {
        if (const auto* record = dynamic_cast<const RecordObject*>(v.object().get())) {
            for (const auto& field : record->fields())
                out << name << '.' << field.name << " = " << typedLiteral(field.value) << '\n';
            return;
        }
    }
    out << name << " = " << typedLiteral(v) << '\n';
}

void printError(const VbError& e, std::ostream& err) {
    err << "error " << e.number() << ": " << e.description() << " (" << e.source() << ")\n";
}

// The member that raised an error and, for a value that did not fit, the argument; a source of
// the library's own that names a member stays as it is.
template <class Target>
void printCallError(const VbError& e, const dispatch::Member<Target>* member,
                    std::u16string_view name, std::ostream& err) {
    std::u16string context(member ? std::u16string_view(member->name) : name);
    if (const auto* a = dynamic_cast<const dispatch::ArgumentError*>(&e); a && member)
        context += u", argument " + member->params[a->param()].name;
    if (!e.source().empty() && e.source() != u"velkor6") {
        if (dispatch::sameName(e.source(), u"velkor6." + context))
            context = e.source();
        else
            context += u": " + e.source();
    }
    err << "error " << e.number() << ": " << e.description() << " (" << context << ")\n";
}

// Calls one member with parsed arguments; prints the result, then every output parameter (a
// ByRef parameter the member writes), changed or not. False when the member raised an error,
// which it prints.
template <class Target>
bool callAndPrint(const dispatch::Member<Target>& member, Target& target, const Options& options,
                  std::vector<ParsedArgument>& parsed, std::optional<Variant> assigned,
                  std::ostream& out, std::ostream& err) {
    if (assigned)
        parsed.push_back({member.params.back().name, std::move(*assigned)});

    std::vector<dispatch::Argument> args;
    args.reserve(parsed.size());
    for (auto& p : parsed)
        args.push_back({&p.value, p.name});
    const Locale& loc = target.locale();
    std::vector<Variant> outputs;
    Variant result;
    try {
        result = dispatch::call(member, target, args, loc, [&](const dispatch::Binding& binding) {
            outputs = binding.values;
        });
    } catch (const VbError& e) {
        out << std::flush;
        printCallError(e, &member, member.name, err);
        return false;
    }

    if (member.result != VarType::Empty)
        out << (options.typed ? typedLiteral(result) : printText(result, loc)) << '\n';
    for (std::size_t i = 0; i < member.params.size(); ++i) {
        if (member.params[i].output)
            printNamed(member.params[i].name, outputs[i], out);
    }
    return true;
}

std::u16string defaultText(const Variant& v) {
    if (v.isString())
        return typedLiteral(v);
    if (v.type() == VarType::Boolean || v.isEmpty() || v.isNull() || v.isObject())
        return typedLiteral(v);
    return toString(v, Locale::englishUS());
}

template <class Target>
std::u16string signature(const dispatch::Member<Target>& m) {
    std::u16string s = m.name + u"(";
    for (std::size_t i = 0; i < m.params.size(); ++i) {
        const auto& p = m.params[i];
        if (i > 0)
            s += u", ";
        if (p.optional)
            s += u"Optional ";
        if (p.byRef)
            s += u"ByRef ";
        s += p.name;
        if (isArrayType(p.type))
            s += u"()";
        s += u" As " + dispatch::typeLabel(isArrayType(p.type) ? elementType(p.type) : p.type);
        if (p.optional && !p.defaultValue.isMissing())
            s += u" = " + defaultText(p.defaultValue);
    }
    s += u")";
    if (m.result != VarType::Empty)
        s += u" As " + dispatch::typeLabel(m.result);
    return s;
}

template <class Target>
std::u16string kindLabel(const dispatch::Member<Target>& m) {
    switch (m.kind) {
    case CallKind::PropertyGet:
        return u"Property Get";
    case CallKind::PropertyLet:
        return u"Property Let";
    default:
        return m.result == VarType::Empty ? u"Sub" : u"Function";
    }
}

// The objects a command calls: a `lib`, and with --app the context vkrInitApp made for it.
class Session {
public:
    explicit Session(const Options& options) : lib_(makeModule(options)) {
        if (!options.appName.empty()) {
            HostApp host;
            host.path = fromUtf8(options.appPath);
            host.exeName = fromUtf8(options.appName);
            readAppVersion(options.appVersion, host);
            app_ = lib_.vkrInitApp(host, host.exeName);
        }
    }

    // Calls a member of the application's applib (with --app) or of lib. Raises UsageError
    // for an applib member without --app.
    bool call(const Options& options, const std::u16string& name,
              std::vector<ParsedArgument>& parsed, std::optional<Variant> assigned,
              std::ostream& out, std::ostream& err) {
        const CallKind kind = assigned ? CallKind::PropertyLet : CallKind::Method;
        if (app_) {
            if (const auto* m = dispatch::find(dispatch::applibMembers(), name, kind))
                return callAndPrint(*m, *app_, options, parsed, std::move(assigned), out, err);
        }
        if (const auto* m = dispatch::find(dispatch::libMembers(), name, kind))
            return callAndPrint(*m, lib_, options, parsed, std::move(assigned), out, err);
        if (dispatch::find(dispatch::applibMembers(), name, kind) != nullptr)
            throw UsageError(toUtf8(name) +
                             " is a member of applib: give --app NAME (the application's name)");
        printCallError<lib>(VbError(vberr::noSuchMember), nullptr, name, err);
        return false;
    }

private:
    lib lib_;
    std::shared_ptr<applib> app_;
};

} // namespace

namespace {

void printUsageError(const UsageError& e, std::ostream& err) {
    err << "velkor6: " << e.what() << '\n';
}

} // namespace

int runCall(const Options& givenOptions, const std::vector<std::string>& words, std::ostream& out,
            std::ostream& err) {
    if (words.empty()) {
        err << "velkor6: call: no member named (velkor6 call MEMBER [ARG ...])\n";
        return 2;
    }
    Options options;
    std::vector<ParsedArgument> parsed;
    std::optional<Variant> assigned;
    try {
        options = resolveAppOptions(givenOptions);
        for (std::size_t i = 1; i < words.size(); ++i)
            parsed.push_back(parseCommandArgument(fromUtf8(words[i])));
        if (options.let) {
            if (parsed.empty())
                throw UsageError("call --let: the last argument is the value to assign");
            assigned = std::move(parsed.back().value);
            parsed.pop_back();
        }
        Session session(options);
        return session.call(options, fromUtf8(words[0]), parsed, std::move(assigned), out, err) ? 0
                                                                                                : 1;
    } catch (const UsageError& e) {
        printUsageError(e, err);
        return 2;
    } catch (const VbError& e) {
        printError(e, err);
        return 1;
    }
}

LineSource streamLines(std::istream& in) {
    return [&in]() -> std::optional<std::string> {
        std::string line;
        if (!std::getline(in, line))
            return std::nullopt;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        return line;
    };
}

namespace {

template <class Target>
const dispatch::Member<Target>* findAny(const dispatch::Table<Target>& table,
                                        std::u16string_view name) {
    const auto* m = dispatch::find(table, name, CallKind::Method);
    return m ? m : dispatch::find(table, name, CallKind::PropertyLet);
}

template <class Target>
void printReference(const dispatch::Member<Target>& m, std::u16string_view prefix,
                    std::ostream& out) {
    out << kindLabel(m) << ' ' << prefix << signature(m) << '\n';
    if (!m.summary.empty())
        out << '\n' << m.summary << '\n';
    if (!m.notes.empty())
        out << '\n' << m.notes << '\n';
}

// "help" lists what a line may hold; "help MEMBER" prints the member's reference entry.
bool printHelp(std::u16string_view name, std::ostream& out, std::ostream& err) {
    if (name.empty()) {
        out << "A line holds calls in VB syntax, separated by \":\": vkrVal(\"1,5\") or vkrVal "
               "\"1,5\";\n"
               "with \"= value\" after it a property assignment; ' or Rem starts a comment.\n"
               "help MEMBER   the member's signature and description\n"
               "quit, exit    end (so does Ctrl-D)\n"
               "Tab completes member names; velkor6 members lists them all.\n";
        return true;
    }
    bool found = false;
    if (const auto* m = findAny(dispatch::libMembers(), name)) {
        printReference(*m, u"", out);
        found = true;
    }
    if (const auto* m = findAny(dispatch::applibMembers(), name)) {
        if (found)
            out << '\n';
        printReference(*m, u"applib.", out);
        found = true;
    }
    if (!found)
        err << "velkor6: help: no member named " << name << '\n';
    return found;
}

bool isWord(std::u16string_view line, std::u16string_view word) {
    return textEqual(line, word, Compare::Text);
}

} // namespace

int runScript(const Options& givenOptions, const LineSource& lines, std::ostream& out,
              std::ostream& err) {
    Options options;
    std::unique_ptr<Session> session;
    try {
        options = resolveAppOptions(givenOptions);
        session = std::make_unique<Session>(options);
    } catch (const UsageError& e) {
        printUsageError(e, err);
        return 2;
    } catch (const VbError& e) {
        printError(e, err);
        return 1;
    }
    std::size_t lineNumber = 0;
    bool failed = false;
    while (const auto line = lines()) {
        ++lineNumber;
        std::u16string text = fromUtf8(*line);
        if (lineNumber == 1 && text.starts_with(u'\uFEFF'))
            text.erase(0, 1);
        const std::u16string_view trimmed = trimSpaces(text);
        if (isWord(trimmed, u"quit") || isWord(trimmed, u"exit"))
            break;
        if (isWord(trimmed, u"help") ||
            (trimmed.size() > 5 && isWord(trimmed.substr(0, 5), u"help "))) {
            failed |= !printHelp(trimSpaces(trimmed.substr(4)), out, err);
            continue;
        }
        try {
            for (ParsedCall& call : parseScriptLine(trimmed)) {
                if (!session->call(options, call.member, call.arguments, std::move(call.assigned),
                                   out, err))
                    failed = true;
            }
        } catch (const UsageError& e) {
            out << std::flush;
            err << "velkor6: line " << lineNumber << ": " << e.what() << '\n';
            failed = true;
        }
        // A reader that has gone (a closed pipe, a full disk) ends the script.
        if (!out.flush())
            return 1;
    }
    return failed ? 1 : 0;
}

namespace {

template <class Target>
std::u16string heading(const dispatch::Member<Target>& m) {
    return m.kind == CallKind::Method ? m.name : m.name + u" (" + kindLabel(m) + u")";
}

// The anchor GitHub gives a heading: lower case, punctuation dropped, spaces as hyphens.
std::string anchor(std::u16string_view heading) {
    std::string out;
    for (const char16_t c : heading) {
        if (c == u' ' || c == u'-')
            out += '-';
        else if ((c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'_')
            out += static_cast<char>(c);
        else if (c >= u'A' && c <= u'Z')
            out += static_cast<char>(c - u'A' + u'a');
    }
    return out;
}

template <class Target>
void listContents(const dispatch::Table<Target>& table, std::string_view cls, std::ostream& out) {
    out << "- [Class " << cls << "](#class-" << cls << "):";
    const char* separator = " ";
    for (const auto& m : table) {
        const std::u16string h = heading(m);
        out << separator << '[' << h << "](#" << anchor(h) << ')';
        separator = ", ";
    }
    out << '\n';
}

template <class Target>
void listMembers(const dispatch::Table<Target>& table, std::u16string_view prefix, bool markdown,
                 std::ostream& out) {
    for (const auto& m : table) {
        if (!markdown) {
            out << kindLabel(m) << ' ' << prefix << signature(m) << '\n';
            continue;
        }
        out << "\n### " << heading(m) << "\n\n";
        out << "VB: `" << kindLabel(m) << ' ' << signature(m) << "`\n\n";
        out << "C++: `" << dispatch::cppDeclaration(m) << "`\n";
        if (!m.summary.empty())
            out << '\n' << m.summary << '\n';
        if (!m.notes.empty())
            out << '\n' << m.notes << '\n';
    }
}

} // namespace

std::vector<std::string> completionWords() {
    std::vector<std::string> words = {"help", "quit", "exit"};
    auto add = [&](const auto& table) {
        for (const auto& m : table) {
            std::string name = toUtf8(m.name);
            if (std::find(words.begin(), words.end(), name) == words.end())
                words.push_back(std::move(name));
        }
    };
    add(dispatch::libMembers());
    add(dispatch::applibMembers());
    return words;
}

int runMembers(bool markdown, std::ostream& out) {
    if (markdown) {
        out << "# Member reference\n\n"
               "Generated from the member tables by `velkor6 members --markdown`; do not edit.\n\n"
               "Each member is declared twice: as COM clients call it (VB), and as a C++ program "
               "calls it (the member function of `velkor6::lib` in `<velkor6/lib.h>` or of "
               "`velkor6::applib` in `<velkor6/applib.h>`).\n\n"
               "## Contents\n\n";
        listContents(dispatch::libMembers(), "lib", out);
        listContents(dispatch::applibMembers(), "applib", out);
        out << "\n## Class lib\n";
    }
    listMembers(dispatch::libMembers(), u"", markdown, out);
    if (markdown)
        out << "\n## Class applib\n";
    listMembers(dispatch::applibMembers(), u"applib.", markdown, out);
    return 0;
}

} // namespace velkor6::cli
