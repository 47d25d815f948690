#include "ui/drawing/picture_document.h"

#include "core/base/product.h"
#include "core/files/file_access.h"
#include "core/play/board_geometry.h"
#include "ui/drawing/pdf_document.h"
#include "ui/drawing/qt_values.h"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QtMath>

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

QString extensionOf(const std::filesystem::path& path) {
    return QString::fromStdString(path.extension().native()).toLower();
}

using namespace Qt::StringLiterals;

QColor groundOf(const BoardPicture& picture) {
    return toQColor(appearanceOf(picture).SchemeColours[slot::Background]);
}

/// Paints a picture on a device of `dotsPerUnit` for each board unit.
Outcome paintOn(QPaintDevice& device, const BoardPicture& picture, double dotsPerUnit) {
    QPainter painter;
    if (!painter.begin(&device))
        return Outcome::failed("the picture cannot be made");
    // A page is a whole number of points, and so a bit larger than the picture.
    if (!picture.isTransparent)
        painter.fillRect(QRect(0, 0, device.width(), device.height()), groundOf(picture));
    painter.scale(dotsPerUnit, dotsPerUnit);
    paintPicture(painter, picture);
    painter.end();
    return Outcome::done();
}

/// Qt rounds the size, and says it in millimetres.
void setExactSize(QByteArray& svg, QSizeF size) {
    static const QRegularExpression rounded(u"width=\"[^\"]*\" height=\"[^\"]*\""_s);
    QString text = QString::fromUtf8(svg);
    const QRegularExpressionMatch match = rounded.match(text);
    text.replace(match.capturedStart(), match.capturedLength(),
                 u"width=\"%1\" height=\"%2\""_s.arg(size.width()).arg(size.height()));
    svg = text.toUtf8();
}

Outcome writeSvg(const ContentSink& sink, const BoardPicture& picture, double scale) {
    const QSizeF size(PictureWidth * scale, PictureHeight * scale);
    QByteArray text;
    QBuffer buffer(&text);
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setResolution(96);
    svg.setSize(QSize(qCeil(size.width()), qCeil(size.height())));
    svg.setViewBox(QRectF(QPointF(), size));
    svg.setTitle(QString::fromLatin1(Product::Name));
    svg.setDescription({});
    if (Outcome painted = paintOn(svg, picture, scale); !painted.ok())
        return painted;
    setExactSize(text, size);
    return sink.write({text.constData(), static_cast<std::size_t>(text.size())});
}

Outcome writePdf(const ContentSink& sink, const BoardPicture& picture, double scale) {
    QByteArray painted;
    QBuffer buffer(&painted);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&buffer);
        const QSizeF points = QSizeF(PictureWidth, PictureHeight) * PointsPerUnit * scale;
        const QPageSize size(points, QPageSize::Point, {}, QPageSize::ExactMatch);
        pdf.setPageLayout(QPageLayout(size, QPageLayout::Portrait, {}));
        if (Outcome page = paintOn(pdf, picture, scale * pdf.logicalDpiX() / 96); !page.ok())
            return page;
    }
    std::string finished;
    const Outcome outcome =
        finishPdf({painted.constData(), static_cast<std::size_t>(painted.size())},
                  {Product::Name, {}, {}, picture.isOneInk}, finished);
    return outcome.ok() ? sink.write(finished) : outcome;
}

} // namespace

PictureFormat pictureFormatOf(const std::filesystem::path& path) {
    const QString extension = QString::fromStdString(path.extension().native());
    return extension.compare(QLatin1String(".png"), Qt::CaseInsensitive) == 0 ? PictureFormat::Png
                                                                              : PictureFormat::Bmp;
}

Outcome writePicture(const std::filesystem::path& path, const QImage& picture, PictureFormat format,
                     const LockWait& wait) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, format == PictureFormat::Png ? "PNG" : "BMP"))
        return Outcome::failed(path.native() + ": the picture cannot be made");
    const std::string_view content{bytes.constData(), static_cast<std::size_t>(bytes.size())};
    return replaceFile(path, content, wait);
}

bool isPictureDocument(const std::filesystem::path& path) {
    constexpr std::array Extensions{".png", ".svg", ".pdf"};
    const QString extension = extensionOf(path);
    return std::any_of(Extensions.begin(), Extensions.end(),
                       [&](const char* known) { return extension == QLatin1String(known); });
}

Outcome writePictureDocument(const std::filesystem::path& path, const BoardPicture& picture,
                             double scale) {
    const QString extension = extensionOf(path);
    if (extension == QLatin1String(".png"))
        return writePicture(path, drawImage(picture, scale), PictureFormat::Png);
    const bool isSvg = extension == QLatin1String(".svg");
    return replaceFile(path, [&](const ContentSink& sink) {
        return isSvg ? writeSvg(sink, picture, scale) : writePdf(sink, picture, scale);
    });
}

} // namespace tessaly
