// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "board/prompts.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

namespace tessaly {

/// Message boxes that a test answers: each text and style is remembered, and a question that no
/// answer was queued for fails the test. Boxes that only tell ("vbok") need no answer.
struct ScriptedPrompts : Prompts {
    struct Message {
        std::string text;
        std::string style;
        friend bool operator==(const Message&, const Message&) = default;
    };

    int message(std::string_view text, std::string_view style) override {
        shown.push_back({std::string(text), std::string(style)});
        if (answers.empty()) {
            EXPECT_NE(style.find("ok"), std::string_view::npos) << "unexpected question: " << text;
            return 1;
        }
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::deque<int> answers;
    std::vector<Message> shown;
};

} // namespace tessaly
