#pragma once

#include <array>
#include <string_view>

class QWidget;

namespace tessaly {

/// The keys of a command, by the object name of its menu item or button; "; " stands between
/// several. The board itself takes the plain digits, the arrow keys, Home, End, Enter, Space,
/// Backspace, Delete and Escape, so no command does.
struct Shortcut {
    std::string_view command;
    std::string_view keys;
};

inline constexpr std::array Shortcuts{
    Shortcut{"mnuload", "Ctrl+O"},
    Shortcut{"mnuclippuz", "Ctrl+C"},
    Shortcut{"mnuclipsol", "Ctrl+Shift+C"},
    Shortcut{"mnuopts", "Ctrl+,"},
    Shortcut{"mnuhelp", "F1"},
    Shortcut{"mnuabout", "Ctrl+F1"},
    Shortcut{"cmdexit", "Ctrl+Q"},
    Shortcut{"mnucreaten_0", "Ctrl+N"},
    Shortcut{"mnucreaten_1", "Ctrl+Shift+N"},
    Shortcut{"mnutoday", "Ctrl+D"},
    Shortcut{"mnusavex", "Ctrl+Shift+S"},
    Shortcut{"mnusaveto", "Ctrl+S"},
    Shortcut{"mnucapwin", "Ctrl+E"},
    Shortcut{"mnudelete", "Ctrl+Del"},
    Shortcut{"mnuprintx_0", "Ctrl+P"},
    Shortcut{"mnuprintx_1", "Ctrl+Shift+P"},
    Shortcut{"mnuprintx_2", "Ctrl+B"},
    Shortcut{"mnuprintx_4", "Ctrl+M"},
    Shortcut{"cmdarrow_0", "PgUp"},
    Shortcut{"cmdarrow_1", "PgDown"},
    Shortcut{"PuzNumNow", "Ctrl+G"},
    Shortcut{"DifLab", "Ctrl+L"},
    Shortcut{"cmdshowsol", "F2"},
    Shortcut{"mnuundo", "Ctrl+Z"},
    Shortcut{"mnuredo", "Ctrl+Shift+Z; Ctrl+Y"},
    Shortcut{"mnucheck", "F5"},
    Shortcut{"mnureset", "Ctrl+R"},
    Shortcut{"mnuallpencil", "F6"},
    Shortcut{"mnuclearpencil", "Shift+F6"},
    Shortcut{"mnusetpairs", "F7"},
    Shortcut{"mnuset1s", "F8"},
    Shortcut{"mnuhint", "F4"},
    Shortcut{"mnumakemarks", "M"},
    Shortcut{"mnunextunsolved", "Ctrl+PgDown"},
    Shortcut{"mnustatistics", "Ctrl+T"},
    Shortcut{"mnushowtime", "Ctrl+Shift+T"},
    Shortcut{"mnuforgetpuzzle", "Ctrl+Shift+R"},
    Shortcut{"mnuforgetfile", "Ctrl+Alt+R"},
    Shortcut{"digt_0", "Alt+1"},
    Shortcut{"digt_1", "Alt+2"},
    Shortcut{"digt_2", "Alt+3"},
    Shortcut{"digt_3", "Alt+4"},
    Shortcut{"digt_4", "Alt+5"},
    Shortcut{"digt_5", "Alt+6"},
    Shortcut{"digt_6", "Alt+0"},
};

/// Buttons that do what a menu item does: they name its keys, which are the item's own.
inline constexpr std::array SharedShortcuts{
    Shortcut{"cmdload", "Ctrl+O"},
    Shortcut{"cmdcreate", "Ctrl+N"},
    Shortcut{"cmdundo", "Ctrl+Z"},
    Shortcut{"cmdredo", "Ctrl+Shift+Z; Ctrl+Y"},
    Shortcut{"StatLab", "F5"},
    Shortcut{"cmdreset", "Ctrl+R"},
    Shortcut{"cmdallpencil", "F6; Shift+F6"},
    Shortcut{"cmdsetpairs", "F7"},
    Shortcut{"cmdset1s", "F8"},
    Shortcut{"cmdhint", "F4"},
    Shortcut{"cmdpencil", "M"},
};

/// Gives every command of the window its keys. An edit box gets the focus by its keys.
void giveShortcuts(QWidget& window);

} // namespace tessaly
