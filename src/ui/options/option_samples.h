#pragma once

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

} // namespace tessaly
