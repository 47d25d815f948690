#include "core/solver/chance.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace tessaly {
namespace {

// That a seed gives the same numbers on every machine is the engine's signature.
TEST(Chance, WhateverIsDrawnIsEquallyLikely) {
    EXPECT_NE(Chance::freshSeed(), Chance::freshSeed());
    Chance chance(3);
    std::map<std::string, double> counts;
    for (int i = 0; i < 48'000; ++i) {
        std::string order = "abcd";
        chance.shuffle(order);
        counts[order] += 24;
        // Of three quarters of the range every fourth number must be drawn again, or a third of
        // them would come twice as often.
        counts[std::to_string(chance.below(3U << 30) % 3)] += 3;
    }
    EXPECT_EQ(counts.size(), 24U + 3U);
    for (const auto& [kind, count] : counts)
        EXPECT_NEAR(count, 48'000, 4'000) << kind;
}

} // namespace
} // namespace tessaly
