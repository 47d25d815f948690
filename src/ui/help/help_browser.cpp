#include "ui/help/help_browser.h"

#include "ui/controls/scheme_palette.h"

#include <QFile>
#include <QImage>
#include <QScrollBar>

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

} // namespace tessaly
