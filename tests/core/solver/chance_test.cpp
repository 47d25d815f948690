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
    for (std::uint64_t seed = 0; seed < 50; ++seed)
        for (std::uint64_t stream = 0; stream < 50; ++stream)
            firsts.insert(Chance(seed, stream).next());
    EXPECT_EQ(firsts.size(), 2500U);
    EXPECT_NE(Chance::freshSeed(), Chance::freshSeed());
}

TEST(Chance, WhateverIsDrawnIsEquallyLikely) {
    Chance chance(3);
    // Three quarters of the range: every fourth number must be drawn again, or a third of them
    // would come twice as often.
    constexpr std::uint32_t Large = 3U << 30;
    struct Row {
        const char* what;
        std::size_t kinds;
        std::function<std::string()> draw;
    };
    const auto order = [&chance] {
        std::string items = "abcd";
        chance.shuffle(items);
        return items;
    };
    for (const auto& [what, kinds, draw] :
         {Row{"below 7", 7, [&] { return std::to_string(chance.below(7)); }},
          Row{"below a large bound", 3, [&] { return std::to_string(chance.below(Large) % 3); }},
          Row{"orders", 24, order}}) {
        constexpr double Expected = 2000;
        std::map<std::string, double> counts;
        for (std::size_t i = 0; i < kinds * static_cast<std::size_t>(Expected); ++i)
            ++counts[draw()];
        ASSERT_EQ(counts.size(), kinds) << what;
        for (const auto& [kind, count] : counts)
            EXPECT_NEAR(count, Expected, 160) << what << ": " << kind;
    }
}

} // namespace
} // namespace tessaly
