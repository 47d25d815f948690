// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "solver/developer_commands.h"

namespace tessaly {

DeveloperCommands::DeveloperCommands(Session& session, Display& display, Prompts& prompts)
    : m_session(session)
    , m_display(display)
    , m_prompts(prompts) {}

void DeveloperCommands::solveInSteps(bool debug) {
    if (m_session.busy.refuses(m_prompts))
        return;
    const WhileSet running(m_session.busy.commandRunning);
    DebugSolve(m_session.game.board, debug, *this);
}

void DeveloperCommands::applyXcellRule() {
    if (m_session.busy.refuses(m_prompts))
        return;
    const WhileSet running(m_session.busy.commandRunning);
    std::int32_t counter = 0;
    FixXcellPairsVerbose(m_session.game.board, counter, *this);
}

void DeveloperCommands::message(const std::string& text) {
    m_prompts.message(text, "vbok");
}

void DeveloperCommands::redraw() {
    m_display.DrawBoard();
}

void DeveloperCommands::yield() {
    m_display.yield();
}

std::string developerText(const Board& board) {
    return std::to_string(board.BlankHex) + "," + std::to_string(board.HintCell) + "," +
           std::to_string(board.HintNum);
}

} // namespace tessaly
