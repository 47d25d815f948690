#include "core/play/pencil_marks.h"

#include "core/board/board.h"

namespace tessaly {
namespace {

constexpr char BeforeLoneMark = ' ';

bool contains(std::string_view digits, char digit) {
    return digits.find(digit) != std::string_view::npos;
}

} // namespace

std::string digitsOf(std::string_view entry) {
    return std::string(entry.substr(entry.starts_with(BeforeLoneMark) ? 1 : 0));
}

std::string marksOf(const std::string& digits) {
    return digits.size() == 1 ? BeforeLoneMark + digits : digits;
}

bool isEntry(std::string_view text) {
    const std::string digits = digitsOf(text);
    return digits.size() <= MostMarks && digits.find_first_not_of("0123456") == std::string::npos &&
           (digits.size() == text.size() || digits.size() == 1);
}

std::string withMarkTurned(const std::string& entry, char digit) {
    const std::string digits = digitsOf(entry);
    if (contains(digits, digit) && !isPlaced(entry))
        return marksOf(Without(digits, {&digit, 1}));
    if (contains(digits, digit))
        return marksOf(digits);
    return digits.size() < MostMarks ? marksOf(digits + digit) : entry;
}

std::string withoutMark(const std::string& entry, char digit) {
    return isPlaced(entry) ? entry : marksOf(Without(digitsOf(entry), {&digit, 1}));
}

} // namespace tessaly
