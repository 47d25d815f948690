// The creation of many puzzles in the window, beside the same by the command line tool on one
// thread; and how long the window is deaf meanwhile.

#include "ui/controls/box_control.h"
#include "ui/game_window.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace tessaly {
namespace {

constexpr int PuzzleCount = 10'000;

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The processor time that this thread has had, in milliseconds.
double workDone() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Feels how long the window lets an event wait while puzzles are made, and how much of that it was
/// at work itself, which is all that it can do about it on a busy machine.
class Pulse {
public:
    explicit Pulse(const Session& session) {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, &session] {
            if (session.busy.creating && m_since.isValid()) {
                gaps.push_back(static_cast<double>(m_since.nsecsElapsed()) / 1e6);
                longestWork = std::max(longestWork, workDone() - m_workBefore);
            }
            m_since.start();
            m_workBefore = workDone();
        });
        m_timer.start(0);
    }

    /// In milliseconds.
    std::vector<double> gaps;
    double longestWork = 0;

private:
    QTimer m_timer;
    QElapsedTimer m_since;
    double m_workBefore = 0;
};

/// Fills in the dialog that opens next and confirms it.
void order(int count) {
    QTimer::singleShot(0, qApp, [count] {
        auto* dialog = qobject_cast<Form3*>(QApplication::activeModalWidget());
        dialog->findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QString::number(count));
        for (auto* button : dialog->findChildren<BoxControl*>())
            if (button->text() == QLatin1String("OK"))
                button->click();
    });
}

double millisecondsOf(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

bool createByTheTool(const DataFolder& folder) {
    const std::string output = folder.path() + "tool.txt";
    const std::string command = std::string("'") + TESSALY_CLI + "' create --jobs 1 --count " +
                                std::to_string(PuzzleCount) + " --difficulty random --output '" +
                                output + "' 2>/dev/null";
    return std::system(command.c_str()) == 0; // NOLINT: this is what is measured
}

void createInTheWindowBesideTheTool(benchmark::State& state) {
    GameWindow game;
    std::vector<double> inWindow;
    std::vector<double> byTool;
    Pulse pulse(game.session);
    auto& start = game.find<QAction>(QStringLiteral("mnucreaten_1"));
    while (state.KeepRunning()) {
        game.prompts.answers = {answer::Yes, answer::Ok};
        order(PuzzleCount);
        inWindow.push_back(millisecondsOf([&] { start.trigger(); }));
        bool made = false;
        byTool.push_back(millisecondsOf([&] { made = createByTheTool(game.folder); }));
        if (!made || game.prompts.shown.back().text.find("10000 Puzzles added") != 0)
            state.SkipWithError("not all puzzles were made");
        state.SetIterationTime(inWindow.back() / 1000);
    }
    std::sort(pulse.gaps.begin(), pulse.gaps.end());
    state.counters["window_ms"] = median(inWindow);
    state.counters["tool_ms"] = median(byTool);
    state.counters["ratio"] = median(inWindow) / median(byTool);
    state.counters["deaf_median_ms"] = median(pulse.gaps);
    state.counters["deaf_99th_ms"] = pulse.gaps[pulse.gaps.size() * 99 / 100];
    state.counters["deaf_longest_ms"] = pulse.gaps.back();
    state.counters["deaf_longest_at_work_ms"] = pulse.longestWork;
}
BENCHMARK(createInTheWindowBesideTheTool)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(5);

} // namespace
} // namespace tessaly

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
