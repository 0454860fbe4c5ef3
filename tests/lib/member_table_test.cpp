// The member tables against what clients and the C++ API were given: the pinned dispatch ids,
// the defaults of the public headers, and each member's body beside its row.
#include "core/text.h"
#include "lib/applib_members.h"
#include "lib/cpp_declaration.h"
#include "lib/lib_members.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <sstream>
#include <string>

namespace velkor6::dispatch {
namespace {

std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

const std::filesystem::path source = VELKOR6_SOURCE_DIR;

template <class Target>
void checkIds(const Table<Target>& table, const std::string& cls,
              const std::map<std::string, int>& pinned) {
    std::map<std::string, std::int32_t> idOfName;
    std::map<std::int32_t, std::string> nameOfId;
    for (const auto& m : table) {
        const std::string name = toUtf8(m.name);
        EXPECT_GT(m.id, 0) << cls << "." << name << " has no dispatch id";
        // A property's get and let share their id; different names never do.
        const auto [byName, newName] = idOfName.emplace(name, m.id);
        EXPECT_EQ(byName->second, m.id) << cls << "." << name << " has two ids";
        const auto [byId, newId] = nameOfId.emplace(m.id, name);
        EXPECT_EQ(byId->second, name) << cls << " id " << m.id << " is repeated";
        const auto it = pinned.find(cls + " " + name);
        if (it == pinned.end())
            ADD_FAILURE() << cls << "." << name << " (id " << m.id
                          << ") is missing from tests/lib/member_ids.txt";
        else
            EXPECT_EQ(m.id, it->second) << cls << "." << name << " changed its id";
    }
    for (const auto& [key, id] : pinned) {
        if (key.rfind(cls + " ", 0) == 0)
            EXPECT_TRUE(idOfName.count(key.substr(cls.size() + 1)))
                << key << " (id " << id << ") is gone from the table";
    }
}

TEST(MemberTables, DispatchIdsArePinnedUniqueAndSharedByGetAndLet) {
    std::map<std::string, int> pinned;
    std::istringstream lines(readFile(source / "tests/lib/member_ids.txt"));
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream words(line);
        std::string cls, name;
        int id = 0;
        words >> cls >> name >> id;
        pinned[cls + " " + name] = id;
    }
    ASSERT_GT(pinned.size(), 80u);
    checkIds(libMembers(), "lib", pinned);
    checkIds(applibMembers(), "applib", pinned);
}

// A parameter of a C++ declaration: its name and default expression ("" when it has none).
struct CppParam {
    std::string name;
    std::string defaultText;
};

// The declarations of one class in a public header, by member name.
std::map<std::string, std::vector<CppParam>> declarations(const std::string& header,
                                                          const std::string& cls) {
    const std::string text = readFile(source / "include/velkor6" / header);
    const std::size_t begin = text.find("class VELKOR6_API " + cls + " {");
    const std::string body = text.substr(begin, text.find("\n};", begin) - begin);
    std::map<std::string, std::vector<CppParam>> out;
    static const std::regex declaration(R"(([A-Za-z]\w*)\(((?:[^;{}]|\{\})*)\)\s*;)");
    for (std::sregex_iterator it(body.begin(), body.end(), declaration), end; it != end; ++it) {
        std::vector<CppParam> params;
        std::string list = (*it)[2];
        int depth = 0;
        bool quoted = false; // a comma inside a default text separates nothing
        std::string current;
        list += ',';
        for (const char c : list) {
            if (c == '"')
                quoted = !quoted;
            if (quoted) {
                current += c;
                continue;
            }
            if (c == '(' || c == '{' || c == '<')
                ++depth;
            if (c == ')' || c == '}' || c == '>')
                --depth;
            if (c != ',' || depth > 0) {
                current += c;
                continue;
            }
            static const std::regex param(R"(\s*(.*?)\s*([A-Za-z]\w*)\s*(?:=\s*(.*?))?\s*$)");
            std::smatch m;
            if (std::regex_match(current, m, param) && !m[1].str().empty())
                params.push_back({m[2], m[3]});
            current.clear();
        }
        out[(*it)[1]] = params;
    }
    return out;
}

// Whether a C++ default expression states the same value as a row's default.
bool sameDefault(const std::string& cpp, const Variant& row) {
    if (cpp == "nullptr")
        return true; // an output the caller may leave out: the row's default is its start value
    if (cpp == "Variant::missing()")
        return row.isMissing();
    if (cpp == "{}")
        return (row.isString() && row.string().empty()) || row.isEmpty() || row.isMissing() ||
               (row.isObject() && !row.object());
    if (cpp == "true" || cpp == "false")
        return row.type() == VarType::Boolean && row.boolean() == (cpp == "true");
    if (cpp.size() >= 3 && cpp.rfind("u\"", 0) == 0)
        return row.isString() && toUtf8(row.string()) == cpp.substr(2, cpp.size() - 3);
    static const std::regex number(R"(-?[0-9]+)");
    if (std::regex_match(cpp, number)) {
        switch (row.type()) {
        case VarType::Integer:
            return row.integer() == std::stol(cpp);
        case VarType::Long:
            return row.longValue() == std::stol(cpp);
        default:
            return false;
        }
    }
    return false;
}

// The table spells a parameter the IDL reserves as the type library does.
std::string rowNameOf(const std::string& cppName) {
    return cppName == "defaultValue" ? "default" : cppName;
}

template <class Target>
void checkDefaults(const Table<Target>& table, const std::string& header, const std::string& cls) {
    const auto cpp = declarations(header, cls);
    for (const auto& m : table) {
        const std::string name = toUtf8(m.name) + (m.kind == CallKind::PropertyLet ? "Let" : "");
        const auto it = cpp.find(name);
        if (it == cpp.end()) {
            ADD_FAILURE() << cls << "::" << name << " is not declared in " << header;
            continue;
        }
        for (const CppParam& p : it->second) {
            const std::string rowName = rowNameOf(p.name);
            const Param* row = nullptr;
            for (const Param& candidate : m.params) {
                if (toUtf8(candidate.name) == rowName)
                    row = &candidate;
            }
            if (row == nullptr || p.defaultText.empty())
                continue;
            EXPECT_TRUE(row->optional) << name << "(" << p.name << ") has a C++ default only";
            EXPECT_TRUE(sameDefault(p.defaultText, row->defaultValue))
                << name << "(" << p.name << "): C++ default " << p.defaultText
                << " differs from the row's";
        }
        // An optional parameter before the last C++ one must carry its default there too,
        // unless a parameter without one follows it (a let's assigned value).
        bool laterRequired = false;
        for (auto p = it->second.rbegin(); p != it->second.rend(); ++p) {
            const std::string rowName = rowNameOf(p->name);
            for (const Param& row : m.params) {
                if (toUtf8(row.name) == rowName && row.optional && !laterRequired)
                    EXPECT_FALSE(p->defaultText.empty())
                        << name << "(" << p->name << ") is optional in the row only";
            }
            laterRequired = laterRequired || p->defaultText.empty();
        }
    }
}

// An omitted argument takes the default as it stands, so it must be of the declared type: the
// bodies read arguments with exact accessors.
template <class Target>
void checkDefaultTypes(const Table<Target>& table) {
    for (const auto& m : table)
        for (const Param& p : m.params)
            if (p.optional && p.type != VarType::Variant && !isArrayType(p.type) &&
                !p.defaultValue.isMissing() && p.type != VarType::Object)
                EXPECT_EQ(p.defaultValue.type(), p.type) << toUtf8(m.name) << " " << toUtf8(p.name);
}

TEST(MemberTables, DefaultsHaveTheDeclaredType) {
    checkDefaultTypes(libMembers());
    checkDefaultTypes(applibMembers());
}

TEST(MemberTables, RowDefaultsMatchThePublicHeaders) {
    checkDefaults(libMembers(), "lib.h", "lib");
    checkDefaults(applibMembers(), "applib.h", "applib");
}

// The member reference's C++ signatures are the headers' declarations, word for word.
template <class Target>
void checkCppDeclarations(const Table<Target>& table, const std::string& header,
                          const std::string& cls) {
    const std::string text = readFile(source / "include/velkor6" / header);
    const std::size_t begin = text.find("class VELKOR6_API " + cls + " {");
    std::string body = text.substr(begin, text.find("\n};", begin) - begin);
    body = std::regex_replace(body, std::regex(R"(\s*//[^\n]*)"), "");
    body = std::regex_replace(body, std::regex(R"(\s+)"), " ");
    body = std::regex_replace(body, std::regex(R"(\( )"), "(");
    for (const auto& m : table) {
        const std::string declaration = toUtf8(cppDeclaration(m)) + ";";
        EXPECT_NE(body.find(" " + declaration), std::string::npos)
            << declaration << " is not what " << header << " declares";
    }
}

TEST(MemberTables, CppDeclarationsAreThoseOfThePublicHeaders) {
    checkCppDeclarations(libMembers(), "lib.h", "lib");
    checkCppDeclarations(applibMembers(), "applib.h", "applib");
}

// One hop from a member to its code: the file with a member's row also holds its body.
TEST(MemberTables, EachBodySitsBesideItsRow) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(source / "src/lib")) {
        if (entry.path().extension() == ".cpp")
            files[entry.path().filename().string()] = readFile(entry.path());
    }
    const auto check = [&](const std::string& cls, const std::u16string& member, CallKind kind) {
        const std::string name = toUtf8(member);
        const std::string row = "u\"" + name + "\",";
        const std::string body = cls + "::" + name + (kind == CallKind::PropertyLet ? "Let(" : "(");
        for (const auto& [file, text] : files) {
            if (text.find(row) != std::string::npos) {
                EXPECT_NE(text.find(body), std::string::npos)
                    << "src/lib/" << file << " has the row of " << name << " but not its body";
                return;
            }
        }
        ADD_FAILURE() << "no file in src/lib has the row of " << name;
    };
    for (const auto& m : libMembers())
        check("lib", m.name, m.kind);
    for (const auto& m : applibMembers())
        check("applib", m.name, m.kind);
}

} // namespace
} // namespace velkor6::dispatch
