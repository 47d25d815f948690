// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "solver/creation_progress_bar.h"

namespace tessaly {

using namespace Qt::StringLiterals;

CreationProgressBar::CreationProgressBar(QWidget* parent)
    : QProgressBar(parent) {
    setObjectName(u"creationProgress"_s);
    QSizePolicy keepingItsPlace(QSizePolicy::Expanding, QSizePolicy::Fixed);
    keepingItsPlace.setRetainSizeWhenHidden(true);
    setSizePolicy(keepingItsPlace);
    setMinimumWidth(1);
    setAccessibleName(tr("Progress of the creation"));
    hide();
}

void CreationProgressBar::begin() {
    setRange(0, 0);
    setFormat({});
    setVisible(true);
}

void CreationProgressBar::show(const CreationProgress& progress) {
    setRange(0, progress.count);
    setValue(progress.made);
    setFormat(tr("%p% · %1 left").arg(durationText(progress.left)));
}

void CreationProgressBar::end() {
    hide();
}

QString durationText(std::chrono::seconds duration) {
    const auto seconds = duration.count();
    if (seconds < 60)
        return CreationProgressBar::tr("%1 s").arg(seconds);
    if (seconds < 3600)
        return CreationProgressBar::tr("%1 min %2 s").arg(seconds / 60).arg(seconds % 60);
    return CreationProgressBar::tr("%1 h %2 min").arg(seconds / 3600).arg(seconds % 3600 / 60);
}

} // namespace tessaly
