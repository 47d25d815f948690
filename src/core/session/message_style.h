#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace tessaly {

/// A button of a message box and the number that it answers.
struct MessageButton {
    std::string_view caption;
    int result = 0;

    friend bool operator==(const MessageButton&, const MessageButton&) = default;
};

/// What a style string such as "vbyesno+vbquestion" asks for.
struct MessageStyle {
    std::optional<int> icon;
    /// Left to right; never empty.
    std::vector<MessageButton> buttons;
};

/// The numbers that icons go by; 9 is none of them.
inline constexpr std::array MessageIcons{0, 1, 2, 3, 4, 5, 6, 7, 8, 10};

/// Reads the words of a style, joined by "+", in any capitals and with blanks around them. Unknown
/// words count for nothing, of several icons the last one counts, and without any button there
/// is an "Ok".
MessageStyle readMessageStyle(std::string_view style);

} // namespace tessaly
