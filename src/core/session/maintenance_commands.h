#pragma once

#include "core/base/prompts.h"
#include "core/play/display.h"
#include "core/session/session.h"
#include "core/solver/library_tools.h"

#include <atomic>
#include <string_view>

namespace tessaly {

/// The developer's commands on whole puzzle files, by the captions of their buttons. The files have
/// fixed names in the program's folder; those that grow ("addnewr.txt", "addnewrv.txt") are
/// appended to.
class MaintenanceCommands {
public:
    MaintenanceCommands(Session& session, Display& display, Prompts& prompts, Chance chance);

    /// The eight variants of every puzzle of "addnew.txt", into "addnewr.txt".
    void FlipandAdd();
    /// The puzzles of "addnewr.txt" that the deduction rules solve, into "addnewrv.txt".
    void Verify();
    /// The lines of "puzzles20k.txt" shuffled, each once, into "puzzles20u.txt".
    void Randomize();

    /// Ends a run that is under way; its output file stays as it was.
    void stop() { m_stopped = true; }

private:
    using Tool = std::function<Outcome(const ToolFiles& files, const KeepGoing& keepGoing)>;

    /// Runs a tool with a progress bar; whether it came to its end. What goes wrong is told.
    bool run(std::string_view input, std::string_view output, const Tool& tool);
    Outcome runWithProgress(const ToolFiles& files, const Tool& tool);
    Outcome waitFor(const Tool& tool, const ToolFiles& files, int count);
    void tell(const std::string& text);

    Session& m_session;
    Display& m_display;
    Prompts& m_prompts;
    Chance m_chance;
    std::atomic<bool> m_stopped = false;
};

} // namespace tessaly
