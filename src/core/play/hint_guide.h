#pragma once

#include "core/solver/mistakes.h"
#include "core/solver/next_step.h"
#include "core/solver/player_view.h"

#include <string>
#include <vector>

namespace tessaly {

/// What a hint says and marks on the board; nothing is marked while there is none.
struct Hint {
    std::string sentence;
    /// The hexagon, or the corner where three meet (1..24), to look at; 0 for none.
    int hexagon = 0;
    int xcell = 0;
    /// The cell that it is about, and those that prove it.
    CellId cell = {};
    std::vector<CellId> proof = {};
};

/// Gives hints, each in three: where to look, why something follows there, and then what it is.
/// What is wrong on the board comes before all else, and asked again where it is. What the blank
/// hexagon must hold is a hint of its own, which enters nothing.
class HintGuide {
public:
    /// The hint that comes next on this board. A board that has changed since begins anew.
    Hint next(const Board& board);

    /// Whether the hint given last, on this board, is about a number that the next one enters.
    bool entersNext(const Board& board) const;
    /// The step that is then to be entered.
    const Step& step() const { return m_step.value(); }

private:
    enum class Told { Nothing, Where, Why };

    void startAnew(const Board& board);
    Hint aboutMistake(const Mistake& mistake);
    Hint where() const;
    Hint why() const;

    Board m_board;
    WithheldDigits m_withheld{};
    std::optional<Step> m_step;
    Told m_told = Told::Nothing;
};

} // namespace tessaly
