#pragma once

#include "core/base/run_progress.h"

#include <QProgressBar>

namespace tessaly {

/// How far a long run is, with the time left; empty space while there is none.
class RunProgressBar : public QProgressBar {
    Q_OBJECT

public:
    explicit RunProgressBar(QWidget* parent = nullptr);

    void begin();
    void show(const RunProgress& progress);
    void end();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showText();

    QString m_timeLeft;
};

/// A time as people say it: "45 s", "2 min 5 s", "1 h 20 min".
QString durationText(std::chrono::seconds duration);

} // namespace tessaly
