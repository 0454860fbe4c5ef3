// A `lib` over a bare platform: the text members need no operating-system service, only the
// locale that numeric words are read in.
#pragma once

#include "velkor6/lib.h"

#include <gtest/gtest.h>
#include <memory>

namespace velkor6::text {

inline lib members(const Locale& locale = Locale::englishUS()) {
    return lib(std::make_shared<Module>(std::make_unique<Platform>(), locale));
}

class MemberTest : public ::testing::Test {
protected:
    lib l = members();
};

} // namespace velkor6::text
