#include "ui/drawing/board_picture.h"

#include "core/base/product.h"
#include "core/play/board_geometry.h"
#include "core/play/board_style.h"
#include "ui/drawing/board_renderer.h"
#include "ui/drawing/board_surface.h"
#include "ui/drawing/hexagon_tag.h"
#include "ui/drawing/page_painter.h"
#include "ui/drawing/qt_values.h"

#include <QGuiApplication>
#include <QPainter>

#include <cmath>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr Colour CopyLine = Black;
constexpr Colour CopyBackground = White;
constexpr double LeastContrast = 3; // of WCAG 2, for large text

/// A digit's height in a size of text, about.
constexpr double DigitHeight = 0.72;

class CopyLabels {
public:
    explicit CopyLabels(QPainter& painter)
        : m_painter(painter) {}

    /// The number in the middle of a hexagon, on a patch of white.
    void number(int hexagon) {
        constexpr double Width = 300 / TwipsPerUnit;
        constexpr double Height = 200 / TwipsPerUnit;
        const Point centre = hexagonCentre(hexagon);
        m_painter.fillRect(toQt(rectAbout(centre, Width, Height)), toQColor(CopyBackground));
        write(centre, QString::number(hexagon).rightJustified(2, u'0'), CopyLine);
    }

    void difficulty(const Board& board) {
        write(hexagonCentre(board.BlankHex), QString::fromUtf8(board.DifName()), CopyBackground);
    }

    void footer() {
        constexpr double Left = 300 / TwipsPerUnit;
        m_painter.setPen(toQColor(CopyLine));
        drawText(m_painter, {Left, MarkSize},
                 QString::fromLatin1(Product::Name) + u' ' +
                     QString::fromLatin1(Product::WebAddress),
                 m_style, TextAnchor::Left, PictureWidth / 3);
    }

private:
    void write(Point centre, const QString& text, Colour colour) {
        m_painter.setPen(toQColor(colour));
        drawText(m_painter, {centre.x, centre.y + DigitHeight * MarkSize / 2}, text, m_style,
                 TextAnchor::Middle, HexagonSide);
    }

    QPainter& m_painter;
    /// A face for text: the numbers' own may have nothing but digits.
    PageText m_style{QGuiApplication::font().family(), MarkSize};
};

void drawCopyLabels(QPainter& painter, const Board& board) {
    CopyLabels labels(painter);
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        if (!board.isBlank(hexagon))
            labels.number(hexagon);
    labels.footer();
    if (isHexagon(board.BlankHex))
        labels.difficulty(board);
}

void drawLabels(QPainter& painter, const BoardPicture& picture, const Appearance& appearance) {
    painter.setRenderHint(QPainter::Antialiasing);
    if (!picture.hasLabels)
        return;
    if (picture.look == BoardPicture::Look::Copy)
        drawCopyLabels(painter, picture.board);
    else
        drawTags(painter, picture.board, appearance);
}

Colour solutionColour(const BoardPicture& picture) {
    return picture.look == BoardPicture::Look::Copy ? CopyLine : solutionColour(picture.appearance);
}

} // namespace

Appearance appearanceOf(const BoardPicture& picture) {
    Appearance appearance = picture.appearance;
    if (picture.look == BoardPicture::Look::Game)
        return appearance;
    appearance.SplitHexas = false; // borders of the background's colour would be white on white
    appearance.HexaBorderColour = CopyLine;
    appearance.FixedNumberColour = CopyLine;
    appearance.HexaFillColour = CopyBackground;
    appearance.SchemeColours[slot::Background] = CopyBackground;
    if (picture.isOneInk ||
        contrastRatio(appearance.UserNumberColour, CopyBackground) < LeastContrast)
        appearance.UserNumberColour = CopyLine;
    return appearance;
}

namespace {

QImage drawTransparent(const BoardPicture& picture, double scale) {
    QImage image(static_cast<int>(std::lround(PictureWidth * scale)),
                 static_cast<int>(std::lround(PictureHeight * scale)),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) // there is not enough memory
        return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintPicture(painter, picture);
    return image;
}

QImage drawOpaque(const BoardPicture& picture, double scale) {
    const Appearance appearance = appearanceOf(picture);
    BoardSurface surface;
    surface.setSize({static_cast<int>(std::lround(PictureWidth * scale)),
                     static_cast<int>(std::lround(PictureHeight * scale))});
    surface.setAppearance(appearance);
    if (picture.solution)
        surface.DrawSolution(picture.board, solutionColour(picture));
    else
        surface.DrawBoard(picture.board);
    QImage image = surface.image();
    {
        QPainter painter(&image);
        if (!painter.isActive()) // there is not enough memory
            return {};
        painter.setTransform(surface.boardToDevice());
        drawLabels(painter, picture, appearance);
    }
    if (picture.isOneInk)
        image.convertTo(QImage::Format_Grayscale8);
    return image;
}

} // namespace

QImage drawImage(const BoardPicture& picture, double scale) {
    QImage image =
        picture.isTransparent ? drawTransparent(picture, scale) : drawOpaque(picture, scale);
    constexpr double DotsPerMeter = 96 / 0.0254;
    image.setDotsPerMeterX(static_cast<int>(std::lround(DotsPerMeter * scale)));
    image.setDotsPerMeterY(static_cast<int>(std::lround(DotsPerMeter * scale)));
    return image;
}

void paintPicture(QPainter& painter, const BoardPicture& picture) {
    const Appearance appearance = appearanceOf(picture);
    BoardStyle style = boardStyle(appearance);
    style.isFilled = !picture.isTransparent;
    if (style.isFilled)
        painter.fillRect(QRectF(0, 0, PictureWidth, PictureHeight),
                         toQColor(appearance.SchemeColours[slot::Background]));
    Board board = picture.board;
    if (picture.solution)
        board.ResetToGivens(); // the numbers go where entries were
    BoardRenderer renderer(painter, board, style, appearance.NumberFont, Digits::AsOutlines);
    renderer.DrawBoard();
    if (picture.solution)
        renderer.DrawSolution(solutionColour(picture));
    drawLabels(painter, picture, appearance);
}

} // namespace tessaly
