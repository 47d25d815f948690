#include "ui/play/board_accessible.h"

#include "core/play/cell_description.h"
#include "ui/play/board_view.h"

#include <QAccessibleInterface>

namespace tessaly {
namespace {

/// One cell of the board: its place, what it holds and what lies across its side.
class CellAccessible : public PaintedItem, public QAccessibleActionInterface {
public:
    CellAccessible(BoardView& view, CellId cell);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    /// The focus selects the cell, as the pointer over it would.
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

protected:
    QRect place() const override { return m_view.rectangleOf(m_cell); }

private:
    BoardView& m_view;
    CellId m_cell;
};

QString sentence(const std::string& ascii) {
    QString text = QString::fromStdString(ascii);
    if (!text.isEmpty())
        text.front() = text.front().toUpper();
    return text;
}

CellAccessible::CellAccessible(BoardView& view, CellId cell)
    : PaintedItem(view, BoardAccessible::indexOf(cell))
    , m_view(view)
    , m_cell(cell) {}

QString CellAccessible::text(QAccessible::Text kind) const {
    const Board& board = m_view.board();
    switch (kind) {
    case QAccessible::Name:
        return sentence(cellInWords(m_cell) + ", " + entryInWords(board, m_cell));
    case QAccessible::Value:
        return QString::fromStdString(board.CellNum[m_cell]);
    case QAccessible::Description:
        return sentence(neighbourInWords(board, m_cell));
    default:
        return {};
    }
}

QAccessible::State CellAccessible::state() const {
    const bool isOpen = m_view.input().canSelect(m_cell);
    QAccessible::State state;
    state.readOnly = !isOpen;
    state.editable = isOpen;
    state.focusable = isOpen;
    state.selectable = isOpen;
    state.selected = m_view.input().selection() == m_cell;
    state.focused = state.selected && m_view.hasFocus();
    state.invisible = !m_view.isVisible();
    return state;
}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList CellAccessible::actionNames() const {
    return m_view.input().canSelect(m_cell) ? QStringList{setFocusAction()} : QStringList{};
}

void CellAccessible::doAction(const QString& name) {
    if (name == setFocusAction())
        m_view.input().Picture2_MouseMove(numberCentre(m_cell));
}

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* view = qobject_cast<BoardView*>(object))
        return new BoardAccessible(*view);
    if (auto* tag = qobject_cast<HexagonTagWidget*>(object))
        return new QAccessibleWidget(tag, QAccessible::Button, tag->accessibleName());
    return nullptr;
}

} // namespace

BoardAccessible::BoardAccessible(BoardView& view)
    : PaintedList(view, BoardCellCount)
    , m_view(view) {}

void BoardAccessible::install() {
    QAccessible::installFactory(makeInterface);
}

void BoardAccessible::tellFocus(BoardView& view) {
    PaintedList::tellFocus(view, indexOf(view.input().selection()));
}

void BoardAccessible::tellEntry(BoardView& view) {
    QAccessibleEvent renamed(&view, QAccessible::NameChanged);
    renamed.setChild(indexOf(view.input().selection()));
    QAccessible::updateAccessibility(&renamed);
}

int BoardAccessible::indexOf(CellId cell) {
    return cell ? (cell.hexagon - 1) * CellCount + cell.position - 1 : -1;
}

PaintedItem* BoardAccessible::makeItem(int index) const {
    return new CellAccessible(m_view, AllCells[static_cast<std::size_t>(index)]);
}

int BoardAccessible::currentItem() const {
    return indexOf(m_view.input().selection());
}

QAccessibleInterface* BoardAccessible::childAt(int x, int y) const {
    const QPoint point = m_view.mapFromGlobal(QPoint(x, y));
    QWidget* above = m_view.childAt(point);
    while (above != nullptr && above->parentWidget() != &m_view)
        above = above->parentWidget();
    if (above != nullptr && !above->testAttribute(Qt::WA_TransparentForMouseEvents))
        return QAccessible::queryAccessibleInterface(above);
    const CellId cell = m_view.rect().contains(point) ? m_view.cellUnder(point) : CellId{};
    return child(indexOf(cell));
}

} // namespace tessaly
