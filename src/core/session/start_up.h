#pragma once

#include "core/base/prompts.h"
#include "core/session/configuration.h"
#include "core/session/program_folder.h"

#include <string>

namespace tessaly {

/// Finds the program's folder and reads what lies there into the session. Where a shipped file in
/// it is damaged and the installed one is good, the user is asked whether to restore it. What stops
/// the start all the same has been told.
LoadedSession startSession(Session& session, const ProgramFolderSources& sources,
                           const std::string& firstScheme, Prompts& prompts);

/// Opens the play book in the program's folder for the session, and finds there which puzzle was
/// played last. What the player should know of it; the session has a book only if it can be used.
Outcome openPlayBook(Session& session);

} // namespace tessaly
