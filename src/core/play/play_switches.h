#pragma once

#include <array>
#include <string_view>

namespace tessaly {

/// What the player switches on and off: what the board shows while playing, and what an entry does.
struct PlaySwitches {
    bool showBrokenRules = true;
    bool showEqualNumbers = true;
    bool fadeImpossibleMarks = false;
    /// A number is entered on both sides of its side.
    bool fillBothSides = false;
    /// A number that is entered is struck from the marks of both of its hexagons.
    bool strikeMarks = false;
    /// What is entered makes and takes pencil marks.
    bool makeMarks = false;

    friend bool operator==(const PlaySwitches&, const PlaySwitches&) = default;
};

/// A switch, and the name under which it is remembered.
struct PlaySwitch {
    std::string_view setting;
    bool PlaySwitches::*value;
};
inline constexpr std::array AllPlaySwitches{
    PlaySwitch{"showBrokenRules", &PlaySwitches::showBrokenRules},
    PlaySwitch{"showEqualNumbers", &PlaySwitches::showEqualNumbers},
    PlaySwitch{"fadeImpossibleMarks", &PlaySwitches::fadeImpossibleMarks},
    PlaySwitch{"fillBothSides", &PlaySwitches::fillBothSides},
    PlaySwitch{"strikeMarks", &PlaySwitches::strikeMarks},
    PlaySwitch{"makeMarks", &PlaySwitches::makeMarks},
};

} // namespace tessaly
