#pragma once

#include "core/options/appearance.h"
#include "core/play/highlights.h"
#include "core/play/hint_guide.h"

#include <QTransform>
#include <QWidget>

class QPainter;
class QPainterPath;

namespace tessaly {

/// What stands out on the board, painted over its picture: where the player looks, what breaks a
/// rule, what a hint speaks of. The pointer goes through it.
class BoardOverlay : public QWidget {
    Q_OBJECT

public:
    /// All must outlive the overlay.
    BoardOverlay(const Board& board, const Appearance& appearance, const PlaySwitches& switches,
                 QWidget* parent);

    /// Where the board's picture lies, from board units to this widget's logical pixels.
    void setTransform(const QTransform& boardToWidget);
    /// The cell that is looked at, or none, and the digit that is looked for, or 0.
    void look(CellId cell, char digit);
    void showHint(const Hint& hint);
    bool showsHint() const { return !m_hint.sentence.empty(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintLooked(QPainter& painter, const Highlights& found) const;
    void paintImpossible(QPainter& painter, const Highlights& found) const;
    void paintBroken(QPainter& painter, const Highlights& found) const;
    void paintHint(QPainter& painter) const;

    const Board& m_board;
    const Appearance& m_appearance;
    const PlaySwitches& m_switches;
    QTransform m_boardToWidget;
    CellId m_looked;
    char m_digit = 0;
    Hint m_hint;
};

} // namespace tessaly
