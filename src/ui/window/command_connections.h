#pragma once

namespace tessaly {

class BoardView;
class DeveloperRow;
class MainMenu;
class PalettePanel;
class StatusLine;
class ToolRow;
struct Session;
struct WindowCommands;

// Which control of the main window gives which command, region by region. What is handed over must
// live as long as the controls can be used.

void connectMenu(const MainMenu& menu, WindowCommands& commands);
void connectTools(ToolRow& tools, WindowCommands& commands, BoardView& board);
void connectPalette(PalettePanel& palette, WindowCommands& commands);
void connectStatusLine(const StatusLine& status, WindowCommands& commands);
void connectDeveloperRow(const DeveloperRow& row, WindowCommands& commands, const Session& session);
/// The menu and the tools make a puzzle alike; the developer's row tells how it came out.
void connectCreation(const MainMenu& menu, const ToolRow& tools, DeveloperRow& developerRow,
                     WindowCommands& commands, const Session& session);

} // namespace tessaly
