#include "ui/play/board_accessible.h"

#include "core/play/cell_description.h"
#include "ui/play/board_view.h"

#include <QAccessibleInterface>
#include <QWindow>

namespace tessaly {
namespace {

/// One cell of the board as a screen reader meets it: an item of a list, with its place, what it
/// holds and what lies across its side. It is no widget; the board's view stands behind it.
class CellAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    CellAccessible(BoardView& view, CellId cell);

    CellId cell() const { return m_cell; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    /// The focus selects the cell, as the pointer over it would.
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

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
    : m_view(view)
    , m_cell(cell) {}

bool CellAccessible::isValid() const {
    return m_view.isVisible();
}

QWindow* CellAccessible::window() const {
    return m_view.window()->windowHandle();
}

QAccessibleInterface* CellAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(&m_view);
}

QRect CellAccessible::rect() const {
    const QRect onView = m_view.rectangleOf(m_cell);
    return {m_view.mapToGlobal(onView.topLeft()), onView.size()};
}

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
    if (view.input().selection())
        focused.setChild(indexOf(view.input().selection()));
    QAccessible::updateAccessibility(&focused);
}

void BoardAccessible::tellEntry(BoardView& view) {
    QAccessibleEvent renamed(&view, QAccessible::NameChanged);
    renamed.setChild(indexOf(view.input().selection()));
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
    if (m_view.hasFocus() && m_view.input().selection())
        return cellAtIndex(indexOf(m_view.input().selection()));
    return QAccessibleWidget::focusChild();
}

} // namespace tessaly
