#include "core/session/session_memory.h"

#include "core/base/data_files.h"
#include "core/files/file_access.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"

#include <algorithm>

namespace tessaly {
namespace {

std::string configurationPath(const Session& session) {
    return session.ProgramFolder + ConfigurationFile;
}

/// The schemes must be listed before anything can be coloured by them.
Outcome checkSchemes(const std::string& folder) {
    const std::string path = folder + SchemeLibraryFile;
    SchemeLibrary schemes(folder);
    if (Outcome read = schemes.RefreshSchemeList(); !read.ok())
        return read;
    if (schemes.names().empty())
        return Outcome::failed(path + ": there is no colour scheme in it");
    return Outcome::done();
}

/// The files that the game cannot run without.
Outcome loadRequiredFiles(Session& session) {
    if (!FileExists(session.ProgramFolder + SchemeLibraryFile))
        return Outcome::failed("File: all.col is missing\r\nProgram cannot run without this file");
    if (Outcome checked = checkSchemes(session.ProgramFolder); !checked.ok())
        return checked;
    return Set6Combos(session.ProgramFolder + ArrangementFile, session.arrangements);
}

bool hasScheme(const std::string& folder, const std::string& scheme) {
    Appearance tried;
    return SchemeLibrary(folder).LoadScheme(scheme, tried).ok();
}

Outcome applyConfiguration(const Configuration& configuration, Session& session) {
    session.recentFiles = configuration.recentFiles;
    session.appearance.ActiveScheme = configuration.ActiveScheme;
    const SchemeLibrary schemes(session.ProgramFolder);
    Outcome scheme = schemes.LoadScheme(configuration.ActiveScheme, session.appearance);
    if (!scheme.ok()) {
        session.appearance.ActiveScheme = BuiltInScheme;
        static_cast<void>(schemes.LoadScheme(BuiltInScheme, session.appearance).ok());
    }
    configuration.applyTo(session.appearance);
    return scheme;
}

} // namespace

LoadedSession loadSession(Session& session, const std::string& firstScheme) {
    LoadedSession loaded;
    removeLeftovers(session.ProgramFolder);
    loaded.outcome = loadRequiredFiles(session);
    if (!loaded.outcome.ok())
        return loaded;
    const std::string path = configurationPath(session);
    Configuration configuration = ReadcfgFile(path);
    session.last = {configuration.PuzPath, configuration.PuzNum};
    if (!FileExists(path)) {
        session.last.path = session.ProgramFolder + EasyLibraryFile;
        if (hasScheme(session.ProgramFolder, firstScheme))
            configuration.ActiveScheme = firstScheme;
    }
    loaded.notice = applyConfiguration(configuration, session).problem;
    return loaded;
}

void SavecfgFile(const Session& session) {
    Configuration configuration;
    const bool showedPuzzle = !session.puzzle.PuzPath.empty();
    configuration.PuzNum = std::max(showedPuzzle ? session.puzzle.PuzNum : session.last.number, 1);
    configuration.ActiveScheme = session.appearance.ActiveScheme;
    configuration.remember(session.appearance);
    configuration.PuzPath = showedPuzzle ? session.puzzle.PuzPath : session.last.path;
    configuration.recentFiles = session.recentFiles;
    static_cast<void>(SavecfgFile(configurationPath(session), configuration));
}

} // namespace tessaly
