#pragma once

#include "core/base/outcome.h"
#include "core/options/appearance.h"
#include "core/session/session.h"

#include <filesystem>
#include <optional>
#include <string>

namespace tessaly {

/// What is remembered from one run to the next. The default value is that of a first run.
///
/// Paths and names are bytes. One that holds a line feed cannot be stored in a file of lines: it
/// is left out, which is the same as an empty one, rather than read back as two.
struct Configuration {
    /// The puzzle shown last, 1 or more.
    int PuzNum = 1;
    int PrintLineWidth = DefaultPrintLineWidth;
    int HexaBorderWidth = DefaultBorderWidth;
    bool SplitHexas = false;
    bool NumBorder = false;
    /// Colours that were never chosen are nothing here: they come from the scheme.
    std::optional<Colour> FixedNumberColour;
    std::optional<Colour> UserNumberColour;
    std::optional<Colour> HexaBorderColour;
    std::optional<Colour> HexaFillColour;
    std::string ActiveScheme = DefaultScheme;
    std::string NumberFont = DefaultNumberFont;
    /// The full path of the last puzzle file; may be empty.
    std::filesystem::path PuzPath;
    RecentFiles recentFiles;

    /// Takes the settings over from `appearance`.
    void remember(const Appearance& appearance);

    /// Puts the settings but the scheme onto `appearance`, whose scheme is loaded: colours that
    /// were never chosen come from its slots, or are black, or white where black does not read.
    void applyTo(Appearance& appearance) const;

    friend bool operator==(const Configuration&, const Configuration&) = default;
};

struct [[nodiscard]] ConfigurationRead : Outcome {
    /// Whether some of it is garbled or missing.
    bool isDamaged = false;
};

/// Reads "tessaly.cfg": each value that is missing, garbled or out of its range takes its default,
/// one by one, and where there is no file the configuration is that of a first run. Fails only when
/// there is one that cannot be read.
///
/// Lines: (1) nine whole numbers separated by commas: `PuzNum`, `PrintLineWidth`,
/// `HexaBorderWidth`, `FixedNumberColour`, `UserNumberColour`, `HexaBorderColour`, `SplitHexas`,
/// `HexaFillColour`, `NumBorder`, a colour that was never chosen being empty; (2) the scheme;
/// (3) the font; (4) the last puzzle file; (5) and on, the recent files.
ConfigurationRead ReadcfgFile(const std::filesystem::path& path, Configuration& configuration);

/// Writes the file anew: whole, or not at all.
Outcome SavecfgFile(const std::filesystem::path& path, const Configuration& configuration,
                    const LockWait& wait = {});

/// What start-up found besides what went into the session.
struct LoadedSession {
    /// Why the game cannot start; done when it can.
    Outcome outcome;
    /// The shipped file in the program's folder that is of no use, and so stops the start, where
    /// the installed one could mend that; may be empty.
    std::string damagedFile;
    /// What the user should know all the same; may be empty.
    std::string notice;
};

/// Reads the program's data files in `session.ProgramFolder` into the session: the colour schemes,
/// the arrangements and the configuration; clears up what a killed process left there. At the very
/// first start the puzzle to open is one of the bundled ones, and the scheme is `firstScheme` if
/// there is such a one.
LoadedSession loadSession(Session& session, const std::string& firstScheme = DefaultScheme);

/// Writes what the next run is to remember: while no other puzzle was shown, the one that was to be
/// opened, though its file may be out of reach today. Nothing is written over a configuration that
/// could not be read.
Outcome SavecfgFile(const Session& session, const LockWait& wait = {});

} // namespace tessaly
