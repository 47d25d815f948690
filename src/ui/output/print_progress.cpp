#include "ui/output/print_progress.h"

#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/drawing/qt_values.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int PrintProgressWidth = 380;
/// In milliseconds.
constexpr qint64 ShortPrint = 400;
constexpr qint64 BetweenYields = 25;

} // namespace

PrintProgress::PrintProgress(const Appearance& appearance, QWidget* parent)
    : QDialog(parent)
    , m_appearance(appearance)
    , m_title(new QLabel(this))
    , m_bar(new QProgressBar(this)) {
    setObjectName(u"PrintProgress"_s);
    setWindowTitle(tr("Print"));
    m_title->setTextFormat(Qt::PlainText);
    m_bar->setAccessibleName(tr("Progress of the print"));
    m_bar->setFormat(tr("Page %v of %m"));
    auto* cancel = named(u"cancelPrint"_s, new BoxControl(u"Cancel"_s, this));
    QVBoxLayout* rows = addRows(*this);
    rows->addWidget(m_title);
    rows->addWidget(m_bar);
    rows->addLayout(makeButtonRow({cancel}));
    setFixedWidth(PrintProgressWidth);
    connect(cancel, &BoxControl::clicked, this, &PrintProgress::reject);
}

void PrintProgress::begin(const QString& title) {
    setPalette(schemePalette(m_appearance));
    m_title->setText(
        fontMetrics().elidedText(title, Qt::ElideMiddle, PrintProgressWidth - 2 * dialog::Margin));
    m_bar->setRange(0, 0);
    m_bar->setValue(0);
    m_stopped = false;
    m_running.start();
    m_lastYield = 0;
}

bool PrintProgress::goOn(int page, int pageCount) {
    const qint64 now = m_running.elapsed();
    if (now - m_lastYield >= BetweenYields) {
        m_bar->setRange(0, pageCount);
        m_bar->setValue(page);
        if (now >= ShortPrint && !isVisible() && !m_stopped)
            show();
        QApplication::processEvents();
        m_lastYield = m_running.elapsed();
    }
    return !m_stopped;
}

void PrintProgress::end() {
    hide();
}

void PrintProgress::reject() {
    stop();
    QDialog::reject();
}

} // namespace tessaly
