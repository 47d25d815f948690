#include "core/session/start_up.h"

#include "core/options/scheme_library.h"

namespace tessaly {
namespace {

/// Whether a folder's copy of a shipped file serves.
bool isGood(const std::filesystem::path& folder, const std::string& name) {
    if (name == ArrangementFile) {
        ArrangementTable table;
        return Set6Combos(folder / name, table).ok();
    }
    SchemeLibrary schemes(folder);
    return schemes.RefreshSchemeList().ok() && !schemes.names().empty();
}

/// Whether the damaged file was replaced, as the user wished.
bool isRestored(const std::filesystem::path& share, const Session& session, Prompts& prompts,
                LoadedSession& loaded) {
    const std::string name = loaded.damagedFile;
    const std::string question = loaded.outcome.problem + "\r\nRestore the installed one?";
    if (name.empty() || !isGood(share, name) ||
        prompts.message(question, "vbyesno+vbcritical") != answer::Yes)
        return false;
    loaded.outcome = restoreShippedFile(share, session.ProgramFolder, name);
    return loaded.outcome.ok();
}

} // namespace

LoadedSession startSession(Session& session, const ProgramFolderSources& sources,
                           const std::string& firstScheme, Prompts& prompts) {
    LoadedSession loaded;
    loaded.outcome = findProgramFolder(sources, session.ProgramFolder);
    if (loaded.outcome.ok())
        loaded = loadSession(session, firstScheme);
    while (isRestored(sources.shareFolder, session, prompts, loaded))
        loaded = loadSession(session, firstScheme);
    if (!loaded.outcome.ok())
        prompts.message(loaded.outcome.problem, style::Critical);
    return loaded;
}

Outcome openPlayBook(Session& session) {
    session.book = std::make_unique<PlayBook>(session.ProgramFolder / PlayBook::FileName);
    Outcome opened = session.book->open();
    if (!session.book->isOpen())
        session.book.reset();
    else if (std::optional<LastPuzzle> last = session.book->last())
        session.last = std::move(*last);
    return opened;
}

} // namespace tessaly
