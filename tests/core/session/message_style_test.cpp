#include "core/session/message_style.h"

#include "support/scripted_prompts.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Buttons = std::vector<MessageButton>;

TEST(MessageStyleTest, EveryButtonWordAddsItsButtons) {
    const std::vector<std::pair<std::string_view, Buttons>> rows{
        {"vbokonly", {{"Ok", 1}}},
        {"vbok", {{"Ok", 1}}},
        {"vbnormal", {{"Ok", 0}}},
        {"vbokcancel", {{"Ok", 1}, {"Cancel", 2}}},
        {"vbcancelok", {{"Ok", 1}, {"Cancel", 2}}},
        {"vbcancel", {{"Cancel", 2}}},
        {"vbabortretryignore", {{"Abort", 3}, {"Retry", 4}, {"Ignore", 5}}},
        {"vbabort", {{"Abort", 3}}},
        {"vbretry", {{"Retry", 4}}},
        {"vbignore", {{"Ignore", 5}}},
        {"vbretrycancel", {{"Retry", 4}, {"Cancel", 2}}},
        {"vbyes", {{"Yes", 6}}},
        {"vbno", {{"No", 7}}},
        {"vbyesno", {{"Yes", 6}, {"No", 7}}},
        {"vbyesnocancel", {{"Yes", 6}, {"No", 7}, {"Cancel", 2}}},
        {"vbcontinuecancel", {{"Continue", 6}, {"Cancel", 2}}},
    };
    for (const auto& [word, buttons] : rows) {
        EXPECT_EQ(readMessageStyle(word).buttons, buttons) << word;
        EXPECT_FALSE(readMessageStyle(word).icon) << word;
    }
}

TEST(MessageStyleTest, EveryIconWordNamesItsIcon) {
    const std::vector<std::string_view> words{
        "vbquestion", "vbexclamation", "vbinformation", "vberror",   "vbcritical",
        "vbhappy",    "vbtrash",       "vbprint",       "vblighton", "vbcustom"};
    ASSERT_EQ(words.size(), MessageIcons.size());
    for (std::size_t i = 0; i < words.size(); ++i)
        EXPECT_EQ(readMessageStyle(words[i]).icon, MessageIcons[i]) << words[i];
    EXPECT_EQ(readMessageStyle("vbcustom").icon, 10);
}

TEST(MessageStyleTest, CapitalsBlanksAndOrderOfTheWords) {
    const Buttons yesNo{{"Yes", 6}, {"No", 7}};
    for (const std::string_view style :
         {"vbYesNo+vbquestion", "VBQUESTION + VBYESNO", "  vbyesno\t+ vbQuestion ",
          "+vbyesno++vbquestion+", "vbyesno+nonsense+vbquestion+vb yes"}) {
        EXPECT_EQ(readMessageStyle(style).buttons, yesNo) << style;
        EXPECT_EQ(readMessageStyle(style).icon, 0) << style;
    }
    EXPECT_EQ(readMessageStyle("vbok+vbcancel").buttons, (Buttons{{"Ok", 1}, {"Cancel", 2}}));
    EXPECT_EQ(readMessageStyle("vbcancel+vbok").buttons, (Buttons{{"Cancel", 2}, {"Ok", 1}}));
    EXPECT_EQ(readMessageStyle("vberror+vbhappy").icon, 5);
}

TEST(MessageStyleTest, WithoutAButtonThereIsOk) {
    for (const std::string_view style : {"", " ", "+", "vbquestio", "ok", "vbcritical"})
        EXPECT_EQ(readMessageStyle(style).buttons, (Buttons{{"Ok", 1}})) << style;
    EXPECT_FALSE(readMessageStyle("").icon);
    EXPECT_EQ(readMessageStyle("vbcritical").icon, 4);
}

TEST(ScriptedPromptsTest, FailsOnAQuestionTooManyAndOnAnAnswerLeftOver) {
    ScriptedPrompts prompts{answer::Yes};
    EXPECT_EQ(prompts.message("Exit?", "vbYesNo"), answer::Yes);
    ASSERT_EQ(prompts.shown.size(), 1U);
    EXPECT_EQ(prompts.shown[0].text, "Exit?");
    EXPECT_EQ(prompts.shown[0].style, "vbYesNo");
    EXPECT_NONFATAL_FAILURE(prompts.message("Again?", ""), "unexpected question");
    EXPECT_NONFATAL_FAILURE({ const ScriptedPrompts unused{answer::Ok}; }, "not every answer");
}

} // namespace
} // namespace tessaly
