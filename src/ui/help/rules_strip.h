#pragma once

#include "core/board/board.h"
#include "core/options/appearance.h"

#include <QWidget>

#include <vector>

namespace tessaly {

/// A rule of the puzzle in a drawing: some hexagons of a board, and cells that are tinted.
class RulePicture : public QWidget {
    Q_OBJECT

public:
    /// The appearance must outlive it.
    RulePicture(const Appearance& appearance, std::vector<int> hexagons, QWidget* parent);

    void enter(CellId cell, int number, bool tinted = false);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Appearance& m_appearance;
    std::vector<int> m_hexagons;
    std::vector<CellId> m_tinted;
    Board m_board;
};

/// The strip above the board that tells a newcomer the two rules, and leads to a first puzzle.
class RulesStrip : public QWidget {
    Q_OBJECT

public:
    /// The appearance must outlive it.
    explicit RulesStrip(const Appearance& appearance, QWidget* parent = nullptr);

    /// What it tells, for whoever hears it.
    static QString inWords();

Q_SIGNALS:
    void showMeAsked();
    void closeAsked();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessaly
