#pragma once

#include <QLabel>

namespace tessaly {

/// A label that cuts its text in the middle where there is no room for all of it.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessaly
