#include "lib/idl.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace velkor6 {
namespace {

std::string freshIdl() {
    std::ostringstream out;
    typelib::writeIdl(out);
    return out.str();
}

TEST(ComTypeLibrary, CommittedIdlMatchesTheMemberTables) {
    std::ifstream in(VELKOR6_IDL_FILE, std::ios::binary);
    std::stringstream committed;
    committed << in.rdbuf();
    const std::string fresh = freshIdl();
    if (committed.str() != fresh)
        std::ofstream("velkor6.idl.new", std::ios::binary) << fresh;
    EXPECT_TRUE(committed.str() == fresh)
        << "src/com/velkor6.idl is not current: velkor6 members --idl > src/com/velkor6.idl "
           "(the fresh one is velkor6.idl.new in the test's folder)";
}

TEST(ComTypeLibrary, ParametersCarryDirectionDefaultsAndTypes) {
    const std::string idl = freshIdl();
    for (const char* expected : {
             "dispinterface _lib",
             "coclass lib",
             "coclass applib",
             "short vkrFindSubString(",
             "[in] BSTR sSource,",
             "[in, defaultvalue(1)] short iStartSearch,",
             "[in, defaultvalue(-1)] VARIANT_BOOL bIgnoreCase,",
             // The compiler takes no string default for a reference; the server supplies it.
             "[in, out, optional] BSTR* sFound);",
             "propget",
             "propput",
             "SAFEARRAY(BSTR)*",
         }) {
        EXPECT_NE(idl.find(expected), std::string::npos) << expected;
    }
}

} // namespace
} // namespace velkor6
