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

#include <iostream>
#include <memory>

namespace velkor6::cli {
namespace {

std::ostream& operator<<(std::ostream& os, std::u16string_view s) {
    return os << toUtf8(s);
}

std::shared_ptr<Module> makeModule(const Options& options) {
    auto module = Module::createDefault();
    if (!options.locale.empty())
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

// Calls one member with parsed arguments; prints the result, then every output parameter (a
// ByRef parameter the member writes), changed or not.
template <class Target>
void callAndPrint(const dispatch::Table<Target>& table, Target& target, const Options& options,
                  const std::u16string& name, std::vector<ParsedArgument>& parsed,
                  std::optional<Variant> assigned, std::ostream& out) {
    const CallKind kind = assigned ? CallKind::PropertyLet : CallKind::Method;
    const auto* member = dispatch::find(table, name, kind);
    if (member == nullptr)
        dispatch::throwNoSuchMember(name);
    if (assigned)
        parsed.push_back({member->params.back().name, std::move(*assigned)});

    std::vector<dispatch::Argument> args;
    args.reserve(parsed.size());
    for (auto& p : parsed)
        args.push_back({&p.value, p.name});
    const Locale& loc = target.locale();
    std::vector<Variant> outputs;
    const Variant result =
        dispatch::call(*member, target, args, loc,
                       [&](const dispatch::Binding& binding) { outputs = binding.values; });

    if (member->result != VarType::Empty)
        out << (options.typed ? typedLiteral(result) : printText(result, loc)) << '\n';
    for (std::size_t i = 0; i < member->params.size(); ++i) {
        if (member->params[i].output)
            printNamed(member->params[i].name, outputs[i], out);
    }
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

    void call(const Options& options, const std::u16string& name,
              std::vector<ParsedArgument>& parsed, std::optional<Variant> assigned,
              std::ostream& out) {
        if (app_)
            callAndPrint(dispatch::applibMembers(), *app_, options, name, parsed,
                         std::move(assigned), out);
        else
            callAndPrint(dispatch::libMembers(), lib_, options, name, parsed, std::move(assigned),
                         out);
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
        err << "usage: velkor6 call [--typed] [--let] [--locale de-DE|en-US] MEMBER [ARG ...]\n";
        return 2;
    }
    Options options;
    std::vector<ParsedArgument> parsed;
    std::optional<Variant> assigned;
    try {
        options = resolveAppOptions(givenOptions);
        for (std::size_t i = 1; i < words.size(); ++i)
            parsed.push_back(parseCommandArgument(fromUtf8(words[i])));
    } catch (const UsageError& e) {
        printUsageError(e, err);
        return 2;
    }
    if (options.let) {
        if (parsed.empty()) {
            err << "velkor6 call --let: the last argument is the value to assign\n";
            return 2;
        }
        assigned = std::move(parsed.back().value);
        parsed.pop_back();
    }
    try {
        Session session(options);
        session.call(options, fromUtf8(words[0]), parsed, std::move(assigned), out);
    } catch (const VbError& e) {
        printError(e, err);
        return 1;
    }
    return 0;
}

int runScript(const Options& givenOptions, std::istream& in, std::ostream& out, std::ostream& err,
              bool interactive) {
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
    std::string line;
    std::size_t lineNumber = 0;
    bool unreadLines = false;
    while (true) {
        if (interactive)
            out << "velkor6> " << std::flush;
        if (!std::getline(in, line))
            break;
        ++lineNumber;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        const std::u16string text = fromUtf8(line);
        const std::u16string_view trimmed = trimSpaces(text);
        if (trimmed.empty() || trimmed.front() == u'\'')
            continue;
        try {
            ParsedCall call = parseCallLine(trimmed);
            session->call(options, call.member, call.arguments, std::move(call.assigned), out);
        } catch (const VbError& e) {
            out << std::flush;
            printError(e, err);
        } catch (const UsageError& e) {
            out << std::flush;
            err << "velkor6: line " << lineNumber << ": " << e.what() << '\n';
            unreadLines = true;
        }
        out << std::flush;
    }
    if (interactive)
        out << '\n';
    // A raised error is one of the results a script shows, not a failure of the program; a
    // line that could not be read is.
    return unreadLines ? 2 : 0;
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
