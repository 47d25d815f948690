#pragma once

#include "ui/controls/icon_set.h"

#include <QWidget>

namespace tessaly {

/// Shows one picture, sharp at every device-pixel ratio.
class PictureView : public QWidget {
    Q_OBJECT

public:
    PictureView(Picture picture, int size, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Picture m_picture;
};

} // namespace tessaly
