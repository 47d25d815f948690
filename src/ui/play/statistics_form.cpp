#include "ui/play/statistics_form.h"

#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/drawing/qt_values.h"

#include <QGridLayout>
#include <QLabel>
#include <QLayoutItem>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int ColumnSpacing = 28;
constexpr int RowSpacing = 8;

/// A time, or a dash where nothing was solved.
QString timeOf(const SolvingTimes& times, std::int64_t seconds) {
    return times.solved > 0 ? playTimeText(seconds) : u"–"_s;
}

} // namespace

QString playTimeText(std::int64_t seconds) {
    const auto twoDigits = [](std::int64_t number) {
        return QString::number(number).rightJustified(2, u'0');
    };
    const std::int64_t minutes = seconds / 60;
    const QString end = u':' + twoDigits(seconds % 60);
    return minutes < 60
               ? QString(QString::number(minutes) + end)
               : QString(QString::number(minutes / 60) + u':' + twoDigits(minutes % 60) + end);
}

StatisticsForm::StatisticsForm(Session& session, Prompts& prompts, QWidget* parent)
    : QDialog(parent)
    , m_session(session)
    , m_prompts(prompts)
    , m_table(new QGridLayout)
    , m_empty(named(u"StatisticsEmpty"_s, new BoxControl(tr("Empty"), this)))
    , m_ok(named(u"StatisticsOk"_s, new BoxControl(u"OK"_s, this))) {
    setObjectName(u"StatisticsForm"_s);
    setWindowTitle(tr("Statistics"));
    setModal(true);
    m_table->setHorizontalSpacing(ColumnSpacing);
    m_table->setVerticalSpacing(RowSpacing);
    QVBoxLayout* rows = addRows(*this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addLayout(m_table);
    rows->addSpacing(dialog::Spacing);
    rows->addLayout(makeButtonRow({m_empty, m_ok}));
    m_empty->setToolTip(tr("Forget all times; the puzzles stay solved"));
    connect(m_empty, &BoxControl::clicked, this, &StatisticsForm::empty);
    connect(m_ok, &BoxControl::clicked, this, &QDialog::hide);
}

void StatisticsForm::showStatistics() {
    setPalette(schemePalette(m_session.appearance));
    fill();
    m_ok->setFocus();
    show();
}

void StatisticsForm::addRow(const QStringList& texts, bool isHead) {
    const int row = m_table->rowCount();
    QFont writing = font();
    writing.setBold(isHead);
    for (int column = 0; column < texts.size(); ++column) {
        auto* label = new QLabel(texts[column], this);
        label->setFont(writing);
        m_table->addWidget(label, row, column, column == 0 ? Qt::AlignLeft : Qt::AlignRight);
    }
}

void StatisticsForm::fill() {
    while (const QLayoutItem* item = m_table->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    addRow({QString(), tr("Solved"), tr("This week"), tr("Best time"), tr("Usual time")}, true);
    bool isAny = false;
    for (const SolvingTimes& times : m_session.book->statistics()) {
        const QString difficulty = QString::fromUtf8(nameOf(times.difficulty));
        addRow({times.withHints ? tr("%1, with hints").arg(difficulty) : difficulty,
                QString::number(times.solved), QString::number(times.thisWeek),
                timeOf(times, times.best), timeOf(times, times.usual)});
        isAny = isAny || times.solved > 0;
    }
    m_empty->setEnabled(isAny);
}

void StatisticsForm::empty() {
    if (m_prompts.message("Empty the statistics? Solved puzzles stay marked.",
                          "vbyesno+vbquestion+vbdefaultbutton2") != answer::Yes)
        return;
    if (const Outcome emptied = m_session.book->emptyStatistics(); !emptied.ok())
        m_prompts.message(emptied.problem, style::Critical);
    fill();
    m_ok->setFocus();
}

} // namespace tessaly
