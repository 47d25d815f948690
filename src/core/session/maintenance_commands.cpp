#include "core/session/maintenance_commands.h"

#include "core/board/puzzle_store.h"

#include <future>

namespace tessaly {
namespace {

constexpr std::string_view NewPuzzlesFile = "addnew.txt";
constexpr std::string_view VariantsFile = "addnewr.txt";
constexpr std::string_view VerifiedFile = "addnewrv.txt";
constexpr std::string_view CollectionFile = "puzzles20k.txt";
constexpr std::string_view ShuffledFile = "puzzles20u.txt";

} // namespace

MaintenanceCommands::MaintenanceCommands(Session& session, Display& display, Prompts& prompts,
                                         Chance chance)
    : m_session(session)
    , m_display(display)
    , m_prompts(prompts)
    , m_chance(chance) {}

void MaintenanceCommands::FlipandAdd() {
    const auto expand = [](const ToolFiles& files, const KeepGoing& keepGoing) {
        return expandPuzzles(files, TopBottomHeader::Subtracts, keepGoing);
    };
    if (run(NewPuzzlesFile, VariantsFile, expand))
        tell("done");
}

void MaintenanceCommands::Verify() {
    VerifyCount count;
    const auto verify = [&count](const ToolFiles& files, const KeepGoing& keepGoing) {
        return verifyPuzzles(files, count, keepGoing);
    };
    if (run(VariantsFile, VerifiedFile, verify))
        tell(std::to_string(count.solved) + " solved of " + std::to_string(count.tried) +
             "\r\n(hardly any hard puzzle passes, for its hint is planted in the blank hexagon; "
             "tessaly-cli check is the fair judge)\r\ndone");
}

void MaintenanceCommands::Randomize() {
    const auto shuffle = [this](const ToolFiles& files, const KeepGoing& keepGoing) {
        return shufflePuzzles(files, m_chance, keepGoing);
    };
    if (run(CollectionFile, ShuffledFile, shuffle))
        tell("done");
}

bool MaintenanceCommands::run(std::string_view input, std::string_view output, const Tool& tool) {
    const auto inFolder = [this](std::string_view name) { return m_session.ProgramFolder / name; };
    Outcome outcome;
    {
        const WhileSet running(m_session.busy.commandRunning);
        m_stopped = false;
        outcome = runWithProgress({inFolder(input), inFolder(output)}, tool);
    }
    if (m_stopped)
        return false;
    if (!outcome.ok())
        m_prompts.message(outcome.problem, style::Critical);
    return outcome.ok();
}

Outcome MaintenanceCommands::runWithProgress(const ToolFiles& files, const Tool& tool) {
    int count = 0;
    if (Outcome counted = PuzzleStore().CountLines(files.input, count); !counted.ok())
        return counted;
    m_display.showBusy(true);
    m_display.beginProgress(files.input);
    Outcome outcome = waitFor(tool, files, count);
    m_display.endProgress();
    m_display.showBusy(false);
    m_display.showPuzzle(m_session.puzzle);
    return outcome;
}

/// The tool works on a thread of its own: a disk may take its time.
Outcome MaintenanceCommands::waitFor(const Tool& tool, const ToolFiles& files, int count) {
    const RunClock clock;
    std::atomic<int> done = 0;
    m_display.showProgress(clock.progress(done, count));
    m_display.yield();
    auto working = std::async(std::launch::async, [&] {
        return tool(files, [&](int records) {
            done = records;
            return !m_stopped;
        });
    });
    while (working.wait_for(Turn) == std::future_status::timeout) {
        m_display.showProgress(clock.progress(done, count));
        m_display.yield();
    }
    return working.get();
}

void MaintenanceCommands::tell(const std::string& text) {
    m_prompts.message(text, "vbok");
}

} // namespace tessaly
