#pragma once

#include "core/output/page_design.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessaly {

class DotRow;

/// What the pages with puzzles look like.
class PageTab : public QWidget {
    Q_OBJECT

public:
    explicit PageTab(QWidget* parent = nullptr);

    void addTo(PageDesign& design) const;

Q_SIGNALS:
    void changed();

private:
    DotRow* m_perPage;
    QLineEdit* m_title;
    QCheckBox* m_nameLine;
    QCheckBox* m_large;
    QCheckBox* m_stars;
    QCheckBox* m_hexagonNumbers;
    QCheckBox* m_markGrid;
};

/// Where the solutions stand.
class SolutionTab : public QWidget {
    Q_OBJECT

public:
    explicit SolutionTab(QWidget* parent = nullptr);

    void addTo(PageDesign& design) const;

Q_SIGNALS:
    void changed();

private:
    QComboBox* m_where;
    DotRow* m_perPage;
};

} // namespace tessaly
