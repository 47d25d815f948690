#include "core/play/hint_guide.h"

#include "core/play/assists.h"
#include "core/solver/step_sentence.h"

#include <utility>

namespace tessaly {

void HintGuide::startAnew(const Board& board) {
    if (board.SolNum != m_board.SolNum)
        m_withheld = {};
    m_board = board;
    m_step.reset();
    m_told = Told::Nothing;
}

bool HintGuide::entersNext(const Board& board) const {
    return m_told == Told::Why && m_step && !board.isBlank(m_step->cell.hexagon) &&
           board.CellNum == m_board.CellNum && board.SolNum == m_board.SolNum;
}

Hint HintGuide::next(const Board& board) {
    if (board.CellNum != m_board.CellNum || board.SolNum != m_board.SolNum)
        startAnew(board);
    if (const auto mistake = findMistake(board))
        return aboutMistake(*mistake);
    if (m_told == Told::Where) {
        m_told = Told::Why;
        return why();
    }
    if (m_told == Told::Why && m_step) // which the blank hexagon holds: it is enough to know it
        take(*m_step, m_board, m_withheld);
    m_told = Told::Nothing;
    m_step = nextStep(board, m_withheld);
    if (!m_step)
        return {isSolved(board) ? "The puzzle is solved." : "The rules lead no further from here."};
    m_told = Told::Where;
    return where();
}

Hint HintGuide::aboutMistake(const Mistake& mistake) {
    if (std::exchange(m_told, Told::Why) == Told::Nothing)
        return {MistakeSentence};
    return {sentenceOf(mistake, m_board), mistake.hexagon, 0, {}, mistake.cells};
}

Hint HintGuide::where() const {
    if (m_step->xcell != 0)
        return {"Look at the corner where these three hexagons meet.", 0, m_step->xcell};
    const int hexagon = m_step->cell.hexagon;
    return {m_board.isBlank(hexagon) ? std::string("Look at the solid hexagon.")
                                     : "Look at hexagon " + std::to_string(hexagon) + ".",
            hexagon};
}

Hint HintGuide::why() const {
    Hint hint = where();
    hint.sentence = sentenceOf(*m_step, m_board);
    hint.cell = m_step->cell;
    hint.proof = m_step->proof;
    return hint;
}

} // namespace tessaly
