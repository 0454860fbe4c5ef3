#include "command_line.h"

#include "app_options.h"
#include "literal.h"

#include <algorithm>
#include <array>
#include <getopt.h>
#include <string_view>

namespace velkor6::cli {

const char* const helpText =
    "Usage: velkor6 [OPTION]... [COMMAND [ARG]...]\n"
    "Calls the members of the velkor6 library by name.\n"
    "\n"
    "Commands:\n"
    "  (none)                    read calls in VB syntax from standard input, one line at a\n"
    "                              time; at a terminal, a prompt with history and completion\n"
    "  call MEMBER [ARG]...      call one member; each ARG is a VB literal, name:=literal,\n"
    "                              or else a String as written\n"
    "  members                   list the members of both classes\n"
    "  deflate                   compress standard input to standard output\n"
    "  inflate                   decompress standard input to standard output\n"
    "\n"
    "Options for calls (call, and the calls from standard input):\n"
    "      --typed               show results as typed literals (1%, 2&, \"text\")\n"
    "      --let                 (call) assign the last ARG to the property MEMBER\n"
    "      --locale=NAME         number and date conventions: de-DE, en-US, or an installed\n"
    "                              POSIX locale (locale -a); default: the environment's\n"
    "      --app=NAME            call the applib members of this application\n"
    "      --app-path=DIR        the application's folder (default: the current folder)\n"
    "      --app-version=X.Y.Z   its version, up to three numbers from 0 to 32767\n"
    "Options for members:\n"
    "      --markdown            the member reference in Markdown\n"
    "      --idl                 the type library's interface definition\n"
    "Options for inflate:\n"
    "      --compatible          decode as the Inflate member does\n"
    "      --strict              give back exactly what deflate packed (the default)\n"
    "\n"
    "  -h, --help                show this help and exit\n"
    "  -V, --version             show the version and build and exit\n"
    "\n"
    "Options may come before or after the command and its words; \"--\" ends them.\n"
    "Exit status: 0 on success, 1 when a member raised an error or output failed,\n"
    "2 for a command line the program cannot use.\n";

namespace {

// Which commands an option goes with.
enum Use : unsigned {
    script = 1,
    call = 2,
    members = 4,
    deflate = 8,
    inflate = 16,
    any = 31,
};

struct OptionRow {
    option def;
    unsigned use;
};

enum Code : int {
    typedCode = 256,
    letCode,
    localeCode,
    appCode,
    appPathCode,
    appVersionCode,
    markdownCode,
    idlCode,
    compatibleCode,
    strictCode,
};

constexpr std::array rows = {
    OptionRow{{"help", no_argument, nullptr, 'h'}, any},
    OptionRow{{"version", no_argument, nullptr, 'V'}, any},
    OptionRow{{"typed", no_argument, nullptr, typedCode}, script | call},
    OptionRow{{"let", no_argument, nullptr, letCode}, call},
    OptionRow{{"locale", required_argument, nullptr, localeCode}, script | call},
    OptionRow{{"app", required_argument, nullptr, appCode}, script | call},
    OptionRow{{"app-path", required_argument, nullptr, appPathCode}, script | call},
    OptionRow{{"app-version", required_argument, nullptr, appVersionCode}, script | call},
    OptionRow{{"markdown", no_argument, nullptr, markdownCode}, members},
    OptionRow{{"idl", no_argument, nullptr, idlCode}, members},
    OptionRow{{"compatible", no_argument, nullptr, compatibleCode}, inflate},
    OptionRow{{"strict", no_argument, nullptr, strictCode}, inflate},
};

unsigned commandUse(const std::string& command) {
    if (command.empty())
        return script;
    if (command == "call")
        return call;
    if (command == "members")
        return members;
    if (command == "deflate")
        return deflate;
    if (command == "inflate")
        return inflate;
    throw UsageError("unknown command '" + command + "' (call, members, deflate, inflate)");
}

std::size_t rowIndex(int code) {
    return static_cast<std::size_t>(
        std::find_if(rows.begin(), rows.end(),
                     [code](const OptionRow& r) { return r.def.val == code; }) -
        rows.begin());
}

bool isNegativeNumber(std::string_view word) {
    return word.size() > 1 && word[0] == '-' &&
           ((word[1] >= '0' && word[1] <= '9') || (word[1] == '.' && word.size() > 2));
}

// Why getopt turned a word down. getopt implementations differ in the code they give a value
// an option does not take, so the word itself tells.
std::string optionProblem(std::string_view word, int code, int shortOption) {
    if (!word.starts_with("--"))
        return "unknown option '-" + std::string(1, static_cast<char>(shortOption)) + "'";
    const std::size_t equals = word.find('=');
    const std::string_view name = word.substr(2, equals == word.npos ? word.npos : equals - 2);
    std::vector<const OptionRow*> prefixed;
    for (const OptionRow& r : rows) {
        const std::string_view full = r.def.name;
        if (full == name) {
            prefixed = {&r};
            break;
        }
        if (full.starts_with(name))
            prefixed.push_back(&r);
    }
    if (prefixed.size() > 1)
        return "ambiguous option '" + std::string(word) + "'";
    if (prefixed.empty())
        return "unknown option '" + std::string(word) + "'";
    const std::string option = "'--" + std::string(prefixed.front()->def.name) + "'";
    if (equals != word.npos && prefixed.front()->def.has_arg == no_argument)
        return "option " + option + " takes no value";
    if (code == ':')
        return "option " + option + " needs a value";
    return "unknown option '" + std::string(word) + "'";
}

} // namespace

CommandLine parseCommandLine(const std::vector<std::string>& args) {
    // getopt reads a writable argv; a negative number goes in with a space before it, which
    // makes it an argument, and comes out as it was written.
    std::vector<std::string> copies{"velkor6"};
    for (const std::string& a : args)
        copies.push_back(isNegativeNumber(a) ? " " + a : a);
    std::vector<char*> argv;
    for (std::string& c : copies)
        argv.push_back(c.data());
    argv.push_back(nullptr);
    auto original = [&](const char* text) {
        for (std::size_t i = 1; i < copies.size(); ++i) {
            if (text == copies[i].data())
                return args[i - 1];
        }
        return std::string(text);
    };

    std::vector<option> longOptions;
    for (const OptionRow& r : rows)
        longOptions.push_back(r.def);
    longOptions.push_back({nullptr, 0, nullptr, 0});

    CommandLine line;
    std::vector<std::string> positional;
    unsigned given = 0;
    bool strict = false;
    const auto argc = static_cast<int>(copies.size());
    opterr = 0;
    optind = 0; // starts getopt afresh
    while (true) {
        const int code = getopt_long(argc, argv.data(), "-:hV", longOptions.data(), nullptr);
        if (code == -1)
            break;
        const std::string word = optind > 0 && optind <= argc ? original(argv[optind - 1]) : "";
        if (code == '?' || code == ':')
            throw UsageError(optionProblem(word, code, optopt));
        if (code == 1) {
            positional.push_back(original(optarg));
            continue;
        }
        const std::string value = optarg != nullptr ? original(optarg) : "";
        switch (code) {
        case 'h':
            line.help = true;
            break;
        case 'V':
            line.version = true;
            break;
        case typedCode:
            line.options.typed = true;
            break;
        case letCode:
            line.options.let = true;
            break;
        case localeCode:
            checkLocale(value);
            line.options.locale = value;
            break;
        case appCode:
            line.options.appName = value;
            break;
        case appPathCode:
            line.options.appPath = value;
            break;
        case appVersionCode:
            line.options.appVersion = value;
            break;
        case markdownCode:
            line.markdown = true;
            break;
        case idlCode:
            line.idl = true;
            break;
        case compatibleCode:
            line.compatible = true;
            break;
        case strictCode:
            strict = true;
            break;
        default:
            break;
        }
        given |= 1u << rowIndex(code);
    }
    for (int i = optind; i < argc; ++i)
        positional.push_back(args[static_cast<std::size_t>(i) - 1]);
    if (line.help || line.version)
        return line;

    if (!positional.empty()) {
        line.command = positional.front();
        line.words.assign(positional.begin() + 1, positional.end());
    }
    const unsigned use = commandUse(line.command);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if ((given & (1u << i)) != 0 && (rows[i].use & use) == 0)
            throw UsageError(
                "option '--" + std::string(rows[i].def.name) + "' does not go with " +
                (line.command.empty() ? "calls from standard input" : "'" + line.command + "'"));
    }
    if (line.markdown && line.idl)
        throw UsageError("members: --markdown and --idl exclude each other");
    if (line.compatible && strict)
        throw UsageError("inflate: --compatible and --strict exclude each other");
    if ((use & (members | deflate | inflate)) != 0 && !line.words.empty())
        throw UsageError(line.command + ": unexpected argument '" + line.words.front() + "'");
    if (use == script && !line.words.empty())
        throw UsageError("unexpected argument '" + line.words.front() + "'");
    return line;
}

} // namespace velkor6::cli
