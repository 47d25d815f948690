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

} // namespace tessaly
