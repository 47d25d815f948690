#pragma once

#include "core/options/appearance.h"
#include "support/sample_puzzles.h"

#include <array>

namespace tessaly {

/// A puzzle with hexagon 7 blank. It never changes, so that pictures of it can be kept.
inline Board sampleBoard() {
    return boardOf("E0700TRV531RV14535RV431VU342Q4S15624QUS26TURSVQ536142T2136U36215412V"
                   "T35364125Q45263R653TQ1532T623VQU43261TU264QU3143VRU");
}

/// The sample in the middle of a play: numbers, cells of one to six marks, empty cells.
inline Board sampleBoardInPlay() {
    constexpr std::array Marks{"12", "135", "1246", "23456", "123456", "35"};
    Board board = sampleBoard();
    std::size_t open = 0;
    for (CellId cell : AllCells) {
        if (board.FixedCell[cell])
            continue;
        if (open % 3 == 0)
            board.CellNum[cell] = board.SolNum[cell];
        else if (open % 3 == 1)
            board.CellNum[cell] = Marks[open / 3 % Marks.size()];
        ++open;
    }
    return board;
}

inline Appearance light() {
    Appearance appearance;
    appearance.SchemeColours[slot::Background] = RGB(236, 233, 226);
    appearance.HexaFillColour = RGB(252, 251, 248);
    appearance.NumberFont = "Liberation Sans";
    return appearance;
}

inline Appearance dark() {
    Appearance appearance = light();
    appearance.SchemeColours[slot::Background] = RGB(32, 36, 44);
    appearance.HexaFillColour = RGB(48, 54, 66);
    appearance.HexaBorderColour = RGB(120, 130, 150);
    appearance.FixedNumberColour = RGB(240, 240, 240);
    appearance.UserNumberColour = RGB(120, 200, 255);
    return appearance;
}

} // namespace tessaly
