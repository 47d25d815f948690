#include "ui/help/help_window.h"

#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/drawing/qt_values.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QScrollBar>
#include <QShowEvent>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr double PictureScale = 2;
constexpr int PageMargin = 20;

/// A picture with as many pixels as its place on the screen has.
QVariant pictureFor(const QString& path, double devicePixelRatio) {
    QImage picture(path);
    if (picture.isNull())
        return {};
    if (devicePixelRatio < PictureScale)
        picture = picture.scaled(picture.size() * (devicePixelRatio / PictureScale),
                                 Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(devicePixelRatio < PictureScale ? devicePixelRatio : PictureScale);
    return picture;
}

QString notFoundPage(const QUrl& page) {
    return u"<h1>Page not found</h1><p>There is no file<br><b>%1</b></p>"_s.arg(
        page.toLocalFile().toHtmlEscaped());
}

constexpr QSize FirstSize(780, 720);
constexpr QSize LeastSize(360, 240);
// The browser leaves 120 twips of the window's width and 480 of its height, at 15 twips a pixel.
constexpr int BesideBrowser = 120 / 15;
constexpr int BeneathBrowser = 480 / 15;
constexpr int HelpMargin = BesideBrowser / 2;
constexpr QSize HelpButtonSize(96, 28);
constexpr std::size_t ButtonColourSlot = slot::Button;

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent)
    : QTextBrowser(parent) {
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Help page"));
    document()->setDocumentMargin(PageMargin);
}

void HelpBrowser::wear(const Appearance& appearance) {
    const QPalette colours = schemePalette(appearance);
    setPalette(colours);
    // The colour of links is part of a page once it is read.
    document()->setDefaultStyleSheet(u"a { color: %1; }"_s.arg(colours.link().color().name()));
    if (!source().isEmpty())
        reload();
}

void HelpBrowser::navigate(const QUrl& page) {
    setSource(page);
    verticalScrollBar()->setValue(0);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const QUrl address = name.isRelative() ? source().resolved(name) : name;
    if (type == QTextDocument::ImageResource)
        return pictureFor(address.toLocalFile(), devicePixelRatioF());
    if (type == QTextDocument::HtmlResource && !QFile::exists(address.toLocalFile()))
        return notFoundPage(address);
    return QTextBrowser::loadResource(type, name);
}

Form4::Form4(const Appearance& appearance, QWidget* parent)
    : QDialog(parent)
    , m_appearance(appearance)
    , m_browser(new HelpBrowser(this))
    , m_back(addButton(u"Back"_s, u"Command1"_s))
    , m_forward(addButton(u"Forward"_s, u"Command2"_s))
    , m_exit(addButton(u"Exit"_s, u"Command3"_s)) {
    setObjectName(u"Form4"_s);
    setWindowTitle(u"Tessaly Help"_s);
    setModal(true);
    setMinimumSize(LeastSize);
    m_browser->setObjectName(u"WebBrowser1"_s);
    m_browser->move(HelpMargin, HelpMargin);
    connect(m_back, &BoxControl::clicked, this, [this] {
        if (isAtAnchor())
            m_browser->backward();
    });
    connect(m_forward, &BoxControl::clicked, this, [this] {
        if (isAtAnchor())
            m_browser->forward();
    });
    connect(m_exit, &BoxControl::clicked, this, &QDialog::hide);
    connect(m_browser, &HelpBrowser::historyChanged, this, &Form4::enableButtons);
    resizeOnScreen(*this, FirstSize);
}

BoxControl* Form4::addButton(const QString& caption, const QString& name) {
    auto* button = new BoxControl(caption, this);
    button->setObjectName(name);
    button->resize(HelpButtonSize);
    return button;
}

void Form4::showEvent(QShowEvent* event) {
    if (!event->spontaneous())
        activate();
    QDialog::showEvent(event);
}

void Form4::activate() {
    setPalette(schemePalette(m_appearance));
    const QColor face = toQColor(m_appearance.SchemeColours[ButtonColourSlot]);
    for (BoxControl* button : {m_back, m_forward, m_exit})
        button->setFaceColour(face);
    m_browser->wear(m_appearance);
    m_browser->navigate(
        QUrl::fromLocalFile(QFileInfo(QFile::decodeName(m_tag.c_str())).absoluteFilePath()));
    m_browser->setFocus();
    enableButtons();
}

void Form4::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    m_browser->resize(width() - BesideBrowser, height() - BeneathBrowser - m_browser->y());
    const int top = height() - (BeneathBrowser + HelpButtonSize.height()) / 2;
    m_back->move(HelpMargin, top);
    m_forward->move(m_back->geometry().right() + 1 + HelpMargin, top);
    m_exit->move(width() - HelpMargin - HelpButtonSize.width(), top);
}

bool Form4::isAtAnchor() const {
    return m_browser->source().hasFragment();
}

void Form4::enableButtons() {
    m_back->setEnabled(isAtAnchor() && m_browser->isBackwardAvailable());
    m_forward->setEnabled(isAtAnchor() && m_browser->isForwardAvailable());
}

} // namespace tessaly
