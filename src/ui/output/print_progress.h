#pragma once

#include "core/options/appearance.h"

#include <QDialog>
#include <QElapsedTimer>

class QLabel;
class QProgressBar;

namespace tessaly {

/// How far a long print is, with a button that ends it. It comes up only when the print takes a
/// while, and blocks no other window.
class PrintProgress : public QDialog {
    Q_OBJECT

public:
    /// `appearance` must outlive the window.
    explicit PrintProgress(const Appearance& appearance, QWidget* parent = nullptr);

    void begin(const QString& title);
    /// Shows that the page `page`, from 0, comes next, and lets the windows live now and then;
    /// whether to go on.
    bool goOn(int page, int pageCount);
    void end();
    /// Ends the print as soon as it notices.
    void stop() { m_stopped = true; }

    void reject() override;

private:
    const Appearance& m_appearance;
    QLabel* m_title;
    QProgressBar* m_bar;
    QElapsedTimer m_running;
    qint64 m_lastYield = 0;
    bool m_stopped = false;
};

} // namespace tessaly
