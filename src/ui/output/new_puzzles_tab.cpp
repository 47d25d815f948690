#include "ui/output/new_puzzles_tab.h"

#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/dot_row.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

QStringList difficultyNames() {
    QStringList names;
    for (const DifficultyEntry& entry : Difficulties)
        names << QString::fromUtf8(entry.name);
    names << QString::fromUtf8(RandomDifficultyName);
    return names;
}

} // namespace

NewPuzzlesTab::NewPuzzlesTab(QWidget* parent)
    : QWidget(parent)
    , m_count(named(u"newCount"_s, new QLineEdit(u"10"_s)))
    , m_difficulty(new DotRow(u"newDifficulty"_s, difficultyNames())) {
    constexpr int ButtonWidth = 160;
    auto* label = new QLabel(tr("How many"));
    label->setBuddy(m_count);
    m_count->setAccessibleName(label->text());
    m_count->setFixedSize(dialog::ButtonSize);
    auto* note = new QLabel(
        tr("They are added to the puzzle file above and printed as \"Pages\", \"Solutions\" "
           "and \"Paper\" say."));
    note->setWordWrap(true);
    auto* create = named(u"createAndPrint"_s, new BoxControl(tr("Create and Print"), this));
    create->setFixedSize(ButtonWidth, dialog::ButtonSize.height());
    auto* count = new QHBoxLayout;
    count->addWidget(label);
    count->addWidget(m_count);
    count->addStretch();
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(count);
    rows->addWidget(m_difficulty);
    rows->addWidget(note);
    rows->addStretch();
    rows->addWidget(create, 0, Qt::AlignRight);
    connect(create, &BoxControl::clicked, this, &NewPuzzlesTab::confirmed);
    connect(m_count, &QLineEdit::returnPressed, this, &NewPuzzlesTab::confirmed);
}

int NewPuzzlesTab::count() const {
    return m_count->text().trimmed().toInt();
}

DifficultyChoice NewPuzzlesTab::difficulty() const {
    const std::size_t place = m_difficulty->chosen();
    return place < Difficulties.size() ? DifficultyChoice(Difficulties[place].difficulty)
                                       : std::nullopt;
}

} // namespace tessaly
