#pragma once

#include "core/solver/rating.h"

#include <QWidget>

#include <optional>

namespace tessaly {

/// How hard the puzzle on the board is: its stars, and as the tooltip what it needs.
class StarRow : public QWidget {
    Q_OBJECT

public:
    explicit StarRow(QWidget* parent = nullptr);

    /// Shows a rating; nothing leaves the place empty.
    void showRating(const std::optional<Rating>& rating);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_stars = 0;
};

} // namespace tessaly
