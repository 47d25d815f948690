#pragma once

#include "core/options/appearance.h"
#include "core/play/board_geometry.h"

#include <QColor>
#include <QPalette>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <filesystem>

namespace tessaly {

/// Paths are bytes; on the screen they are UTF-8.
inline QString pathText(const std::filesystem::path& path) {
    return QString::fromStdString(path.native());
}
inline std::filesystem::path pathOf(const QString& path) {
    return path.toStdString();
}

inline QPointF toQt(Point point) {
    return {point.x, point.y};
}
inline QRectF toQt(const Rect& rectangle) {
    return {rectangle.left, rectangle.top, rectangle.width(), rectangle.height()};
}

QColor toQColor(Colour colour);
/// The packed form of `colour`; how transparent it is gets lost.
Colour toColour(const QColor& colour);

/// `from` mixed with `to`: 0 gives `from`, 1 gives `to`.
QColor blended(const QColor& from, const QColor& to, double amount);

/// Black or white, whichever reads better on `background`.
QColor readableOn(const QColor& background);
/// `background` moved as little towards black or white as makes it stand out that much against
/// itself; black or white where even they do not.
QColor standingOut(const QColor& background, double contrast);
/// The same, faded as far as it still reads: text of what cannot be used now.
QColor fadedOn(const QColor& background);

/// The scheme in force for windows, dialogs and their controls. Text is black or white, whichever
/// reads better on what lies under it.
QPalette schemePalette(const Appearance& appearance);

/// The scheme in force for the menu bar and all of its menus, as a style sheet.
QString menuStyleSheet(const Appearance& appearance);

/// The scheme for a first start: light or dark as the desktop's own windows are.
const char* schemeLikeDesktop(const QPalette& desktop);

} // namespace tessaly
