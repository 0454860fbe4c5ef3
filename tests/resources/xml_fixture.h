// Tests over the fake platform that need XML documents; skipped on a platform without them.
#pragma once

#include "fake/fake_platform.h"

#include <gtest/gtest.h>

namespace velkor6::test {

class WithXml : public ::testing::Test {
protected:
    void SetUp() override {
        if (!p.module->platform().xml)
            GTEST_SKIP() << "this platform has no XML service";
    }

    fake::FakePlatform p;
};

} // namespace velkor6::test
