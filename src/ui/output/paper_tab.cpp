#include "ui/output/paper_tab.h"

#include "ui/controls/dialog_parts.h"
#include "ui/controls/dot_row.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

QDoubleSpinBox* makeLength(const QString& name, const QString& accessible, double millimetres) {
    constexpr double Shortest = 20;
    constexpr double Longest = 1000;
    auto* length = named(name, new QDoubleSpinBox);
    length->setRange(Shortest, Longest);
    length->setDecimals(1);
    length->setValue(millimetres);
    length->setSuffix(u" mm"_s);
    length->setAccessibleName(accessible);
    length->setMinimumHeight(FieldHeight);
    return length;
}

/// A row that can be hidden.
template <class Fill>
QWidget* makeRow(Fill fill) {
    auto* group = new QWidget;
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    fill(*row);
    return group;
}

} // namespace

PaperTab::PaperTab(QWidget* parent)
    : QWidget(parent)
    , m_paper(named(u"paper"_s, new QComboBox))
    , m_width(makeLength(u"paperWidth"_s, tr("Width"), 210))
    , m_height(makeLength(u"paperHeight"_s, tr("Height"), 297))
    , m_orientation(new DotRow(u"orientation"_s, {tr("Portrait"), tr("Landscape")}))
    , m_copies(named(u"copies"_s, new QSpinBox))
    , m_sides(named(u"sides"_s, new QComboBox)) {
    constexpr int MostCopies = 999;
    m_copies->setRange(1, MostCopies);
    m_copies->setMinimumHeight(FieldHeight);
    m_paper->setAccessibleName(tr("Paper"));
    m_copies->setAccessibleName(tr("Copies"));
    m_sides->setAccessibleName(tr("Sides"));
    // In the order of `sheets`.
    m_sides->addItems({tr("As the printer is set"), tr("One side"),
                       tr("Both, turned at the long edge"), tr("Both, turned at the short edge")});
    for (QComboBox* list : {m_paper, m_sides}) {
        list->setMinimumHeight(FieldHeight);
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
    m_ownSize = makeRow([this](QHBoxLayout& row) {
        addNamed(row, tr("Size"), m_width);
        row.addWidget(new QLabel(u"\u00D7"_s));
        row.addWidget(m_height);
        row.addStretch();
    });
    m_ofPrinter = makeRow([this](QHBoxLayout& row) {
        addNamed(row, tr("Copies"), m_copies);
        row.addSpacing(dialog::Spacing);
        addNamed(row, tr("Sides"), m_sides);
        row.setStretchFactor(m_sides, 1);
    });
    auto* paper = new QHBoxLayout;
    addNamed(*paper, tr("Paper"), m_paper);
    paper->setStretchFactor(m_paper, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(paper);
    rows->addWidget(m_ownSize);
    rows->addWidget(m_orientation);
    rows->addWidget(m_ofPrinter);
    rows->addStretch();

    connect(m_paper, &QComboBox::currentIndexChanged, this, &PaperTab::showOwnSize);
    connect(m_orientation, &DotRow::changed, this, &PaperTab::changed);
    for (QDoubleSpinBox* length : {m_width, m_height})
        connect(length, &QDoubleSpinBox::valueChanged, this, &PaperTab::changed);
    connect(m_copies, &QSpinBox::valueChanged, this, &PaperTab::changed);
}

void PaperTab::offer(const PrinterOffer& offer, bool isPdf) {
    m_offer = offer;
    m_isPdf = isPdf;
    {
        const QSignalBlocker quiet(m_paper);
        m_paper->clear();
        for (const PrinterPaper& paper : offer.papers)
            m_paper->addItem(paper.name);
        if (isPdf)
            m_paper->addItem(tr("Own size"));
        m_paper->setCurrentIndex(static_cast<int>(offer.usual));
    }
    m_ofPrinter->setVisible(!isPdf);
    m_sides->setEnabled(offer.isTwoSided);
    showOwnSize();
}

bool PaperTab::isOwnSize() const {
    return static_cast<std::size_t>(m_paper->currentIndex()) >= m_offer.papers.size();
}

void PaperTab::showOwnSize() {
    m_ownSize->setVisible(isOwnSize());
    Q_EMIT changed();
}

PaperSize PaperTab::paper() const {
    const PaperSize size =
        isOwnSize() ? PaperSize{m_width->value() * PointsPerMillimetre,
                                m_height->value() * PointsPerMillimetre}
                    : m_offer.papers.at(static_cast<std::size_t>(m_paper->currentIndex())).size;
    return size.oriented(m_orientation->chosen() == 1);
}

SheetSettings PaperTab::sheets() const {
    SheetSettings sheets;
    if (m_isPdf)
        return sheets;
    if (!isOwnSize())
        sheets.media = m_offer.papers.at(static_cast<std::size_t>(m_paper->currentIndex())).media;
    static const QStringList Sides{QString(), u"one-sided"_s, u"two-sided-long-edge"_s,
                                   u"two-sided-short-edge"_s};
    if (m_sides->isEnabled())
        sheets.sides = Sides.at(m_sides->currentIndex());
    sheets.copies = {m_copies->value(), true, sheets.sides.startsWith(u"two"_s)};
    return sheets;
}

} // namespace tessaly
