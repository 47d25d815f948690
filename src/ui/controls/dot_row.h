#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QRadioButton;

namespace tessaly {

/// Options side by side, of which one is chosen. Tab reaches that one, the arrow keys the others.
class DotRow : public QWidget {
    Q_OBJECT

public:
    /// The options are named "NAME_CAPTION"; the first is chosen.
    DotRow(const QString& name, const QStringList& captions, QWidget* parent = nullptr);

    /// The place of the chosen option.
    std::size_t chosen() const;
    void choose(std::size_t place);

Q_SIGNALS:
    void changed();

private:
    void showChoice();

    std::vector<QRadioButton*> m_dots;
};

} // namespace tessaly
