#pragma once

class QKeyEvent;

namespace tessaly {

class BoardInput;

/// The classic key code of a key, as `BoardInput` takes it: 8, 27, 46 and, for the digits of the
/// main keyboard, 48..57. 0 for keys that the board has no use for, the numeric pad's among them,
/// and for keys pressed together with Ctrl, Alt or Meta.
int keyCodeOf(const QKeyEvent& event);

/// The code of the character that a key gives; 0 for none, or with Ctrl, Alt or Meta.
int characterCodeOf(const QKeyEvent& event);

/// Moves the selection if that is what the key is for: the arrows, Home and End. Whether it was.
bool moveSelection(BoardInput& input, const QKeyEvent& event);

/// Reads the hexagon out with H, or clicks the selected cell with Enter or Space. Whether it was
/// so.
bool readsOrClicks(BoardInput& input, const QKeyEvent& event);

/// Whether it is Enter, pressed anew.
bool isEnter(const QKeyEvent& event);

/// Makes or takes the pencil mark of a digit that is pressed with Ctrl, or while digits are marks.
/// Whether it was one.
bool turnsMark(BoardInput& input, const QKeyEvent& event);

/// Whether the key asks for the menu of the selected cell.
bool asksForMenu(const QKeyEvent& event);

/// Hands any other key on, first as a key and then as the character that it gives.
void pressKey(BoardInput& input, const QKeyEvent& event);

} // namespace tessaly
