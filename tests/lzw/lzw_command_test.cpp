#include "lzw_command.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace velkor6::cli {
namespace {

TEST(LzwCommand, BytesRoundTripAndDamagedStreamsFail) {
    std::string bytes;
    for (unsigned i = 0; i < 70000; ++i)
        bytes += static_cast<char>(i * 7 % 256 == 26 ? 0 : i * i % 253);
    std::istringstream in(bytes);
    std::ostringstream packed;
    ASSERT_EQ(runDeflate(in, packed), 0);

    for (bool strict : {true, false}) {
        std::istringstream packedIn(packed.str());
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(runInflate(packedIn, out, strict, err), 0);
        EXPECT_TRUE(err.str().empty());
        if (strict) {
            EXPECT_TRUE(out.str() == bytes);
        }
    }

    std::istringstream cut(packed.str().substr(0, 5000));
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(runInflate(cut, out, true, err), 1);
    EXPECT_EQ(err.str(), "error 9: Subscript out of range (velkor6)\n");
}

} // namespace
} // namespace velkor6::cli
