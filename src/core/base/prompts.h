#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace tessaly {

/// What a message box answers: the number of the button that closed it.
namespace answer {
inline constexpr int None = 0;
inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
inline constexpr int Abort = 3;
inline constexpr int Retry = 4;
inline constexpr int Ignore = 5;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
} // namespace answer

/// The styles of the message boxes that only tell something.
namespace style {
inline constexpr std::string_view Critical = "vbok+vbcritical";
inline constexpr std::string_view Information = "vbok+vbinformation";
} // namespace style

/// Whom a command asks when it needs a word from the player.
class Prompts {
public:
    virtual ~Prompts() = default;

    /// Shows `text` (UTF-8) in a message box and waits for the answer; `style` names its buttons
    /// and its icon ("vbyesno+vbquestion").
    virtual int message(std::string_view text, std::string_view style) = 0;

    /// Asks for one line of text (UTF-8); empty when the player gives none.
    virtual std::string ask(std::string_view question) = 0;
};

enum class FileUse { Open, Save };

/// Lets the player choose a puzzle file; the answer is its full path, empty when none was chosen.
using FileChoice = std::function<std::filesystem::path(FileUse use, std::string_view title)>;

} // namespace tessaly
