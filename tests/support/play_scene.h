#pragma once

#include "core/play/play_commands.h"

#include "support/recording_display.h"
#include "support/scripted_prompts.h"

namespace tessaly {

/// A game and its commands, with nobody but a test to see and to ask.
struct PlayScene {
    Game game;
    BusyState busy;
    Appearance appearance;
    RecordingDisplay display;
    ScriptedPrompts prompts;
    PlayCommands commands{game, busy, appearance, display, prompts};
};

} // namespace tessaly
