#include "ui/drawing/numerals.h"

#include "core/play/board_geometry.h"
#include "core/play/board_style.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QRawFont>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

/// Outlines are taken at this size and scaled down, so that no device's hinting shows in them.
constexpr double OutlineSize = 512;

QString allDigits() {
    return QStringLiteral("0123456789");
}

bool hasDigits(const QRawFont& font) {
    return font.isValid() && !font.glyphIndexesForString(allDigits()).contains(0);
}

QRawFont rawFont(const std::string& family, bool bold) {
    QFont font(QString::fromStdString(family));
    font.setBold(bold);
    QRawFont raw = QRawFont::fromFont(font);
    if (!hasDigits(raw)) {
        QFont substitute = QGuiApplication::font();
        substitute.setBold(bold);
        raw = QRawFont::fromFont(substitute);
    }
    raw.setPixelSize(OutlineSize);
    return raw;
}

} // namespace

bool hasDigits(const QString& family) {
    return hasDigits(QRawFont::fromFont(QFont(family)));
}

DigitFace::DigitFace(const std::string& family, bool bold)
    : m_font(rawFont(family, bold)) {
    const auto indexes = m_font.glyphIndexesForString(allDigits());
    const auto advances = m_font.advancesForGlyphIndexes(indexes);
    const QTransform toSizeOne = QTransform::fromScale(1 / OutlineSize, 1 / OutlineSize);
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        Glyph& glyph = m_glyphs[static_cast<std::size_t>(i)];
        glyph.outline = toSizeOne.map(m_font.pathForGlyph(indexes[i]));
        glyph.advance = advances[i].x() / OutlineSize;
        glyph.index = indexes[i];
        m_columnWidth = std::max(m_columnWidth, glyph.advance);
    }
    // "1" is flat at both ends in nearly every font; the round digits overshoot.
    m_height = -outline(1).boundingRect().top();
}

QRawFont DigitFace::font(double size) const {
    QRawFont font = m_font;
    font.setPixelSize(size);
    return font;
}

Numerals::Numerals(const DigitFace& face, Scale scale, Fit fit, double enlarged)
    : m_face(&face)
    , m_fit(fit)
    , m_number(sized(NumberSize * enlarged, 22 * enlarged, 18 * enlarged, scale))
    , m_mark(sized(MarkSize, 7.5, 8.5, scale)) {
    constexpr double BetweenRows = 2.75;
    m_rowPitch = m_mark.height + std::max(fitted(BetweenRows * scale.y), 1.0);
}

/// A digit set `size` board units high, or smaller when it would be wider or higher than its cell
/// has room for. Fitted to pixels it rather grows than shrinks, for the smallest marks are hard
/// enough to read.
Numerals::Size Numerals::sized(double size, double widest, double highest, Scale scale) const {
    constexpr double TowardsLarger = 0.25;
    const double em = std::min({size, widest / m_face->columnWidth(), highest / m_face->height()});
    const double exact = em * m_face->height() * scale.y;
    const double height =
        m_fit == Fit::ToPixels ? std::max(std::round(exact + TowardsLarger), 1.0) : exact;
    const double emDown = height / m_face->height();
    const double emAcross = emDown * scale.x / scale.y;
    return {{emAcross, emDown}, fitted(emAcross * m_face->columnWidth()), height};
}

double Numerals::fitted(double value) const {
    return m_fit == Fit::ToPixels ? std::round(value) : value;
}

QPainterPath Numerals::number(int digit) const {
    const auto [x, y] = m_number.em;
    return QTransform::fromScale(x, y).map(m_face->outline(digit)).translated(numberStart(digit));
}

QPointF Numerals::numberPen() const {
    return {0, fitted(m_number.height / 2)};
}

QPainterPath Numerals::mark(int digit) const {
    const auto [x, y] = m_mark.em;
    return QTransform::fromScale(x, y).map(m_face->outline(digit)).translated(markStart(digit));
}

QPointF Numerals::markStart(int digit) const {
    return {(m_mark.column - m_face->advance(digit) * m_mark.em.x) / 2, 0};
}

QPointF Numerals::markPen(int place) const {
    const int column = place % MarksInARow;
    const int row = place / MarksInARow;
    const double left = fitted(-m_mark.column * MarksInARow / 2);
    const double firstBaseline = fitted((m_mark.height - m_rowPitch) / 2);
    return {left + column * m_mark.column, firstBaseline + row * m_rowPitch};
}

DigitText::DigitText(const DigitFace& face, double size)
    : m_face(face) {
    m_run.setRawFont(face.font(size));
}

void DigitText::add(int digit, QPointF start) {
    m_indexes << m_face.index(digit);
    m_starts << start;
}

void DigitText::draw(QPainter& painter, const QColor& colour) {
    if (m_indexes.isEmpty())
        return;
    m_run.setGlyphIndexes(m_indexes);
    m_run.setPositions(m_starts);
    painter.setPen(colour);
    painter.drawGlyphRun({}, m_run);
    m_indexes.clear();
    m_starts.clear();
}

} // namespace tessaly
