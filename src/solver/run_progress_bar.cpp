// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "solver/run_progress_bar.h"

namespace tessaly {

using namespace Qt::StringLiterals;

RunProgressBar::RunProgressBar(QWidget* parent)
    : QProgressBar(parent) {
    setObjectName(u"runProgress"_s);
    QSizePolicy keepingItsPlace(QSizePolicy::Expanding, QSizePolicy::Fixed);
    keepingItsPlace.setRetainSizeWhenHidden(true);
    setSizePolicy(keepingItsPlace);
    setMinimumWidth(1);
    setAccessibleName(tr("Progress"));
    hide();
}

void RunProgressBar::begin() {
    setRange(0, 0);
    setFormat({});
    setVisible(true);
}

void RunProgressBar::show(const RunProgress& progress) {
    setRange(0, progress.count);
    setValue(progress.made);
    setFormat(tr("%p% · %1 left").arg(durationText(progress.left)));
}

void RunProgressBar::end() {
    hide();
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
