#pragma once

#include "core/board/board.h"
#include "core/options/appearance.h"
#include "core/play/board_input.h"
#include "ui/drawing/board_surface.h"
#include "ui/play/board_overlay.h"
#include "ui/play/hexagon_tag_widget.h"
#include "ui/play/number_popup.h"
#include "ui/play/solved_wave.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <optional>

namespace tessaly {

/// The marker around the number of the selected cell (`Shape1`). The pointer goes through it.
class SelectionMarker : public QWidget {
    Q_OBJECT

public:
    explicit SelectionMarker(QWidget* parent);
    void setColour(const QColor& colour);
    /// A broken line is for a given that is only read.
    void setBroken(bool broken);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_colour;
    bool m_broken = false;
};

/// The board in the window (`Picture2`): shows the board's picture at whatever size it is given,
/// with the tags, the marker and the pop-up on top, and turns events into calls of `BoardInput`.
class BoardView : public QWidget {
    Q_OBJECT

public:
    BoardView(const Board& board, const Appearance& appearance, const PlaySwitches& switches,
              QWidget* parent = nullptr);

    /// Whom the events go to: call before the view is shown.
    void setInput(BoardInput& input);

    void DrawHexagon(int hexagon);
    void DrawBoard();
    void DrawSolution(Colour colour);
    void DrawPeek(const Board& other, int hexagon);
    /// Marks what a hint speaks of, until the board changes or another one comes; an empty one
    /// takes that away.
    void showHint(const Hint& hint) { m_overlay.showHint(hint); }
    /// Lights the board up from the cell whose number made it right.
    void showSolved(CellId last) { m_wave.start(last.hexagon); }
    /// The digit that the palette enters, or 0: it is looked for on the board.
    void showPaletteDigit(char digit);
    /// The switches about what stands out have changed.
    void applySwitches() { m_overlay.update(); }
    /// Another puzzle is on the board: draws it, and takes none of it for a change.
    void showPuzzle();
    /// The colours or the font have changed: draws everything anew.
    void applyAppearance();

    void showSelection();
    void showPopup(Point corner, bool upwards);
    void hidePopup();
    /// Opens the pop-up at the selected cell, with the focus in it.
    void enterPopup();

    const Board& board() const { return m_board; }
    /// Whether the board shows that the cell's number breaks a rule.
    bool isSeenBroken(CellId cell) const {
        return m_switches.showBrokenRules && breaksARule(m_board, cell);
    }
    BoardInput& input() const { return *m_input; }
    /// Where a cell lies, and which cell lies where, in this widget's logical pixels.
    QRect rectangleOf(CellId cell) const;
    CellId cellUnder(QPoint point) const;

    /// From board units to this widget's logical pixels.
    QTransform boardToWidget() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void entriesChanged(const std::string& inWords);
    /// Enter was pressed on a board that is solved.
    void nextAsked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void updateSurface();
    void placeChildren();
    /// Where the player looks: at the cell under the pointer, or the one that the keys are at.
    CellId lookedAt() const;
    void showLook();
    void placeMarker();
    void draw(const Board& board, int hexagon);
    void showTag(int hexagon);
    /// Lets Tab stop at the tag of a hexagon, and at no other.
    void stopAtTag(int hexagon);
    /// The cells that hold something else than when this was asked last; a screen reader is told
    /// that they read differently.
    std::vector<CellId> takeChanges();
    void tellChanges();
    void drawFocus(QPainter& painter) const;

    QRect onWidget(const Rect& rectangle) const;
    Point onBoard(QPointF position) const;

    const Board& m_board;
    const Appearance& m_appearance;
    const PlaySwitches& m_switches;
    BoardInput* m_input = nullptr;
    BoardSurface m_surface;
    BoardOverlay m_overlay;
    SolvedWave m_wave;
    CellId m_hovered;
    char m_paletteDigit = 0;
    /// A pointer that rests on a number looks for it; one that passes by does not.
    QTimer m_rest;
    std::array<HexagonTagWidget*, HexagonCount + 1> m_tags{}; // Celltags
    int m_tagStop = 1;
    SelectionMarker m_marker; // Shape1
    NumberPopup m_popup;      // Picture1
    /// The colour of the solution while it is shown.
    std::optional<Colour> m_solutionColour;
    bool m_usedByKeys = false;
    /// The entries as a screen reader knows them.
    Grid<std::string> m_told;
};

} // namespace tessaly
