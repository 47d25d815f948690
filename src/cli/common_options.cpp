#include "cli/commands.h"

#include <utility>

namespace tessaly {
namespace {

constexpr std::string_view StandardStream = "-";

std::filesystem::path inputOf(const std::string& given) {
    return given == StandardStream ? "/dev/stdin" : given;
}

Option puzzleFileThat(std::function<void(std::filesystem::path)> isTaken) {
    return required({.names = {},
                     .value = "FILE",
                     .description = "The puzzle file; - for standard input",
                     .take = [isTaken = std::move(isTaken)](const std::string& given) {
                         isTaken(inputOf(given));
                         return std::string();
                     }});
}

} // namespace

Option puzzleFile(std::filesystem::path& target) {
    return puzzleFileThat([&target](std::filesystem::path path) { target = std::move(path); });
}

Option puzzleFiles(std::vector<std::filesystem::path>& targets) {
    Option option = puzzleFileThat(
        [&targets](std::filesystem::path path) { targets.push_back(std::move(path)); });
    option.description = "The puzzle files; - for standard input";
    option.mayRepeat = true;
    return option;
}

Option outputFile(std::string description, std::filesystem::path& target) {
    Option option = text("--output,-o", "FILE",
                         std::move(description) + ", instead of standard output (-)", target);
    option.take = [&target](const std::string& given) {
        target = given == StandardStream ? "" : given;
        return std::string();
    };
    return option;
}

Option numberList(const std::string& names, std::string value, std::string description,
                  std::optional<NumberList>& target) {
    const auto take = [&target](const std::string& given) -> std::string {
        return NumberList::read(given, target.emplace()).problem;
    };
    return {namesIn(names), std::move(value), std::move(description), take};
}

Option starsOption(std::string description, std::optional<StarRange>& target) {
    const auto take = [&target](const std::string& given) -> std::string {
        const auto isStar = [](char c) { return c >= '1' && c <= '0' + MostStars; };
        const bool isRange = given.size() == 3 && given[1] == '-';
        if ((given.size() != 1 && !isRange) || !isStar(given.front()) || !isStar(given.back()) ||
            given.front() > given.back())
            return given + " is neither one of 1 to 5 nor two of them like 4-5";
        target = StarRange{given.front() - '0', given.back() - '0'};
        return {};
    };
    return {namesIn("--stars"), "A-B", std::move(description), take};
}

} // namespace tessaly
