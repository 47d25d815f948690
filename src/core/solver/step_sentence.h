#pragma once

#include "core/solver/mistakes.h"
#include "core/solver/next_step.h"

#include <string>

namespace tessaly {

/// Why a step is right, in one short sentence: "4 is the last number that hexagon 3 lacks." It
/// speaks of the step's cell as the one that is pointed at. `board` is the one before the step.
std::string sentenceOf(const Step& step, const Board& board);

/// What is wrong, and not yet where.
inline constexpr const char* MistakeSentence = "A number on the board is wrong.";
/// The same with its place.
std::string sentenceOf(const Mistake& mistake, const Board& board);

} // namespace tessaly
