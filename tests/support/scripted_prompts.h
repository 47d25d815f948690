#pragma once

#include "core/base/prompts.h"

#include <gtest/gtest.h>

#include <deque>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

/// Message boxes that a test answers: each text and style is remembered. A question that no answer
/// was queued for fails the test, and so does an answer that nobody asked for. Boxes that only tell
/// ("vbok") need no answer.
struct ScriptedPrompts : Prompts {
    struct Message {
        std::string text;
        std::string style;
        friend bool operator==(const Message&, const Message&) = default;
    };

    ScriptedPrompts(std::initializer_list<int> firstAnswers = {})
        : answers(firstAnswers) {}
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;
    ~ScriptedPrompts() override {
        EXPECT_TRUE(answers.empty() && lines.empty()) << "not every answer was used";
    }

    int message(std::string_view text, std::string_view style) override {
        shown.push_back({std::string(text), std::string(style)});
        if (answers.empty()) {
            EXPECT_NE(style.find("ok"), std::string_view::npos) << "unexpected question: " << text;
            return answer::Ok;
        }
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::string ask(std::string_view question) override {
        asked.emplace_back(question);
        if (lines.empty()) {
            ADD_FAILURE() << "unexpected question: " << question;
            return {};
        }
        std::string line = lines.front();
        lines.pop_front();
        return line;
    }

    /// What was shown since the last call: "|text [style]" for each box.
    std::string told() {
        std::string all;
        for (const auto& [text, style] : std::exchange(shown, {}))
            all.append("|").append(text).append(" [").append(style).append("]");
        return all;
    }

    std::deque<int> answers;
    /// What the player writes when asked for a line of text.
    std::deque<std::string> lines;
    std::vector<std::string> asked;
    std::vector<Message> shown;
};

} // namespace tessaly
