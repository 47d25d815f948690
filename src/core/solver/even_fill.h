#pragma once

#include "core/solver/chance.h"
#include "core/solver/packed_board.h"

#include <optional>

namespace tessaly {

/// A filling and the weight that makes up for how often it is drawn: the more, the rarer it is.
struct WeightedFilling {
    HexagonWords cells{};
    double weight = 1;
};

/// A random filling; nothing when it ran into a dead end, which has not been seen.
///
/// Hexagon by hexagon in row order the digits of the open sides are drawn, each choice with a
/// chance that grows with what it leaves to the hexagons beyond: the product, over their own open
/// sides, of how many digits each of these could still hold. The chance of a filling is thus known,
/// it is the product of chance over sum at every hexagon, and its weight is one over that.
///
/// Chances are whole numbers and weights products and quotients of them, so a seed gives the same
/// filling on every machine.
std::optional<WeightedFilling> drawWeightedFilling(Chance& chance);

/// 1.4 times the mean weight; 10.5 of 100 fillings are heavier.
inline constexpr double HeavyWeight = 9.5e14;

/// A random filling, any two as likely as each other but for what follows.
///
/// A weighted filling is taken with the chance that its weight has over `HeavyWeight`, and always
/// when it is heavier (rejection sampling; John von Neumann, "Various techniques used in connection
/// with random digits", 1951). So only the heaviest are too rare. What unevenness that leaves is
/// spread by one of the board's twelve symmetries, drawn at random: any two cells agree as often as
/// they should within 0.07 percentage points. Each filling takes 1.44 weighted ones.
std::optional<HexagonWords> drawEvenFilling(Chance& chance);

} // namespace tessaly
