// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "board/board.h"
#include "board/outcome.h"
#include "options/appearance.h"
#include "output/page_layout.h"

#include <functional>

class QPagedPaintDevice;

namespace tessaly {

/// What is printed: a booklet of boards with the numbers `firstNumber`, `firstNumber + 1`, ...
struct PrintJob {
    Booklet booklet;
    int firstNumber = 1;
    /// Gives the board of a number; called for every part of the booklet anew.
    std::function<Outcome(int number, Board& board)> boardOf;
};

/// Called before each page is painted with its number, from 0; when it answers false the printing
/// ends.
using GoOn = std::function<bool(int page)>;

/// How painting ended. When it was stopped nothing is wrong, but not all pages are there.
struct PrintResult {
    Outcome outcome;
    bool stopped = false;

    bool isComplete() const { return outcome.ok() && !stopped; }
};

/// Paints a booklet onto paper, on the whole sheet.
PrintResult paintBooklet(QPagedPaintDevice& device, const PrintJob& job,
                         const Appearance& appearance, const GoOn& goOn);

} // namespace tessaly
