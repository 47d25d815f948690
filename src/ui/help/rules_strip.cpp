#include "ui/help/rules_strip.h"

#include "core/board/tables.h"
#include "core/play/board_geometry.h"
#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/drawing/board_renderer.h"
#include "ui/drawing/qt_values.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPolygonF>

#include <utility>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int StripInset = 8;
constexpr double DrawingHeight = 64;
constexpr int StripButtonHeight = 44;
constexpr float TintStrength = 0.3F;

QString firstRule() {
    return RulesStrip::tr("Each hexagon holds each of the numbers 1 to 6 once.");
}

QString secondRule() {
    return RulesStrip::tr("Two triangles that share a side hold the same number.");
}

QRectF boundsOfHexagons(const std::vector<int>& hexagons) {
    constexpr double Border = 2;
    QRectF bounds;
    for (int hexagon : hexagons)
        bounds |= toQt(hexagonBounds(hexagon));
    return bounds.adjusted(-Border, -Border, Border, Border);
}

QLabel* makeSentence(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

} // namespace

RulePicture::RulePicture(const Appearance& appearance, std::vector<int> hexagons, QWidget* parent)
    : QWidget(parent)
    , m_appearance(appearance)
    , m_hexagons(std::move(hexagons)) {
    const QRectF bounds = boundsOfHexagons(m_hexagons);
    setFixedSize((bounds.size() * (DrawingHeight / bounds.height())).toSize());
}

void RulePicture::enter(CellId cell, int number, bool tinted) {
    m_board.CellNum[cell] = std::to_string(number);
    if (tinted)
        m_tinted.push_back(cell);
}

void RulePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bounds = boundsOfHexagons(m_hexagons);
    painter.scale(width() / bounds.width(), height() / bounds.height());
    painter.translate(-bounds.topLeft());
    BoardRenderer renderer(painter, m_board, m_appearance);
    for (int hexagon : m_hexagons)
        renderer.DrawHexagon(hexagon);
    QColor tint = toQColor(solutionColour(m_appearance));
    tint.setAlphaF(TintStrength);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint);
    for (CellId cell : m_tinted) {
        QPolygonF triangle;
        for (Point corner : cellTriangle(cell))
            triangle << toQt(corner);
        painter.drawPolygon(triangle);
    }
}

RulesStrip::RulesStrip(const Appearance& appearance, QWidget* parent)
    : QWidget(parent) {
    setObjectName(u"RulesStrip"_s);
    constexpr CellId Side{5, 4};
    auto* hexagon = new RulePicture(appearance, {10}, this);
    for (int position = 1; position <= CellCount; ++position)
        hexagon->enter({10, position}, position);
    auto* side = new RulePicture(appearance, {Side.hexagon, SideLink[Side].hexagon}, this);
    for (CellId cell : {Side, SideLink[Side]})
        side->enter(cell, 4, true);
    auto* showMe = named(u"cmdshowme"_s, new BoxControl(tr("Show me"), this));
    showMe->setToolTip(tr("The first puzzle of the manual, on the board"));
    auto* close = named(u"cmdcloserules"_s, new BoxControl(Picture::Close, tr("Close"), this));
    connect(showMe, &BoxControl::clicked, this, &RulesStrip::showMeAsked);
    connect(close, &BoxControl::clicked, this, &RulesStrip::closeAsked);
    for (BoxControl* button : {showMe, close})
        button->setMinimumHeight(StripButtonHeight);
    setFixedHeight(static_cast<int>(DrawingHeight) + 2 * StripInset);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(StripInset, StripInset, StripInset, StripInset);
    row->setSpacing(StripInset);
    row->addWidget(hexagon);
    row->addWidget(makeSentence(firstRule(), this), 1);
    row->addSpacing(StripInset);
    row->addWidget(side);
    row->addWidget(makeSentence(secondRule(), this), 1);
    row->addWidget(showMe);
    row->addWidget(close);
}

QString RulesStrip::inWords() {
    return firstRule() + u' ' + secondRule();
}

void RulesStrip::paintEvent(QPaintEvent*) {
    drawFrame(*this);
}

} // namespace tessaly
