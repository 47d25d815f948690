#include "ui/output/page_tabs.h"

#include "ui/controls/choice_mark.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/dot_row.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

template <class Numbers>
QStringList captionsOf(const Numbers& numbers) {
    QStringList captions;
    for (int number : numbers)
        captions << QString::number(number);
    return captions;
}

template <class Numbers>
std::size_t placeOf(const Numbers& numbers, int number) {
    return static_cast<std::size_t>(std::find(numbers.begin(), numbers.end(), number) -
                                    numbers.begin());
}

} // namespace

PageTab::PageTab(QWidget* parent)
    : QWidget(parent)
    , m_perPage(new DotRow(u"perPage"_s, captionsOf(PuzzlesPerPage)))
    , m_title(named(u"title"_s, new QLineEdit))
    , m_nameLine(named(u"nameLine"_s, new TickBox(tr("Line for name and date"))))
    , m_large(named(u"large"_s, new TickBox(tr("Large print, one a page"))))
    , m_stars(named(u"stars"_s, new TickBox(tr("Stars"))))
    , m_hexagonNumbers(named(u"hexagonNumbers"_s, new TickBox(tr("Numbered hexagons"))))
    , m_markGrid(named(u"markGrid"_s, new TickBox(tr("Corners for marks")))) {
    auto* frame = named(u"pageFrame"_s, new QGroupBox(tr("Puzzles per Page"), this));
    auto* inFrame = new QVBoxLayout(frame);
    inFrame->addWidget(m_perPage);
    auto* titleRow = new QHBoxLayout;
    addNamed(*titleRow, tr("Title"), m_title);
    auto* ticks = new QGridLayout;
    ticks->addWidget(m_nameLine, 0, 0);
    ticks->addWidget(m_large, 1, 0);
    ticks->addWidget(m_stars, 0, 1);
    ticks->addWidget(m_hexagonNumbers, 1, 1);
    ticks->addWidget(m_markGrid, 2, 0);
    auto* rows = new QVBoxLayout(this);
    rows->setSpacing(dialog::Spacing / 2);
    rows->addWidget(frame);
    rows->addLayout(titleRow);
    rows->addLayout(ticks);
    rows->addStretch();

    m_perPage->choose(placeOf(PuzzlesPerPage, PageDesign::UsualPuzzlesPerPage));
    m_title->setMinimumHeight(FieldHeight);
    m_title->setAccessibleName(tr("Title"));
    connect(m_perPage, &DotRow::changed, this, &PageTab::changed);
    connect(m_title, &QLineEdit::textChanged, this, &PageTab::changed);
    connect(m_large, &QCheckBox::toggled, m_perPage, &QWidget::setDisabled);
    for (QCheckBox* tick : {m_nameLine, m_large, m_stars, m_hexagonNumbers, m_markGrid})
        connect(tick, &QCheckBox::toggled, this, &PageTab::changed);
}

void PageTab::addTo(PageDesign& design) const {
    design.puzzlesPerPage = PuzzlesPerPage.at(m_perPage->chosen());
    design.title = m_title->text().trimmed().toStdString();
    design.nameAndDate = m_nameLine->isChecked();
    design.large = m_large->isChecked();
    design.stars = m_stars->isChecked();
    design.hexagonNumbers = m_hexagonNumbers->isChecked();
    design.markGrid = m_markGrid->isChecked();
}

SolutionTab::SolutionTab(QWidget* parent)
    : QWidget(parent)
    , m_where(named(u"solutions"_s, new QComboBox))
    , m_perPage(new DotRow(u"solutionsPerPage"_s, captionsOf(SolutionsPerPage))) {
    // In the order of `SolutionsAt`.
    m_where->addItems({tr("None"), tr("At the end"), tr("On the page after their puzzles"),
                       tr("Upside down at the foot of the page"), tr("Only solutions"),
                       tr("In a file of their own")});
    m_where->setCurrentIndex(static_cast<int>(SolutionsAt::End));
    m_where->setAccessibleName(tr("Solutions"));
    m_where->setMinimumHeight(FieldHeight);
    auto* frame = new QGroupBox(tr("Solutions per Page"), this);
    auto* inFrame = new QVBoxLayout(frame);
    inFrame->addWidget(m_perPage);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(m_where);
    rows->addWidget(frame);
    rows->addStretch();

    m_perPage->choose(placeOf(SolutionsPerPage, PageDesign::UsualSolutionsPerPage));
    connect(m_perPage, &DotRow::changed, this, &SolutionTab::changed);
    connect(m_where, &QComboBox::currentIndexChanged, this, [this, frame](int place) {
        const auto where = static_cast<SolutionsAt>(place);
        frame->setDisabled(where == SolutionsAt::None || where == SolutionsAt::Foot);
        Q_EMIT changed();
    });
}

void SolutionTab::addTo(PageDesign& design) const {
    design.solutions = static_cast<SolutionsAt>(m_where->currentIndex());
    design.solutionsPerPage = SolutionsPerPage.at(m_perPage->chosen());
}

} // namespace tessaly
