#include "ui/output/paper_tab.h"

#include "ui/controls/dialog_parts.h"
#include "ui/controls/dot_row.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int FieldHeight = dialog::ButtonSize.height() - 4;

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

/// Rows of named fields that can be hidden together.
template <class Fill>
QWidget* makeRows(Fill fill) {
    auto* group = new QWidget;
    auto* form = new QFormLayout(group);
    form->setContentsMargins(0, 0, 0, 0);
    fill(*form);
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
    // In the order of `sheets`.
    m_sides->addItems({tr("As the printer is set"), tr("One side"),
                       tr("Both, turned at the long edge"), tr("Both, turned at the short edge")});
    for (QComboBox* list : {m_paper, m_sides}) {
        list->setMinimumHeight(FieldHeight);
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
    auto* size = new QHBoxLayout;
    size->addWidget(m_width);
    size->addWidget(new QLabel(u"\u00D7"_s));
    size->addWidget(m_height);
    size->addStretch();
    m_ownSize = makeRows([&](QFormLayout& form) { form.addRow(tr("Size"), size); });
    m_ofPrinter = makeRows([this](QFormLayout& form) {
        form.addRow(tr("Copies"), m_copies);
        form.addRow(tr("Sides"), m_sides);
    });
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(makeRows([this](QFormLayout& form) { form.addRow(tr("Paper"), m_paper); }));
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
    if (m_ofPrinter->isHidden())
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
