#pragma once

#include "core/board/difficulty.h"
#include "core/solver/search_fill.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tessaly {

/// The days have a series of puzzles of their own. Its version goes into their seeds, and up with
/// every change of the engine that gives other puzzles, so that two programs which say the same one
/// have the same puzzle on the same day.
inline constexpr int DaySeriesVersion = 1;

/// The day that "2026-11-21" names; nothing when there is no such day.
std::optional<std::chrono::year_month_day> readDay(std::string_view text);

/// The record of a day's puzzle, the same for everybody.
std::string puzzleOfDay(std::chrono::year_month_day day, DifficultyChoice difficulty,
                        const SearchFill& fill);

} // namespace tessaly
