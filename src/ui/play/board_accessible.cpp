#include "ui/play/board_accessible.h"

#include "ui/play/board_view.h"
#include "ui/play/cell_accessible.h"

namespace tessaly {
namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* view = qobject_cast<BoardView*>(object))
        return new BoardAccessible(*view);
    if (auto* tag = qobject_cast<HexagonTagWidget*>(object))
        return new QAccessibleWidget(tag, QAccessible::Button, tag->accessibleName());
    return nullptr;
}

} // namespace

BoardAccessible::BoardAccessible(BoardView& view)
    : QAccessibleWidget(&view, QAccessible::List)
    , m_view(view) {}

BoardAccessible::~BoardAccessible() {
    for (const QAccessible::Id id : m_cells)
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
}

void BoardAccessible::install() {
    QAccessible::installFactory(makeInterface);
}

void BoardAccessible::tellFocus(BoardView& view) {
    if (!view.hasFocus())
        return;
    QAccessibleEvent focused(&view, QAccessible::Focus);
    if (view.selection())
        focused.setChild(indexOf(view.selection()));
    QAccessible::updateAccessibility(&focused);
}

void BoardAccessible::tellEntry(BoardView& view) {
    QAccessibleEvent renamed(&view, QAccessible::NameChanged);
    renamed.setChild(indexOf(view.selection()));
    QAccessible::updateAccessibility(&renamed);
}

int BoardAccessible::indexOf(CellId cell) {
    return (cell.hexagon - 1) * CellCount + cell.position - 1;
}

int BoardAccessible::childCount() const {
    return BoardCellCount + QAccessibleWidget::childCount();
}

QAccessibleInterface* BoardAccessible::child(int index) const {
    return index < BoardCellCount ? cellAtIndex(index)
                                  : QAccessibleWidget::child(index - BoardCellCount);
}

QAccessibleInterface* BoardAccessible::cellAtIndex(int index) const {
    if (index < 0)
        return nullptr;
    const auto place = static_cast<std::size_t>(index);
    if (m_cells[place] == 0)
        m_cells[place] =
            QAccessible::registerAccessibleInterface(new CellAccessible(m_view, AllCells[place]));
    return QAccessible::accessibleInterface(m_cells[place]);
}

QAccessibleInterface* BoardAccessible::childAt(int x, int y) const {
    const QPoint point = m_view.mapFromGlobal(QPoint(x, y));
    QWidget* above = m_view.childAt(point);
    while (above != nullptr && above->parentWidget() != &m_view)
        above = above->parentWidget();
    if (above != nullptr && !above->testAttribute(Qt::WA_TransparentForMouseEvents))
        return QAccessible::queryAccessibleInterface(above);
    const CellId cell = m_view.rect().contains(point) ? m_view.cellUnder(point) : CellId{};
    return cell ? cellAtIndex(indexOf(cell)) : nullptr;
}

int BoardAccessible::indexOfChild(const QAccessibleInterface* child) const {
    if (const auto* cell = dynamic_cast<const CellAccessible*>(child))
        return indexOf(cell->cell());
    const int index = QAccessibleWidget::indexOfChild(child);
    return index < 0 ? index : BoardCellCount + index;
}

QAccessibleInterface* BoardAccessible::focusChild() const {
    if (m_view.hasFocus() && m_view.selection())
        return cellAtIndex(indexOf(m_view.selection()));
    return QAccessibleWidget::focusChild();
}

} // namespace tessaly
