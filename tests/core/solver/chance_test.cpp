#include "core/solver/chance.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>

namespace tessaly {
namespace {

TEST(Chance, ASeedGivesTheSameNumbersOnEveryMachineAndNoOtherOnes) {
    Chance chance(2026, 7);
    EXPECT_EQ(chance.next(), 5223325444777733204U);
    EXPECT_EQ(chance.next(), 18416556281017991079U);
    EXPECT_EQ(chance.below(1000000), 761574U);
    std::set<std::uint64_t> firsts;
    for (std::uint64_t i = 0; i < 2500; ++i)
        firsts.insert(Chance(i / 50, i % 50).next());
    EXPECT_EQ(firsts.size(), 2500U);
    EXPECT_NE(Chance::freshSeed(), Chance::freshSeed());
}

TEST(Chance, WhateverIsDrawnIsEquallyLikely) {
    Chance chance(3);
    const auto expectEven = [](std::size_t kinds, const std::function<std::string()>& draw) {
        constexpr std::size_t Expected = 2000;
        std::map<std::string, double> counts;
        for (std::size_t i = 0; i < kinds * Expected; ++i)
            ++counts[draw()];
        EXPECT_EQ(counts.size(), kinds);
        for (const auto& [kind, count] : counts)
            EXPECT_NEAR(count, Expected, 160) << kind << " of " << kinds;
    };
    expectEven(7, [&] { return std::to_string(chance.below(7)); });
    // Of three quarters of the range every fourth number must be drawn again, or a third of them
    // would come twice as often.
    expectEven(3, [&] { return std::to_string(chance.below(3U << 30) % 3); });
    expectEven(24, [&] {
        std::string order = "abcd";
        chance.shuffle(order);
        return order;
    });
}

} // namespace
} // namespace tessaly
