#pragma once

class QKeyEvent;

namespace tessaly {

class BoardInput;

/// Moves the selection if that is what the key is for: the arrows, Home and End. Whether it was.
bool moveSelection(BoardInput& input, const QKeyEvent& event);

/// Whether the key asks for the menu of the selected cell.
bool asksForMenu(const QKeyEvent& event);

/// Hands any other key on, first as a key and then as the character that it gives.
void pressKey(BoardInput& input, const QKeyEvent& event);

} // namespace tessaly
