#pragma once

namespace tessaly {

/// The data files in the program's folder.
inline constexpr const char* SchemeLibraryFile = "all.col";
inline constexpr const char* ArrangementFile = "hexabinx.txt";
inline constexpr const char* HelpPageFile = "tessaly.htm";
/// The folder of its drawings.
inline constexpr const char* HelpDrawingsFolder = "manual";
inline constexpr const char* ConfigurationFile = "tessaly.cfg";
inline constexpr const char* WindowPlaceFile = "window.cfg";
inline constexpr const char* EasyLibraryFile = "puzzles/easy.txt";
inline constexpr const char* HardLibraryFile = "puzzles/hard.txt";

} // namespace tessaly
