#include "ui/controls/icon_set.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

// Resources of a static library are linked in only where somebody asks for them, and that must be
// done outside every namespace.
static void registerIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace tessaly {
namespace {

/// The files' names in the order of the pictures.
constexpr std::array FileNames{
    "",         "load",   "previous",  "next",        "create",      "undo",
    "redo",     "reset",  "hint",      "solution",    "marks",       "pairs",
    "singles",  "eraser", "pencil",    "copy-sides",  "candidate",   "close",
    "save",     "delete", "print",     "view",        "replace",     "add",
    "begun",    "solved", "question",  "exclamation", "information", "error",
    "critical", "happy",  "trash-can", "printer",     "light",       "tessaly",
};
static_assert(FileNames.size() == static_cast<std::size_t>(Picture::Product) + 1);

QByteArray drawingOf(Picture picture) {
    registerIcons();
    const QString name = QString::fromLatin1(FileNames[static_cast<std::size_t>(picture)]);
    QFile file(QStringLiteral(":/icons/") % name % QStringLiteral(".svg"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void drawPicture(QPainter& painter, const QRectF& area, Picture picture, const QColor& colour) {
    if (picture == Picture::None)
        return;
    QSvgRenderer drawing(drawingOf(picture).replace("currentColor", colour.name().toLatin1()));
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    drawing.render(&painter, area);
}

QPixmap pixmapOf(Picture picture, int size, const QColor& colour, double devicePixelRatio) {
    const int pixels = qRound(size * devicePixelRatio);
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawPicture(painter, QRectF(0, 0, pixels, pixels), picture, colour);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QIcon productIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(pixmapOf(Picture::Product, size, Qt::black));
    return icon;
}

PictureView::PictureView(Picture picture, int size, QWidget* parent)
    : QWidget(parent)
    , m_picture(picture) {
    setFixedSize(size, size);
}

void PictureView::setPicture(Picture picture) {
    m_picture = picture;
    update();
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawPicture(painter, rect(), m_picture, palette().color(foregroundRole()));
}

} // namespace tessaly
