#include "ui/controls/message_text.h"

#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>

#include <algorithm>

namespace tessaly {
namespace {

/// About this many letters stand in a line.
constexpr int LettersInLine = 64;

} // namespace

MessageText::MessageText(QWidget* parent)
    : QTextEdit(parent) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    // The keys belong to the buttons.
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * 1.1);
    setFont(larger);
}

void MessageText::showText(const QString& text) {
    setPlainText(text);
    ensurePolished();
    document()->setDefaultFont(font());
    const int longestLine = fontMetrics().size(Qt::TextExpandTabs, toPlainText()).width() + 1;
    const int width = std::min(longestLine, LettersInLine * fontMetrics().averageCharWidth());
    setLineWrapColumnOrWidth(width);
    const int height = qCeil(document()->size().height());
    const int highest = screen()->availableGeometry().height() * 3 / 5;
    const bool scrolls = height > highest;
    setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setFixedSize(width + (scrolls ? verticalScrollBar()->sizeHint().width() : 0),
                 std::min(height, highest));
}

} // namespace tessaly
