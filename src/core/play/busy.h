#pragma once

#include "core/base/prompts.h"

#include <string_view>
#include <utility>

namespace tessaly {

/// What is under way that keeps commands from touching the board or the puzzle file. One command
/// runs at a time; another one can only arrive while it lets the window live.
struct BusyState {
    static constexpr std::string_view Refusal = "Let AutoCreate finish first";

    /// Many puzzles are being created; whoever wants something else is told so.
    bool creating = false;
    /// A short command is at work; what arrives meanwhile is ignored.
    bool commandRunning = false;

    bool isBusy() const { return creating || commandRunning; }

    /// Whether a command that the player gives has to wait; says so when that may take long.
    bool refuses(Prompts& prompts, std::string_view refusal = Refusal) const {
        if (creating)
            prompts.message(refusal, "vbcritical+vbok");
        return isBusy();
    }
};

/// Sets a flag for as long as it lives; one that was set before stays set.
class WhileSet {
public:
    explicit WhileSet(bool& flag)
        : m_flag(flag)
        , m_before(std::exchange(flag, true)) {}
    ~WhileSet() { m_flag = m_before; }
    WhileSet(const WhileSet&) = delete;
    WhileSet& operator=(const WhileSet&) = delete;

private:
    bool& m_flag;
    bool m_before;
};

} // namespace tessaly
