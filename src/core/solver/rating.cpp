#include "core/solver/rating.h"

#include <algorithm>

namespace tessaly {
namespace {

/// What a step adds to the score when nothing else can be settled, by its reason in the order of
/// `Reasons`.
constexpr std::array<int, Reasons.size()> CostOf{0, 100, 200, 400, 1000};
/// So much more a step in the blank hexagon, which has to be kept in mind.
constexpr int BlankFactor = 2;

/// The scores at which puzzles of a difficulty get a second, third, fourth and fifth star: each
/// star is a fifth of 10,000 puzzles that `tessaly-cli create --seed 1` has made.
using Bounds = std::array<int, MostStars - 1>;
constexpr std::array<Bounds, Difficulties.size()> BoundsOf{{
    {1171, 1347, 1525, 1789},
    {1978, 2369, 2680, 3092},
}};

int starsOf(int score, Difficulty difficulty) {
    const Bounds& bounds = BoundsOf[static_cast<std::size_t>(difficulty)];
    return 1 +
           static_cast<int>(std::upper_bound(bounds.begin(), bounds.end(), score) - bounds.begin());
}

bool isSolved(const Board& board) {
    return std::all_of(AllCells.begin(), AllCells.end(), [&board](CellId cell) {
        return board.isBlank(cell.hexagon) || board.CellNum[cell] == board.SolNum[cell];
    });
}

} // namespace

std::optional<Rating> ratePuzzle(Board board) {
    board.ResetToGivens();
    Rating rating;
    WithheldDigits withheld{};
    while (const auto step = nextStep(board, withheld)) {
        const auto reason = static_cast<std::size_t>(step->reason);
        ++rating.steps[reason];
        const int cost = CostOf[reason] * (board.isBlank(step->cell.hexagon) ? BlankFactor : 1);
        if (cost != 0)
            rating.score += cost / countOpenSteps(board, withheld);
        take(*step, board, withheld);
    }
    if (!isSolved(board))
        return std::nullopt;
    rating.stars = starsOf(rating.score, board.difficulty);
    return rating;
}

std::string inWords(const Rating& rating) {
    std::string words = std::to_string(rating.stars)
                            .append(" of ")
                            .append(std::to_string(MostStars))
                            .append(" stars");
    for (const ReasonEntry& entry : Reasons)
        if (const int steps = rating.steps[static_cast<std::size_t>(entry.reason)]; steps > 0)
            words.append("\n").append(entry.description).append(": ").append(std::to_string(steps));
    return words;
}

} // namespace tessaly
