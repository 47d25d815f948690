#include "ui/output/selection_tab.h"

#include "core/base/text.h"
#include "ui/controls/dialog_parts.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int NumberWidth = 72;

int numberIn(const QLineEdit& box) {
    return leadingWholeNumber(box.text().toStdString());
}

QComboBox* makeList(const QString& name, const QString& accessible, const QStringList& entries,
                    QWidget* parent) {
    auto* list = named(name, new QComboBox(parent));
    list->addItems(entries);
    list->setAccessibleName(accessible);
    list->setMinimumHeight(FieldHeight);
    return list;
}

QStringList starCounts() {
    QStringList counts;
    for (int stars = 1; stars <= MostStars; ++stars)
        counts << QString::number(stars);
    return counts;
}

} // namespace

SelectionTab::SelectionTab(QWidget* parent)
    : QWidget(parent) {
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(makeNumbersFrame());
    rows->addWidget(makeFilterFrame());
    rows->addStretch();
}

QLineEdit* SelectionTab::makeBox(const QString& name, const QString& accessible) {
    auto* box = named(name, new QLineEdit(this));
    box->setAccessibleName(accessible);
    box->setMinimumHeight(FieldHeight);
    connect(box, &QLineEdit::returnPressed, this, &SelectionTab::confirmed);
    connect(box, &QLineEdit::textChanged, this, &SelectionTab::changed);
    return box;
}

QWidget* SelectionTab::makeNumbersFrame() {
    auto* frame = named(u"Frame1"_s, new QGroupBox(u"Number of Puzzles"_s, this));
    auto* row = new QHBoxLayout(frame);
    row->setSpacing(dialog::Spacing / 2);
    m_from = makeBox(u"Text1"_s, u"From"_s);
    m_to = makeBox(u"Text2"_s, u"To"_s);
    m_list = makeBox(u"puzzleList"_s, tr("or these"));
    m_list->setPlaceholderText(u"3, 7, 20-24"_s);
    named(u"Label1"_s, addNamed(*row, u"From"_s, m_from));
    named(u"Label2"_s, addNamed(*row, u"To"_s, m_to));
    for (QLineEdit* box : {m_from, m_to})
        box->setFixedWidth(NumberWidth);
    row->addSpacing(dialog::Spacing / 2);
    addNamed(*row, tr("or these"), m_list);
    row->setStretchFactor(m_list, 1);
    connect(m_list, &QLineEdit::textChanged, this, [this] {
        for (QLineEdit* box : {m_from, m_to})
            box->setEnabled(!hasList());
    });
    return frame;
}

QWidget* SelectionTab::makeFilterFrame() {
    auto* frame = new QGroupBox(tr("Only"), this);
    auto* rows = new QVBoxLayout(frame);
    rows->setSpacing(dialog::Spacing / 2);
    QStringList difficulties{tr("Any")};
    for (const DifficultyEntry& entry : Difficulties)
        difficulties << QString::fromUtf8(entry.name);
    m_difficulty = makeList(u"difficulty"_s, tr("Difficulty"), difficulties, frame);
    m_leastStars = makeList(u"leastStars"_s, tr("Least stars"), starCounts(), frame);
    m_mostStars = makeList(u"mostStars"_s, tr("Most stars"), starCounts(), frame);
    m_mostStars->setCurrentIndex(MostStars - 1);
    m_order =
        makeList(u"order"_s, tr("Order"), {tr("As in the file"), tr("The easiest first")}, frame);
    auto* kinds = new QHBoxLayout;
    addNamed(*kinds, tr("Difficulty"), m_difficulty);
    kinds->addStretch();
    addNamed(*kinds, tr("Stars"), m_leastStars);
    addNamed(*kinds, tr("to"), m_mostStars);
    auto* order = new QHBoxLayout;
    addNamed(*order, tr("Order"), m_order);
    order->addStretch();
    rows->addLayout(kinds);
    rows->addLayout(order);
    for (QComboBox* list : {m_difficulty, m_leastStars, m_mostStars, m_order})
        connect(list, &QComboBox::currentIndexChanged, this, &SelectionTab::changed);
    return frame;
}

void SelectionTab::setRange(int from, int to) {
    m_from->setText(QString::number(from));
    m_to->setText(QString::number(to));
    m_list->clear();
}

void SelectionTab::setLast(int to) {
    m_to->setText(QString::number(to));
}

void SelectionTab::focusFirst() {
    m_from->setFocus();
    m_from->selectAll();
}

int SelectionTab::from() const {
    return numberIn(*m_from);
}

int SelectionTab::to() const {
    return numberIn(*m_to);
}

bool SelectionTab::hasList() const {
    return !m_list->text().trimmed().isEmpty();
}

Outcome SelectionTab::read(PrintSelection& selection) const {
    if (const int place = m_difficulty->currentIndex(); place > 0)
        selection.difficulty = Difficulties.at(static_cast<std::size_t>(place - 1)).difficulty;
    const auto [least, most] =
        std::minmax({m_leastStars->currentIndex() + 1, m_mostStars->currentIndex() + 1});
    selection.stars = {least, most};
    selection.byStars = m_order->currentIndex() == 1;
    selection.numbers = NumberList({from(), to()});
    return hasList() ? NumberList::read(m_list->text().toStdString(), *selection.numbers)
                     : Outcome::done();
}

} // namespace tessaly
