#include "ui/controls/painted_list.h"

namespace tessaly {

QAccessibleInterface* PaintedItem::parent() const {
    return QAccessible::queryAccessibleInterface(&m_view);
}

QRect PaintedItem::rect() const {
    const QRect onView = place();
    return {m_view.mapToGlobal(onView.topLeft()), onView.size()};
}

PaintedList::PaintedList(QWidget& view, int itemCount)
    : QAccessibleWidget(&view, QAccessible::List)
    , m_items(static_cast<std::size_t>(itemCount)) {}

PaintedList::~PaintedList() {
    for (const QAccessible::Id id : m_items)
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
}

void PaintedList::tellFocus(QWidget& view, int item) {
    if (!view.hasFocus())
        return;
    QAccessibleEvent focused(&view, QAccessible::Focus);
    if (item >= 0)
        focused.setChild(item);
    QAccessible::updateAccessibility(&focused);
}

int PaintedList::childCount() const {
    return itemCount() + QAccessibleWidget::childCount();
}

QAccessibleInterface* PaintedList::child(int index) const {
    if (index >= itemCount())
        return QAccessibleWidget::child(index - itemCount());
    if (index < 0)
        return nullptr;
    QAccessible::Id& item = m_items[static_cast<std::size_t>(index)];
    if (item == 0)
        item = QAccessible::registerAccessibleInterface(makeItem(index));
    return QAccessible::accessibleInterface(item);
}

int PaintedList::indexOfChild(const QAccessibleInterface* child) const {
    if (const auto* item = dynamic_cast<const PaintedItem*>(child))
        return item->index();
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? index : itemCount() + index;
}

QAccessibleInterface* PaintedList::focusChild() const {
    if (widget()->hasFocus() && currentItem() >= 0)
        return child(currentItem());
    return QAccessibleWidget::focusChild();
}

QAccessible::State PaintedList::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    if (currentItem() >= 0)
        state.focused = false;
    return state;
}

} // namespace tessaly
