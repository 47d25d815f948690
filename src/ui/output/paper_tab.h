#pragma once

#include "core/output/paper.h"
#include "ui/output/printers.h"

#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QSpinBox;

namespace tessaly {

class DotRow;

/// The paper, and how it is printed on.
class PaperTab : public QWidget {
    Q_OBJECT

public:
    explicit PaperTab(QWidget* parent = nullptr);

    /// Shows what a printer offers. A PDF file has no copies and no sides, but any paper.
    void offer(const PrinterOffer& offer, bool isPdf);

    PaperSize paper() const;
    SheetSettings sheets() const;

Q_SIGNALS:
    void changed();

private:
    bool isOwnSize() const;
    void showOwnSize();

    PrinterOffer m_offer;
    bool m_isPdf = false;
    QComboBox* m_paper;
    QDoubleSpinBox* m_width;
    QDoubleSpinBox* m_height;
    DotRow* m_orientation;
    QSpinBox* m_copies;
    QComboBox* m_sides;
    /// What is there only for paper of its own size, and for a printer.
    QWidget* m_ownSize;
    QWidget* m_ofPrinter;
};

} // namespace tessaly
