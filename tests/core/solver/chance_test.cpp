#include "core/solver/chance.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <numeric>
#include <set>
#include <vector>

namespace tessaly {
namespace {

TEST(Chance, ASeedGivesTheSameNumbersOnEveryMachine) {
    Chance chance(2026, 7);
    EXPECT_EQ(chance.next(), 5223325444777733204U);
    EXPECT_EQ(chance.next(), 18416556281017991079U);
    EXPECT_EQ(chance.below(1000000), 761574U);
}

TEST(Chance, SeedsAndStreamsDiffer) {
    std::set<std::uint64_t> firsts;
    for (std::uint64_t seed = 0; seed < 100; ++seed)
        for (std::uint64_t stream = 0; stream < 100; ++stream)
            firsts.insert(Chance(seed, stream).next());
    EXPECT_EQ(firsts.size(), 10000U);
    EXPECT_NE(Chance::freshSeed(), Chance::freshSeed());
}

TEST(Chance, EveryNumberBelowABoundIsEquallyLikely) {
    Chance chance(3);
    constexpr int Draws = 70000;
    std::array<int, 7> counts{};
    for (int i = 0; i < Draws; ++i)
        ++counts.at(chance.below(7));
    double deviation = 0;
    for (int count : counts)
        deviation += (count - Draws / 7.0) * (count - Draws / 7.0) / (Draws / 7.0);
    EXPECT_LT(deviation, 22.5) << "chi squared, six degrees of freedom, one in a thousand";
    EXPECT_EQ(chance.below(1), 0U);

    // Three quarters of the range: every fourth number must be drawn again, or a third of them
    // would come twice as often.
    constexpr std::uint32_t Large = 3U << 30;
    std::array<int, 3> thirds{};
    for (int i = 0; i < Draws; ++i)
        ++thirds.at(chance.below(Large) % 3);
    for (int count : thirds)
        EXPECT_NEAR(count, Draws / 3.0, 600);
}

TEST(Chance, EveryOrderIsEquallyLikely) {
    Chance chance(4);
    std::map<std::vector<int>, int> orders;
    constexpr int Draws = 24000;
    for (int i = 0; i < Draws; ++i) {
        std::vector<int> items(4);
        std::iota(items.begin(), items.end(), 0);
        chance.shuffle(items);
        ++orders[items];
    }
    ASSERT_EQ(orders.size(), 24U);
    for (const auto& [order, count] : orders)
        EXPECT_NEAR(count, Draws / 24.0, 160);
}

} // namespace
} // namespace tessaly
