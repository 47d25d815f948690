#include "ui/controls/choice_list.h"

#include <QKeyEvent>

namespace tessaly {

ChoiceList::ChoiceList(QWidget* parent)
    : QListWidget(parent) {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setSpacing(2);
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
