#include "ui/help/about_box.h"

#include "core/base/product.h"
#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/icon_set.h"
#include "ui/drawing/qt_values.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int AboutMargin = 24;
constexpr int AboutSpacing = 16;
constexpr int AboutIconSize = 64;
constexpr int TextWidth = 320;

QString aboutText() {
    return u"\r\n"
           "Tessaly Puzzle - October 2009\r\n"
           "Fill Hexagons with numbers 1 to 6\r\n"
           "Contact: %1\r\n"
           "Thanks to the first player, for patience and good advice\r\n"
           "\r\n"
           "This progam is free to use and distribute\r\n"
           "NO warranties whatsoever\r\n"
           "\r\n"
           "1,000 puzzles available at %2\r\n"_s.arg(QLatin1String(Product::Contact),
                                                     QLatin1String(Product::WebAddress));
}

/// "Version 1.0": the first two parts of the product's version.
QString versionText() {
    const QString version = QLatin1String(Product::Version);
    return u"Version "_s + version.section(u'.', 0, 1);
}

} // namespace

AboutForm::AboutForm(const Appearance& appearance, QWidget* parent)
    : QDialog(parent)
    , m_appearance(appearance)
    , m_text(new QPlainTextEdit(aboutText(), this))
    , m_ok(new BoxControl(u"OK"_s, this))
    , m_version(new QLabel(versionText(), this)) {
    setObjectName(u"AboutForm"_s);
    setWindowTitle(u"About "_s + QLatin1String(Product::Name));
    setModal(true);
    m_text->setObjectName(u"AboutText"_s);
    m_text->setAccessibleName(windowTitle());
    m_ok->setObjectName(u"AboutOk"_s);
    m_version->setObjectName(u"Label1"_s);
    arrange();
    m_text->viewport()->installEventFilter(this);
    connect(m_ok, &BoxControl::clicked, this, &QDialog::hide);
}

void AboutForm::arrange() {
    auto* icon = new PictureView(Picture::Product, AboutIconSize, this);
    icon->setObjectName(u"Image1"_s);
    m_version->setMargin(AboutSpacing / 4);
    m_version->setAlignment(Qt::AlignCenter);
    m_text->setReadOnly(true);
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const QSize text = m_text->fontMetrics().size(0, m_text->toPlainText());
    m_text->setFixedSize(std::max(TextWidth, text.width() + AboutSpacing),
                         text.height() + AboutSpacing);
    m_ok->setMinimumSize(dialog::ButtonSize);

    auto* left = new QVBoxLayout;
    left->addWidget(icon, 0, Qt::AlignHCenter);
    left->addWidget(m_version);
    left->addStretch();
    auto* top = new QHBoxLayout;
    top->setSpacing(AboutMargin);
    top->addLayout(left);
    top->addWidget(m_text);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(AboutMargin, AboutMargin, AboutMargin, AboutMargin);
    rows->setSpacing(AboutSpacing);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addLayout(top);
    rows->addWidget(m_ok, 0, Qt::AlignHCenter);
}

void AboutForm::showEvent(QShowEvent* event) {
    if (!event->spontaneous())
        activate();
    QDialog::showEvent(event);
}

void AboutForm::activate() {
    setPalette(schemePalette(m_appearance));
    const QColor accent = toQColor(m_appearance.SchemeColours[slot::Accent]);
    m_ok->setFaceColour(accent);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, accent);
    colours.setColor(QPalette::WindowText, readableOn(accent));
    m_version->setPalette(colours);
    m_version->setAutoFillBackground(true);
    m_ok->setFocus();
}

bool AboutForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonPress)
        return QDialog::eventFilter(watched, event);
    hide();
    return true;
}

} // namespace tessaly
