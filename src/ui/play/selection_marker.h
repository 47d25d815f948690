#pragma once

#include <QWidget>

namespace tessaly {

/// The marker around the number of the selected cell (`Shape1`). The pointer goes through it.
class SelectionMarker : public QWidget {
    Q_OBJECT

public:
    explicit SelectionMarker(QWidget* parent);
    void setColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_colour;
};

} // namespace tessaly
