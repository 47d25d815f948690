// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "board/session_memory.h"

#include "board/configuration.h"
#include "board/file_access.h"
#include "options/scheme_library.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::string_view BundledPuzzles = "puzzles/easy.txt";

std::string configurationPath(const Session& session) {
    return session.ProgramFolder + "tessaly.cfg";
}

/// The files that the game cannot run without.
Outcome loadRequiredFiles(Session& session) {
    if (!FileExists(session.ProgramFolder + "all.col"))
        return Outcome::failed("File: all.col is missing\r\nProgram cannot run without this file");
    return Set6Combos(session.ProgramFolder + "hexabinx.txt", session.arrangements);
}

Outcome applyConfiguration(const Configuration& configuration, Session& session) {
    session.recentFiles = configuration.recentFiles;
    session.appearance.ActiveScheme = configuration.ActiveScheme;
    const SchemeLibrary schemes(session.ProgramFolder);
    Outcome scheme = schemes.LoadScheme(configuration.ActiveScheme, session.appearance);
    configuration.applyTo(session.appearance);
    return scheme;
}

} // namespace

LoadedSession loadSession(Session& session) {
    LoadedSession loaded;
    loaded.outcome = loadRequiredFiles(session);
    if (!loaded.outcome.ok())
        return loaded;
    const std::string path = configurationPath(session);
    const Configuration configuration = ReadcfgFile(path);
    loaded.last = {configuration.PuzPath, configuration.PuzNum};
    if (!FileExists(path))
        loaded.last.path = session.ProgramFolder + std::string(BundledPuzzles);
    loaded.notice = applyConfiguration(configuration, session).problem;
    return loaded;
}

void SavecfgFile(const Session& session) {
    Configuration configuration;
    configuration.PuzNum = std::max(session.puzzle.PuzNum, 1);
    configuration.ActiveScheme = session.appearance.ActiveScheme;
    configuration.remember(session.appearance);
    configuration.PuzPath = session.puzzle.PuzPath;
    configuration.recentFiles = session.recentFiles;
    static_cast<void>(SavecfgFile(configurationPath(session), configuration));
}

} // namespace tessaly
