#pragma once

#include "core/board/board.h"
#include "core/options/appearance.h"
#include "ui/drawing/board_surface.h"

#include <QColor>
#include <QWidget>

namespace tessaly {

/// A level line, in a colour and of a width in pixels.
class LineSample : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    QColor colour() const { return m_colour; }
    int lineWidth() const { return m_width; }
    void setLine(const QColor& colour, int width);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_colour = Qt::black;
    int m_width = 1;
};

/// A hexagon filled with a colour.
class FillSample : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    QColor fill() const { return m_fill; }
    void setFill(const QColor& fill);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_fill = Qt::white;
};

/// A small board in play, to show how everything would look. It takes no input.
class SampleBoard : public QWidget {
    Q_OBJECT

public:
    explicit SampleBoard(QWidget* parent = nullptr);

    void showAppearance(const Appearance& appearance);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Board m_board;
    Appearance m_appearance;
    BoardSurface m_surface;
};

} // namespace tessaly
