#pragma once

#include "core/board/board.h"
#include "core/options/appearance.h"
#include "ui/drawing/board_surface.h"

#include <QWidget>

namespace tessaly {

/// A small board in play, to show how everything would look. It takes no input.
class SampleBoard : public QWidget {
    Q_OBJECT

public:
    explicit SampleBoard(QWidget* parent = nullptr);

    void showAppearance(const Appearance& appearance);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawTags(QPainter& painter) const;

    Board m_board;
    Appearance m_appearance;
    BoardSurface m_surface;
};

} // namespace tessaly
