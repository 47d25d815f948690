#pragma once

#include "core/base/prompts.h"
#include "core/session/session.h"

#include <QDialog>

class QGridLayout;

namespace tessaly {

class BoxControl;

/// A time as a player reads it: "4:05", "1:02:03".
QString playTimeText(std::int64_t seconds);

/// Shows how the player did at each difficulty, with and without hints, as the play book knows it.
class StatisticsForm : public QDialog {
    Q_OBJECT

public:
    /// Both must outlive the form.
    StatisticsForm(Session& session, Prompts& prompts, QWidget* parent = nullptr);

    void showStatistics();

private:
    void fill();
    void addRow(const QStringList& texts, bool isHead = false);
    void empty();

    Session& m_session;
    Prompts& m_prompts;
    QGridLayout* m_table;
    BoxControl* m_empty; // StatisticsEmpty
    BoxControl* m_ok;    // StatisticsOk
};

} // namespace tessaly
