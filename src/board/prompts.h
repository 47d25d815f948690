// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace tessaly {

/// Asks and tells the user: the message box, as commands see it.
class Prompts {
public:
    virtual ~Prompts() = default;

    /// Shows a text with the icon and the buttons that a style such as "vbyesno+vbquestion" names,
    /// and returns the number of the button that closed the box; 0 when none did.
    virtual int message(std::string_view text, std::string_view style) = 0;
};

/// What the button "Yes" answers.
inline constexpr int AnswerYes = 6;

} // namespace tessaly
