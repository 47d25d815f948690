#include "core/solver/puzzle_of_day.h"

#include "core/base/fnv_hash.h"
#include "core/solver/puzzle_series.h"

#include <algorithm>
#include <charconv>

namespace tessaly {
namespace {

/// The whole number that a text is, without a sign.
std::optional<unsigned> readNumber(std::string_view text) {
    unsigned number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<std::chrono::year_month_day> readDay(std::string_view text) {
    constexpr std::string_view Form = "0000-00-00";
    if (text.size() != Form.size() || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const auto year = readNumber(text.substr(0, 4));
    const auto month = readNumber(text.substr(5, 2));
    const auto day = readNumber(text.substr(8));
    if (!year || !month || !day)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(*year)),
                                           std::chrono::month(*month), std::chrono::day(*day)};
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::string puzzleOfDay(std::chrono::year_month_day day, DifficultyChoice difficulty,
                        const SearchFill& fill) {
    const auto number = std::chrono::sys_days(day).time_since_epoch().count();
    FnvHash seed;
    seed.add("day " + std::to_string(number) + " of series " + std::to_string(DaySeriesVersion));
    return PuzzleSeries{difficulty, seed.value()}.record(0, fill);
}

} // namespace tessaly
