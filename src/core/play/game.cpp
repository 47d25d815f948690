#include "core/play/game.h"

#include "core/board/tables.h"
#include "core/play/assists.h"
#include "core/play/pencil_marks.h"

#include <algorithm>
#include <charconv>
#include <sstream>
#include <utility>
#include <vector>

namespace tessaly {
namespace {

/// The step that is about to change many cells.
std::string wideStep(const Play& play) {
    return std::to_string(play.undoList.size()) + " " + positionText(play);
}

} // namespace

std::string NumText(int number) {
    return std::to_string(number);
}

bool Game::isReadable(CellId cell) const {
    return cell && !board.SolNum[cell].empty() && !board.isBlank(cell.hexagon);
}

bool Game::isSelectable(CellId cell) const {
    return isReadable(cell) && !board.FixedCell[cell];
}

void Game::startPuzzle() {
    Play fresh;
    fresh.board = std::move(board);
    static_cast<Play&>(*this) = std::move(fresh);
    forgetReset();
}

void Game::takeAway() {
    board = {};
    startPuzzle();
}

void Game::forgetWhatWas() {
    m_typedWithEffects = {};
    redoSteps.clear();
    forgetReset();
}

void Game::told(CellId last) {
    const bool comesOut = !isFinished && isSolved(board);
    if (comesOut)
        isFinished = wasSolved = true;
    if (changed)
        changed();
    if (comesOut && solved)
        solved(last);
}

void Game::PushUndo(int hexagon, int position) {
    if (hexagon < 1 || position < 1)
        return;
    const CellId cell{hexagon, position};
    forgetWhatWas();
    undoList.push(cell, false, board.CellNum[cell]);
    TouchedCell[cell] = true;
}

void Game::pushGrouped(CellId cell) {
    forgetWhatWas();
    undoList.push(cell, true, board.CellNum[cell]);
}

void Game::pushWideStep() {
    forgetWhatWas();
    wideSteps.push(wideStep(*this));
}

HexagonSet Game::place(CellId cell, const std::string& entry) {
    std::vector<CellChange> changes = effectsOf(board, switches, cell, entry);
    changes.empty() ? PushUndo(cell.hexagon, cell.position) : pushWideStep();
    changes.push_back({cell, entry});
    HexagonSet changedHexagons;
    for (const CellChange& change : changes) {
        TouchedCell[change.cell] = true;
        if (std::exchange(board.CellNum[change.cell], change.entry) != change.entry)
            changedHexagons.set(static_cast<std::size_t>(change.cell.hexagon));
    }
    told(cell);
    return changedHexagons;
}

HexagonSet Game::typeDigit(CellId cell, char digit) {
    const std::string digits = digitsOf(board.CellNum[cell]);
    const std::string typed(1, digit);
    if (digits.empty() || marksOf(typed) == board.CellNum[cell]) {
        const HexagonSet changedHexagons = place(cell, typed);
        if (undoList.size() == recordsBeneathWideStep())
            m_typedWithEffects = cell;
        return changedHexagons;
    }
    if (digits.size() >= MostMarks || digits.find(digit) != std::string::npos)
        return {};
    HexagonSet changedHexagons;
    if (m_typedWithEffects == cell) {
        takeBackWideStep();
        PushUndo(cell.hexagon, cell.position);
        changedHexagons.set();
    }
    forgetWhatWas();
    board.CellNum[cell] = digits + digit;
    changedHexagons.set(static_cast<std::size_t>(cell.hexagon));
    told(cell);
    return changedHexagons;
}

HexagonSet Game::turnMark(CellId cell, char digit) {
    PushUndo(cell.hexagon, cell.position);
    board.CellNum[cell] = withMarkTurned(board.CellNum[cell], digit);
    told(cell);
    return HexagonSet().set(static_cast<std::size_t>(cell.hexagon));
}

void Game::CopyAcrossSides(int& count) {
    int copied = 0;
    CellId last;
    for (CellId cell : AllCells) {
        const CellId partner = SideLink[cell];
        if (cell.hexagon == board.SkipHex || !partner || partner.hexagon == board.BlankHex)
            continue;
        if (!isPlaced(board.CellNum[partner]) || isPlaced(board.CellNum[cell]))
            continue;
        pushGrouped(cell);
        board.CellNum[cell] = board.CellNum[partner];
        TouchedCell[cell] = true;
        last = cell;
        ++copied;
    }
    count += copied;
    if (copied > 0)
        told(last);
}

int Game::setSingles() {
    int count = 0;
    CellId last;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        const Single single = SingleCandidate(board, hexagon);
        if (!single.cell)
            continue;
        pushGrouped(single.cell);
        board.CellNum[single.cell] = single.number;
        last = single.cell;
        ++count;
    }
    if (count > 0)
        told(last);
    return count;
}

void Game::fillMarks() {
    pushWideStep();
    fillPencilMarks(board, TouchedCell);
    told();
}

void Game::clearMarks() {
    pushWideStep();
    clearPencilMarks(board);
    told();
}

std::size_t Game::recordsBeneathWideStep() const {
    std::size_t records = 0;
    if (!wideSteps.empty()) {
        const std::string& step = wideSteps.newest();
        std::from_chars(step.data(), step.data() + step.size(), records);
    }
    return records;
}

std::string Game::undoRecord(HexagonSet& changedHexagons) {
    std::string text = undoList.pop();
    const UndoRecord record = UndoRecord::of(text);
    board.CellNum[record.cell] = record.entryBefore;
    if (record.grouped)
        TouchedCell[record.cell] = false;
    changedHexagons.set(static_cast<std::size_t>(record.cell.hexagon));
    return text;
}

void Game::takeBackWideStep() {
    const std::string step = wideSteps.pop();
    readPosition(std::string_view(step).substr(step.find(' ') + 1), *this);
}

void Game::undoStep(HexagonSet& changedHexagons) {
    std::string taken = positionText(*this);
    const std::size_t beneath = recordsBeneathWideStep();
    if (undoList.size() == beneath) {
        takeBackWideStep();
        changedHexagons.set();
    } else {
        std::vector<std::string> records{undoRecord(changedHexagons)};
        const auto isGrouped = [](const std::string& text) { return UndoRecord::of(text).grouped; };
        while (isGrouped(records.back()) && undoList.size() > beneath &&
               isGrouped(undoList.newest()))
            records.push_back(undoRecord(changedHexagons));
        std::reverse(records.begin(), records.end());
        for (const std::string& record : records)
            taken.append("\n").append(record);
    }
    redoSteps.push(std::move(taken));
}

HexagonSet Game::undo() {
    HexagonSet changedHexagons;
    m_typedWithEffects = {};
    if (!canUndo())
        return changedHexagons;
    if (m_beforeReset) {
        static_cast<Play&>(*this) = *std::exchange(m_beforeReset, std::nullopt);
        changedHexagons.set();
    } else {
        undoStep(changedHexagons);
    }
    told();
    return changedHexagons;
}

void Game::redo() {
    if (!canRedo())
        return;
    std::istringstream step(redoSteps.pop());
    std::string position;
    std::getline(step, position);
    if (step.eof())
        wideSteps.push(wideStep(*this));
    for (std::string record; std::getline(step, record);)
        undoList.push(record);
    readPosition(position, *this);
    told();
}

void Game::reset() {
    Play before = *this;
    for (TextStack* stack :
         {static_cast<TextStack*>(&before.undoList), &before.wideSteps, &before.redoSteps})
        stack->setStored(0); // what is stored now goes
    board.ResetToGivens();
    startPuzzle();
    wasSolved = before.wasSolved;
    if (before.isBegun())
        m_beforeReset = std::move(before);
    told();
}

bool Game::forgetReset() {
    return std::exchange(m_beforeReset, std::nullopt).has_value();
}

void Game::takeHint() {
    ++hints;
    told();
}

} // namespace tessaly
