#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tessaly {

enum class Difficulty { Easy, Hard };

/// How a difficulty is written: as the first letter of a puzzle record, and in words.
struct DifficultyEntry {
    Difficulty difficulty;
    char letter;
    std::string_view name;
};

/// Every difficulty there is; menus, files and the command line all read this table.
inline constexpr std::array<DifficultyEntry, 2> Difficulties{{
    {Difficulty::Easy, 'E', "Easy"},
    {Difficulty::Hard, 'H', "Hard"},
}};

constexpr const DifficultyEntry& entryOf(Difficulty difficulty) {
    return Difficulties[static_cast<std::size_t>(difficulty)];
}
static_assert(entryOf(Difficulty::Easy).difficulty == Difficulty::Easy);
static_assert(entryOf(Difficulty::Hard).difficulty == Difficulty::Hard);

/// What may be asked for: one difficulty, or ("Random") one drawn anew for each puzzle.
using DifficultyChoice = std::optional<Difficulty>;

inline constexpr std::string_view RandomDifficultyName = "Random";

constexpr std::string_view nameOf(DifficultyChoice choice) {
    return choice ? entryOf(*choice).name : RandomDifficultyName;
}

} // namespace tessaly
