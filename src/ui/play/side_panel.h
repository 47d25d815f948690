#pragma once

#include "core/options/appearance.h"

#include <QWidget>

namespace tessaly {

class BoxControl;
class PalettePanel;
enum class Picture;

/// What is used while playing, close beside the board and on one grid of squares: the palette;
/// taking back, doing again, hint, solution, check and reset; the assists with their words.
class SidePanel : public QWidget {
    Q_OBJECT

public:
    explicit SidePanel(const Appearance& appearance, QWidget* parent = nullptr);

    PalettePanel* palette;
    BoxControl* cmdundo;
    BoxControl* cmdredo;
    BoxControl* cmdhint;
    BoxControl* cmdshowsol;
    BoxControl* StatLab;
    BoxControl* cmdreset;
    BoxControl* cmdallpencil;
    BoxControl* cmdsetpairs;
    BoxControl* cmdset1s;

    /// The largest panel that a place has room for: so high, and at most so wide.
    static QSize sizeWithin(QSize room);
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    BoxControl* addButton(Picture picture, const QString& toolTip, const QString& name);
    BoxControl* addAssist(Picture picture, const QString& words, const QString& toolTip,
                          const QString& name);
};

} // namespace tessaly
