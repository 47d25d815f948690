#pragma once

#include "core/base/outcome.h"
#include "core/session/session.h"

#include <string>

namespace tessaly {

/// What start-up found besides what went into the session.
struct LoadedSession {
    /// Why the game cannot start; done when it can.
    Outcome outcome;
    /// What the user should know all the same; may be empty.
    std::string notice;
};

/// Reads the program's data files in `session.ProgramFolder` into the session: the colour schemes,
/// the arrangements and the configuration; clears up what a killed process left there. At the very
/// first start the puzzle to open is one of the bundled ones, and the scheme is `firstScheme` if
/// there is such a one.
LoadedSession loadSession(Session& session, const std::string& firstScheme = DefaultScheme);

/// Writes what the next run is to remember: while no other puzzle was shown, the one that was to be
/// opened, though its file may be out of reach today. A file that cannot be written is no one's
/// concern at the end of a run.
void SavecfgFile(const Session& session);

} // namespace tessaly
