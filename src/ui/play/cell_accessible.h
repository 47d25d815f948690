#pragma once

#include <QAccessibleInterface>

#include "core/board/vocabulary.h"

namespace tessaly {

class BoardView;

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

} // namespace tessaly
