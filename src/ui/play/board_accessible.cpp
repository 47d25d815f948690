#include "ui/play/board_accessible.h"

#include "core/play/cell_description.h"
#include "ui/play/board_view.h"

#include <QAccessibleInterface>

namespace tessaly {
namespace {

/// One cell of the board: its place, what it holds and what lies across its side. Its value is its
/// number, 0 for none.
class CellAccessible : public PaintedItem,
                       public QAccessibleActionInterface,
                       public QAccessibleValueInterface {
public:
    CellAccessible(BoardView& view, CellId cell);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    /// A given can only have the focus.
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& number) override;
    QVariant maximumValue() const override { return CellCount; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

protected:
    QRect place() const override { return m_view.rectangleOf(m_cell); }

private:
    /// What stands in the cell, but nothing of what is withheld.
    std::string entry() const;

    BoardView& m_view;
    CellId m_cell;
};

/// A hexagon's tag, which a press holds down.
class TagAccessible : public QAccessibleWidget {
public:
    explicit TagAccessible(HexagonTagWidget& tag)
        : QAccessibleWidget(&tag, QAccessible::Button)
        , m_tag(tag) {}

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override;

private:
    HexagonTagWidget& m_tag;
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
        return sentence(cellInWords(m_cell) + ", " + entryInWords(board, m_cell) +
                        (m_view.isSeenBroken(m_cell) ? ", breaks a rule" : ""));
    case QAccessible::Value:
        return QString::fromStdString(entry());
    case QAccessible::Description:
        return sentence(neighbourInWords(board, m_cell));
    default:
        return {};
    }
}

QAccessible::State CellAccessible::state() const {
    const BoardInput& input = m_view.input();
    const bool isOpen = input.canSelect(m_cell);
    QAccessible::State state;
    state.readOnly = !isOpen;
    state.editable = isOpen;
    state.focusable = input.canRead(m_cell);
    state.selectable = isOpen;
    state.selected = input.selection() == m_cell;
    state.focused = input.cell() == m_cell && m_view.hasFocus();
    state.invisible = !m_view.isVisible();
    return state;
}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return nullptr;
}

QStringList CellAccessible::actionNames() const {
    if (m_view.input().canSelect(m_cell))
        return {pressAction(), showMenuAction(), setFocusAction()};
    return m_view.input().canRead(m_cell) ? QStringList{setFocusAction()} : QStringList{};
}

void CellAccessible::doAction(const QString& name) {
    if (!actionNames().contains(name))
        return;
    m_view.input().walkTo(m_cell);
    if (name == pressAction())
        m_view.input().Picture2_MouseUp(PointerButton::Left);
    else if (name == showMenuAction())
        m_view.enterPopup();
}

std::string CellAccessible::entry() const {
    return m_view.input().canRead(m_cell) ? m_view.board().CellNum[m_cell] : std::string();
}

QVariant CellAccessible::currentValue() const {
    return isPlaced(entry()) ? entry().front() - '0' : 0;
}

void CellAccessible::setCurrentValue(const QVariant& number) {
    const int wanted = number.toInt();
    if (wanted < 0 || wanted > CellCount || !m_view.input().canSelect(m_cell))
        return;
    m_view.input().walkTo(m_cell);
    m_view.input().enter(wanted);
}

void TagAccessible::doAction(const QString& name) {
    QAccessibleWidget::doAction(setFocusAction()); // with which a hold ends
    if (name == pressAction())
        m_tag.toggle();
}

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* view = qobject_cast<BoardView*>(object))
        return new BoardAccessible(*view);
    if (auto* tag = qobject_cast<HexagonTagWidget*>(object))
        return new TagAccessible(*tag);
    if (auto* popup = qobject_cast<NumberPopup*>(object))
        return new QAccessibleWidget(popup, QAccessible::Grouping);
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
    PaintedList::tellFocus(view, indexOf(view.input().cell()));
}

void BoardAccessible::tellEntry(BoardView& view, CellId cell) {
    QAccessibleEvent renamed(&view, QAccessible::NameChanged);
    renamed.setChild(indexOf(cell));
    QAccessible::updateAccessibility(&renamed);
}

int BoardAccessible::indexOf(CellId cell) {
    return cell ? (cell.hexagon - 1) * CellCount + cell.position - 1 : -1;
}

PaintedItem* BoardAccessible::makeItem(int index) const {
    return new CellAccessible(m_view, AllCells[static_cast<std::size_t>(index)]);
}

int BoardAccessible::currentItem() const {
    return indexOf(m_view.input().cell());
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
