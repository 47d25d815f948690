#include "ui/options/colour_picker.h"

#include "ui/controls/dialog_parts.h"
#include "ui/controls/painted_list.h"
#include "ui/drawing/qt_values.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
namespace surface = colour_surface;

/// Four rows of boxes as high as these look well; lower ones than the smallest are hard to hit.
constexpr QSize UsualStrip(surface::Width, surface::Height / 5);
constexpr QSize SmallestStrip(surface::Width, surface::Height / 8);
constexpr int PartWidth = 32;
constexpr int PartHeight = 14;
constexpr int SampleHeight = 24;
constexpr int LargestPart = 255;
constexpr int LargeStep = 20;

/// What is no plain colour counts as black.
Colour translated(Colour colour) {
    return colour <= White ? colour : Black;
}

/// The colour with one part of it only.
Colour pure(int part, int value) {
    return static_cast<Colour>(value) << 8 * part;
}

void setColours(QLabel& label, const QColor& background, const QColor& text) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::WindowText, text);
    label.setPalette(palette);
}

/// The label is a patch of colour with an edge, for its colour may be that of the ground.
void showAsSwatch(QLabel& label) {
    label.setAutoFillBackground(true);
    label.setFrameShape(QFrame::Box);
}

void setSwatch(QLabel& label, Colour colour) {
    constexpr double EdgeStrength = 0.35;
    const QColor background = toQColor(colour);
    setColours(label, background, blended(background, readableOn(background), EdgeStrength));
}

/// A colour or a shade of the surface as a screen reader meets it.
class ShadeAccessible : public PaintedItem {
public:
    ShadeAccessible(ColourSurfaceView& view, int index)
        : PaintedItem(view, index)
        , m_view(view) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? QString::fromStdString(surface::nameOf(
                                               surface::placeAt(index()), m_view.rampColour()))
                                         : QString();
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.focused = m_view.hasFocus() && surface::indexOf(m_view.place()) == index();
        return state;
    }

protected:
    QRect place() const override { return m_view.rectangleOf(surface::placeAt(index())); }

private:
    ColourSurfaceView& m_view;
};

class SurfaceAccessible : public PaintedList {
public:
    explicit SurfaceAccessible(ColourSurfaceView& view)
        : PaintedList(view, surface::PlaceCount)
        , m_view(view) {}

protected:
    PaintedItem* makeItem(int index) const override { return new ShadeAccessible(m_view, index); }
    int currentItem() const override { return surface::indexOf(m_view.place()); }

private:
    ColourSurfaceView& m_view;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* view = qobject_cast<ColourSurfaceView*>(object);
    return view != nullptr ? new SurfaceAccessible(*view) : nullptr;
}

} // namespace

ColourSurfaceView::ColourSurfaceView(QWidget* parent)
    : QWidget(parent) {
    QAccessible::installFactory(makeInterface);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setAccessibleName(tr("Colours and shades"));
    setAccessibleDescription(tr("The arrow keys move, Space picks"));
}

QSize ColourSurfaceView::sizeHint() const {
    return UsualStrip;
}

QSize ColourSurfaceView::minimumSizeHint() const {
    return SmallestStrip;
}

void ColourSurfaceView::setRampColour(Colour colour) {
    m_rampColour = colour;
    update();
}

void ColourSurfaceView::setBackground(Colour colour) {
    m_background = colour;
}

QPointF ColourSurfaceView::toWidget(double x, double y) const {
    return {x * width() / surface::Width, y * height() / surface::Height};
}

QRect ColourSurfaceView::rectangleOf(surface::Place place) const {
    return onPixels(surface::boxOf(place)).toAlignedRect();
}

QRectF ColourSurfaceView::onPixels(surface::Box box) const {
    const double ratio = devicePixelRatioF();
    const auto rounded = [ratio](QPointF point) {
        return QPointF(std::round(point.x() * ratio), std::round(point.y() * ratio)) / ratio;
    };
    return {rounded(toWidget(box.left, box.top)),
            rounded(toWidget(box.left + box.width, box.top + box.height))};
}

void ColourSurfaceView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int index = 0; index < static_cast<int>(ClassicPalette.size()); ++index)
        painter.fillRect(onPixels(surface::paletteBox(index)),
                         toQColor(ClassicPalette[static_cast<std::size_t>(index)]));
    for (int v = 0; v <= ShadeSteps; ++v) {
        painter.fillRect(onPixels(surface::blackLine(v)), toQColor(clrBlackness(m_rampColour, v)));
        painter.fillRect(onPixels(surface::whiteLine(v)), toQColor(clrWhiteness(m_rampColour, v)));
    }
    if (hasFocus())
        drawFocus(painter);
}

/// Two lines, one of which stands out against whatever lies there.
void ColourSurfaceView::drawFocus(QPainter& painter) const {
    const QRectF place = onPixels(surface::boxOf(m_place)).adjusted(-2, -2, 2, 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(place.adjusted(-0.5, -0.5, 0.5, 0.5));
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(place.adjusted(-1.5, -1.5, 1.5, 1.5));
}

void ColourSurfaceView::pick(double x, double y) {
    Q_EMIT picked(surface::colourAt(x, y, m_rampColour, m_background), y >= surface::RampsTop);
}

void ColourSurfaceView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        pick(event->position().x() * surface::Width / width(),
             event->position().y() * surface::Height / height());
}

void ColourSurfaceView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        m_place = surface::moved(m_place, -1, 0);
        break;
    case Qt::Key_Right:
        m_place = surface::moved(m_place, 1, 0);
        break;
    case Qt::Key_Up:
        m_place = surface::moved(m_place, 0, -1);
        break;
    case Qt::Key_Down:
        m_place = surface::moved(m_place, 0, 1);
        break;
    case Qt::Key_Space: {
        const surface::Box box = surface::boxOf(m_place);
        pick(box.left + box.width / 2.0, box.top + box.height / 2.0);
        break;
    }
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    tellPlace();
    update();
}

void ColourSurfaceView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    tellPlace();
}

void ColourSurfaceView::tellPlace() {
    PaintedList::tellFocus(*this, surface::indexOf(m_place));
}

ColPik::ColPik(QWidget* parent)
    : QWidget(parent)
    , m_surface(new ColourSurfaceView(this)) {
    m_surface->setObjectName(u"surface"_s);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(dialog::Spacing);
    row->addWidget(m_surface);
    auto* side = new QVBoxLayout;
    auto* bars = new QHBoxLayout;
    bars->setSpacing(dialog::Spacing / 2);
    addPart(0, u"Red"_s, tr("Red"), *bars);
    addPart(1, u"Green"_s, tr("Green"), *bars);
    addPart(2, u"Blue"_s, tr("Blue"), *bars);
    side->addLayout(bars, 1);
    side->addLayout(makeSample());
    row->addLayout(side);
    connect(m_surface, &ColourSurfaceView::picked, this, [this](Colour colour, bool onRamp) {
        m_rampsEnabled = !onRamp;
        SetColour(colour);
        m_rampsEnabled = true;
        Q_EMIT picked(colour);
    });
    setSchemeColor(m_scheme);
    SetColour(Black);
}

void ColPik::addPart(int index, const QString& name, const QString& accessibleName,
                     QHBoxLayout& row) {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    const Part part{new QSlider(Qt::Vertical, this), new QLabel(u"255"_s, this), new QLabel(this)};
    part.bar->setObjectName(u"hsr"_s + name);
    part.bar->setAccessibleName(accessibleName);
    part.bar->setRange(0, LargestPart);
    part.bar->setPageStep(LargeStep);
    part.degree->setObjectName(u"lbl%1Degree"_s.arg(name));
    part.degree->setAlignment(Qt::AlignCenter);
    part.degree->setFixedWidth(PartWidth);
    part.picture->setObjectName(u"PicRGB_%1"_s.arg(index));
    part.picture->setFixedSize(PartWidth, PartHeight);
    showAsSwatch(*part.picture);
    column->addWidget(part.degree);
    column->addWidget(part.bar, 1, Qt::AlignHCenter);
    column->addWidget(part.picture);
    row.addLayout(column);
    m_parts[static_cast<std::size_t>(index)] = part;
    connect(part.bar, &QSlider::valueChanged, this, [this] {
        SetColour(RGB(m_parts[0].bar->value(), m_parts[1].bar->value(), m_parts[2].bar->value()));
    });
}

QVBoxLayout* ColPik::makeSample() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    m_caption = new QLabel(tr("Selected Colour"), this);
    m_caption->setObjectName(u"Label2"_s);
    m_caption->setAlignment(Qt::AlignCenter);
    m_sample = new QLabel(this);
    m_sample->setObjectName(u"Label1"_s);
    m_sample->setFixedHeight(SampleHeight);
    showAsSwatch(*m_sample);
    column->addWidget(m_caption);
    column->addWidget(m_sample);
    return column;
}

void ColPik::setSelColor(Colour colour) {
    m_rampsEnabled = true;
    SetColour(colour);
}

void ColPik::setSchemeColor(Colour colour) {
    m_scheme = colour;
    setColours(*m_caption, toQColor(colour), readableOn(toQColor(colour)));
    m_surface->setBackground(colour);
}

QColor ColPik::backColor() const {
    return toQColor(m_scheme);
}

void ColPik::setBackColor(const QColor& colour) {
    setSchemeColor(toColour(colour));
}

void ColPik::SetColour(Colour colour) {
    m_selected = translated(colour);
    showParts();
    if (m_rampsEnabled)
        m_surface->setRampColour(m_selected);
}

void ColPik::showParts() {
    const std::array values{RedOf(m_selected), GreenOf(m_selected), BlueOf(m_selected)};
    for (std::size_t i = 0; i < m_parts.size(); ++i) {
        const QSignalBlocker blocker(m_parts[i].bar);
        m_parts[i].bar->setValue(values[i]);
        m_parts[i].degree->setText(QString::number(values[i]));
        setSwatch(*m_parts[i].picture, pure(static_cast<int>(i), values[i]));
    }
    setSwatch(*m_sample, m_selected);
    m_sample->setAccessibleName(toQColor(m_selected).name());
}

} // namespace tessaly
