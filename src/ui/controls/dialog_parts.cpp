#include "ui/controls/dialog_parts.h"

#include "ui/controls/box_control.h"
#include "ui/drawing/qt_values.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPainter>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QVBoxLayout>

namespace tessaly {
namespace {

/// Rows that a pointer or a finger can meet.
class RoomyRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        constexpr int LeastHeight = 24;
        return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, LeastHeight});
    }
};

} // namespace

QVBoxLayout* addRows(QDialog& dialog) {
    auto* rows = new QVBoxLayout(&dialog);
    rows->setContentsMargins(dialog::Margin, dialog::Margin, dialog::Margin, dialog::Margin);
    rows->setSpacing(dialog::Spacing);
    return rows;
}

QLabel* addNamed(QHBoxLayout& row, const QString& label, QWidget* field) {
    auto* name = new QLabel(label);
    name->setBuddy(field);
    row.addWidget(name);
    row.addWidget(field);
    return name;
}

QHBoxLayout* makeButtonRow(std::initializer_list<BoxControl*> buttons) {
    auto* row = new QHBoxLayout;
    row->setSpacing(dialog::Spacing);
    row->addStretch();
    for (BoxControl* button : buttons) {
        button->setFixedSize(dialog::ButtonSize);
        row->addWidget(button);
    }
    return row;
}

void resizeOnScreen(QWidget& window, QSize wanted) {
    constexpr QSize RoomForFrame(16, 48); // which the desktop puts around it
    const QWidget* owner = window.parentWidget() != nullptr ? window.parentWidget() : &window;
    window.resize(wanted.boundedTo(owner->screen()->availableSize() - RoomForFrame));
}

void drawFrame(QWidget& widget) {
    constexpr double LeastOutline = 3; // of WCAG 2, for the outline of a control
    constexpr double FrameCorner = 4;
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(standingOut(widget.palette().color(QPalette::Window), LeastOutline));
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(0.5, 0.5, -0.5, -0.5), FrameCorner,
                            FrameCorner);
}

QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    painter.drawText(rect(), static_cast<int>(alignment()), shown);
}

ScrolledRegion::ScrolledRegion(QWidget* contents, QWidget* parent)
    : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // it follows the focus of what it holds
    setWidgetResizable(true);
    setWidget(contents);
}

ChoiceList::ChoiceList(QWidget* parent)
    : QListWidget(parent) {
    setItemDelegate(new RoomyRows(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setSpacing(1);
}

int ChoiceList::selectedRow() const {
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : row(selected.front());
}

void ChoiceList::select(int row) {
    if (row < 0)
        clearSelection();
    else
        setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
}

void ChoiceList::showRow(int row) {
    if (row < 0)
        return;
    setCurrentRow(row, QItemSelectionModel::NoUpdate);
    scrollToItem(item(row), PositionAtTop);
}

void ChoiceList::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    if (selectedRow() >= 0)
        Q_EMIT chosen(selectedRow());
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
    const int before = selectedRow();
    QListWidget::keyPressEvent(event);
    if (const int after = selectedRow(); after >= 0 && after != before)
        Q_EMIT chosen(after);
}

} // namespace tessaly
