#include "core/session/message_style.h"

#include "core/base/prompts.h"

#include <algorithm>
#include <string>
#include <utility>

namespace tessaly {
namespace {

struct IconWord {
    std::string_view word;
    int icon;
};

constexpr std::array<IconWord, MessageIcons.size()> IconWords{{
    {"vbquestion", 0},
    {"vbexclamation", 1},
    {"vbinformation", 2},
    {"vberror", 3},
    {"vbcritical", 4},
    {"vbhappy", 5},
    {"vbtrash", 6},
    {"vbprint", 7},
    {"vblighton", 8},
    {"vbcustom", 10},
}};

constexpr MessageButton Ok{"Ok", answer::Ok};
constexpr MessageButton Cancel{"Cancel", answer::Cancel};
constexpr MessageButton Abort{"Abort", answer::Abort};
constexpr MessageButton Retry{"Retry", answer::Retry};
constexpr MessageButton Ignore{"Ignore", answer::Ignore};
constexpr MessageButton Yes{"Yes", answer::Yes};
constexpr MessageButton No{"No", answer::No};

/// A word and its one to three buttons; a place without a caption is empty.
struct ButtonWord {
    std::string_view word;
    std::array<MessageButton, 3> buttons;
};

constexpr std::array ButtonWords{
    ButtonWord{"vbokonly", {Ok}},
    ButtonWord{"vbok", {Ok}},
    ButtonWord{"vbnormal", {MessageButton{"Ok", answer::None}}},
    ButtonWord{"vbokcancel", {Ok, Cancel}},
    ButtonWord{"vbcancelok", {Ok, Cancel}},
    ButtonWord{"vbcancel", {Cancel}},
    ButtonWord{"vbabortretryignore", {Abort, Retry, Ignore}},
    ButtonWord{"vbabort", {Abort}},
    ButtonWord{"vbretry", {Retry}},
    ButtonWord{"vbignore", {Ignore}},
    ButtonWord{"vbretrycancel", {Retry, Cancel}},
    ButtonWord{"vbyes", {Yes}},
    ButtonWord{"vbno", {No}},
    ButtonWord{"vbyesno", {Yes, No}},
    ButtonWord{"vbyesnocancel", {Yes, No, Cancel}},
    ButtonWord{"vbcontinuecancel", {MessageButton{"Continue", answer::Yes}, Cancel}},
};

std::string lowered(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

void applyWord(std::string_view word, MessageStyle& style) {
    for (const IconWord& entry : IconWords)
        if (entry.word == word)
            style.icon = entry.icon;
    for (const ButtonWord& entry : ButtonWords)
        if (entry.word == word)
            std::copy_if(entry.buttons.begin(), entry.buttons.end(),
                         std::back_inserter(style.buttons),
                         [](const MessageButton& button) { return !button.caption.empty(); });
}

} // namespace

MessageStyle readMessageStyle(std::string_view style) {
    const std::string lower = lowered(style);
    MessageStyle result;
    std::string_view rest = lower;
    while (!rest.empty()) {
        const std::size_t plus = std::min(rest.find('+'), rest.size());
        applyWord(trimmed(rest.substr(0, plus)), result);
        rest.remove_prefix(std::min(plus + 1, rest.size()));
    }
    if (result.buttons.empty())
        result.buttons.push_back(Ok);
    return result;
}

} // namespace tessaly
