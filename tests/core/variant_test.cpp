#include "velkor6/variant.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

TEST(Variant, CopiesArraysDeeplyAndReportsTypes) {
    Variant a = Variant::array({Variant(std::int16_t{1}), Variant(u"x")});
    Variant b = a;
    b.array().items[0] = Variant(2.5);
    EXPECT_EQ(a.array().items[0], Variant(std::int16_t{1}));
    EXPECT_EQ(b.type(), VarType::Array | VarType::Variant);
    EXPECT_EQ(Variant::nothing().type(), VarType::Object);
    EXPECT_NE(Variant(std::int16_t{1}), Variant(std::int32_t{1}));
}

} // namespace
} // namespace velkor6
