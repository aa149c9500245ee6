// A test of the built-in default SAN with its two production adapters at
// hand, at a pinned clock.
#pragma once

#include "model/DefaultSan.h"
#include "model/View.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace sim {

class DefaultSanTest : public ::testing::Test {
protected:
    static constexpr u64 kDev0 = 0x2000001B32A10C00ull;
    static constexpr u64 kDev1 = 0x2000001B32A10D00ull;

    void SetUp() override
    {
        setenv("HBASIM_TIME", "1700000000", 1);
        san = defaultSan();
        dev0 = findAdapter(san, kDev0);
        dev1 = findAdapter(san, kDev1);
        ASSERT_NE(dev0, nullptr);
        ASSERT_NE(dev1, nullptr);
    }

    San san;
    Adapter* dev0 = nullptr;
    Adapter* dev1 = nullptr;
};

} // namespace sim
