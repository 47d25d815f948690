// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "board/prompts.h"

#include <string_view>

namespace tessaly {

/// Whether puzzles are being created, so that every command that would touch the board or the
/// puzzle file is refused.
struct BusyState {
    static constexpr std::string_view Refusal = "Let AutoCreate finish first";

    bool creating = false;

    /// Says that the command has to wait when it has to, and whether it has.
    bool refuses(Prompts& prompts) const {
        if (creating)
            prompts.message(Refusal, "vbcritical+vbok");
        return creating;
    }
};

} // namespace tessaly
