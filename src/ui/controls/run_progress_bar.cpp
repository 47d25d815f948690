#include "ui/controls/run_progress_bar.h"

namespace tessaly {

using namespace Qt::StringLiterals;

namespace {

/// Between the text and the ends of the bar.
constexpr int TextMargin = 4;

} // namespace

RunProgressBar::RunProgressBar(QWidget* parent)
    : QProgressBar(parent) {
    setObjectName(u"runProgress"_s);
    QSizePolicy keepingItsPlace(QSizePolicy::Expanding, QSizePolicy::Fixed);
    keepingItsPlace.setRetainSizeWhenHidden(true);
    setSizePolicy(keepingItsPlace);
    setMinimumWidth(fontMetrics().horizontalAdvance(u"100%"_s) + 2 * TextMargin);
    setAccessibleName(tr("Progress"));
    hide();
}

void RunProgressBar::begin() {
    setRange(0, 0);
    setFormat({});
    m_timeLeft.clear();
    setVisible(true);
}

void RunProgressBar::show(const RunProgress& progress) {
    setRange(0, progress.count);
    setValue(progress.made);
    m_timeLeft = durationText(progress.left);
    showText();
}

void RunProgressBar::end() {
    hide();
}

void RunProgressBar::resizeEvent(QResizeEvent* event) {
    QProgressBar::resizeEvent(event);
    showText();
}

/// As much as there is room for: the share that is done and the time left, or the share alone.
void RunProgressBar::showText() {
    if (m_timeLeft.isEmpty())
        return;
    const QString left = tr("%1 left").arg(m_timeLeft);
    setToolTip(left);
    for (const QString& text :
         {tr("%p% · %1").arg(left), tr("%p% · %1").arg(m_timeLeft), u"%p%"_s}) {
        setFormat(text);
        if (fontMetrics().horizontalAdvance(this->text()) + 2 * TextMargin <= width())
            return;
    }
}

QString durationText(std::chrono::seconds duration) {
    const auto seconds = duration.count();
    if (seconds < 60)
        return RunProgressBar::tr("%1 s").arg(seconds);
    if (seconds < 3600)
        return RunProgressBar::tr("%1 min %2 s").arg(seconds / 60).arg(seconds % 60);
    return RunProgressBar::tr("%1 h %2 min").arg(seconds / 3600).arg(seconds % 3600 / 60);
}

} // namespace tessaly
