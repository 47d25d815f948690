#include "core/solver/step_sentence.h"

#include "core/board/tables.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

std::string nameOf(int hexagon) {
    return "hexagon " + std::to_string(hexagon);
}

/// "hexagons 5, 7 and 10"
std::string cornerName(int xcell) {
    std::array<int, 3> hexagons{};
    for (std::size_t i = 0; i < hexagons.size(); ++i)
        hexagons[i] = XcellTable[static_cast<std::size_t>(xcell)][2 * i].hexagon;
    std::sort(hexagons.begin(), hexagons.end());
    return "hexagons " + std::to_string(hexagons[0]) + ", " + std::to_string(hexagons[1]) +
           " and " + std::to_string(hexagons[2]);
}

std::string inVisibleCell(const Step& step, bool isFromBlank) {
    const std::string digit = std::to_string(step.digit);
    const std::string hexagon = nameOf(step.cell.hexagon);
    switch (step.reason) {
    case Reason::Across:
        return isFromBlank ? "The solid hexagon holds " + digit + " across the side."
                           : "The triangle across the side holds " + digit + ".";
    case Reason::Last:
        return digit + " is the last number that " + hexagon + " lacks.";
    case Reason::Place:
        return "In " + hexagon + " only this triangle can hold " + digit + ".";
    case Reason::Cell:
        return "Here " + hexagon + " and " +
               (isFromBlank ? "the solid one" : nameOf(SideLink[step.cell].hexagon)) +
               " leave only " + digit + ".";
    case Reason::Xcell:
        return "Where " + cornerName(step.xcell) + " meet, only this pair can hold " + digit + ".";
    }
    return {};
}

std::string inBlank(const Step& step) {
    std::string start = "The solid hexagon must hold " + std::to_string(step.digit) + " there: ";
    switch (step.reason) {
    case Reason::Across:
        break;
    case Reason::Last:
        return start + "it lacks no other.";
    case Reason::Place:
        return start + "it fits nowhere else in it.";
    case Reason::Cell:
        return start + "no other is left.";
    case Reason::Xcell:
        return start + "no other pair at that corner can.";
    }
    return start;
}

} // namespace

std::string sentenceOf(const Step& step, const Board& board) {
    const int blankHex = isHexagon(board.BlankHex) ? board.BlankHex : NoHexagon;
    if (step.cell.hexagon == blankHex)
        return inBlank(step);
    return inVisibleCell(step, SideLink[step.cell].hexagon == blankHex);
}

std::string sentenceOf(const Mistake& mistake, const Board& board) {
    const auto digitAt = [&](std::size_t i) { return board.CellNum[mistake.cells.at(i)]; };
    switch (mistake.kind) {
    case Mistake::Kind::Twice:
        return (mistake.hexagon == board.BlankHex ? "The solid hexagon"
                                                  : "Hexagon " + std::to_string(mistake.hexagon)) +
               " cannot hold " + digitAt(0) + " twice.";
    case Mistake::Kind::Differ:
        return "One side cannot hold " + digitAt(0) + " and " + digitAt(1) + ".";
    case Mistake::Kind::Wrong:
        return "The " + digitAt(0) + " is wrong here.";
    }
    return {};
}

} // namespace tessaly
