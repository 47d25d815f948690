#pragma once

#include <QImage>
#include <QString>

#include <vector>

namespace tessaly::manual {

/// A drawing of the manual, at twice the size that it is shown in.
struct Drawing {
    /// Its file in data/manual/, without ".png".
    QString name;
    QImage picture;
};

inline constexpr int DrawingScale = 2;

/// All drawings of the manual, made with what draws the board and the buttons of the game. They lie
/// on a ground of their own, so that they read on a light page and on a dark one.
std::vector<Drawing> drawings();

} // namespace tessaly::manual
