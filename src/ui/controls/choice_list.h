#pragma once

#include <QListWidget>

namespace tessaly {

/// A list to choose one entry from, by the mouse or by the keys. Long entries are cut, not
/// scrolled.
class ChoiceList : public QListWidget {
    Q_OBJECT

public:
    explicit ChoiceList(QWidget* parent = nullptr);

    /// The row of the selected entry; -1 for none.
    int selectedRow() const;
    /// Selects an entry without choosing it; -1 selects none.
    void select(int row);
    /// Goes to an entry without selecting it.
    void showRow(int row);

    QSize sizeHint() const override { return minimumSizeHint(); }

Q_SIGNALS:
    /// The mouse came up over the list while an entry was selected, or a key selected another one.
    void chosen(int row);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tessaly
