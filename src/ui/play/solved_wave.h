#pragma once

#include "core/options/appearance.h"

#include <QTransform>
#include <QVariantAnimation>
#include <QWidget>

namespace tessaly {

/// Lights the hexagons up one after the other, from the one with the last number outwards, over
/// the picture of the board. The pointer goes through it; it is shown only as long as that lasts,
/// less than a second, and not at all where the desktop wants no animation.
class SolvedWave : public QWidget {
    Q_OBJECT

public:
    /// The appearance must outlive it.
    SolvedWave(const Appearance& appearance, QWidget* parent);

    /// Where the board's picture lies, from board units to this widget's logical pixels.
    void setTransform(const QTransform& boardToWidget) { m_boardToWidget = boardToWidget; }
    /// From the middle of the board where there is no such hexagon.
    void start(int hexagon);
    void stop();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Appearance& m_appearance;
    QTransform m_boardToWidget;
    QVariantAnimation m_progress;
    int m_from = 0;
};

} // namespace tessaly
