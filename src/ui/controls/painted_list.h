#pragma once

#include <QAccessibleWidget>
#include <QWidget>

#include <vector>

namespace tessaly {

/// One of the items that a widget paints itself, as a screen reader meets it: no widget, but an
/// item of the list that the widget is.
class PaintedItem : public QAccessibleInterface {
public:
    PaintedItem(QWidget& view, int index)
        : m_view(view)
        , m_index(index) {}

    int index() const { return m_index; }

    bool isValid() const override { return m_view.isVisible(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_view.window()->windowHandle(); }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QRect rect() const override;

protected:
    /// Where the item lies on its widget.
    virtual QRect place() const = 0;

private:
    QWidget& m_view;
    int m_index;
};

/// A widget that paints its items itself, as a list of them; its child widgets come after them.
class PaintedList : public QAccessibleWidget {
public:
    PaintedList(QWidget& view, int itemCount);
    ~PaintedList() override;

    /// Says that an item, or with -1 the widget as a whole, has the focus now.
    static void tellFocus(QWidget& view, int item);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    /// The current item while the widget has the focus.
    QAccessibleInterface* focusChild() const override;
    /// The focus of an item is not the widget's.
    QAccessible::State state() const override;

protected:
    virtual PaintedItem* makeItem(int index) const = 0;
    /// -1 for none.
    virtual int currentItem() const = 0;

private:
    int itemCount() const { return static_cast<int>(m_items.size()); }

    /// Made when they are asked for; 0 is none yet.
    mutable std::vector<QAccessible::Id> m_items;
};

} // namespace tessaly
