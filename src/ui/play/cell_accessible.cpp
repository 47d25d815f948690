#include "ui/play/cell_accessible.h"

#include "core/play/cell_description.h"
#include "ui/play/board_view.h"

#include <QWindow>

namespace tessaly {
namespace {

QString sentence(const std::string& ascii) {
    QString text = QString::fromStdString(ascii);
    if (!text.isEmpty())
        text.front() = text.front().toUpper();
    return text;
}

} // namespace

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
    const bool isOpen = m_view.canSelect(m_cell);
    QAccessible::State state;
    state.readOnly = !isOpen;
    state.editable = isOpen;
    state.focusable = isOpen;
    state.selectable = isOpen;
    state.selected = m_view.selection() == m_cell;
    state.focused = state.selected && m_view.hasFocus();
    state.invisible = !m_view.isVisible();
    return state;
}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList CellAccessible::actionNames() const {
    return m_view.canSelect(m_cell) ? QStringList{setFocusAction()} : QStringList{};
}

void CellAccessible::doAction(const QString& name) {
    if (name == setFocusAction())
        m_view.pointAt(m_cell);
}

} // namespace tessaly
