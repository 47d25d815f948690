#pragma once

#include <charconv>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <limits>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// Command lines as tables. What is parsed, what --help tells, the manual pages and the completions
/// of the shells all come from the same one.
namespace tessaly {

/// The exit status of a program that was called in a wrong way.
inline constexpr int WrongUsage = 2;

/// Something that a command line takes: "--count N", "--solution", or a positional, "FILE".
struct Option {
    /// A long one comes first; a positional has none.
    std::vector<std::string> names;
    /// The placeholder of the value; empty for a flag, "a|b" for a choice between these two.
    std::string value;
    std::string description;
    /// Takes the value; says what is wrong with it, or nothing.
    std::function<std::string(const std::string&)> take = {};
    bool isRequired = false;
    /// Whether a positional may come several times; each is taken by itself.
    bool mayRepeat = false;

    bool isPositional() const { return names.empty(); }
};

/// What a program or a subcommand is, and what it takes.
struct CommandSyntax {
    std::string name;
    std::string description;
    /// Follows the options in what --help tells.
    std::string footer = {};
    std::vector<Option> options = {};
    std::vector<CommandSyntax> subcommands = {};
};

/// "--help", and of a program "--version", which every command line takes without saying so.
std::vector<Option> standardOptions(bool isProgram);

/// What a command line asks for, besides what its options have taken.
struct CommandLine {
    /// Set when there is nothing more to do: help was asked for, or something is wrong.
    std::optional<int> exitStatus;
    /// The place of the subcommand among those of the program.
    std::size_t subcommand = 0;
};

/// Parses a command line, the program's name first, into where its options put their values. What
/// --help and --version tell goes to `out`, what is wrong to `err`, in one line.
CommandLine parseCommandLine(const CommandSyntax& program, int argc, const char* const* argv,
                             std::ostream& out, std::ostream& err);

/// Says in one line what is wrong, as every program does: "tessaly: no such file".
void sayProblem(std::ostream& err, std::string_view program, std::string_view problem);

/// "--output,-o" one by one.
std::vector<std::string> namesIn(const std::string& names);

/// The options by what they put where; their names are told as "--output,-o". What is not given
/// leaves its target as it was.
Option flag(const std::string& names, std::string description, bool& target);
/// `target` becomes the place of the chosen one among "a|b|c".
Option choice(const std::string& names, const std::string& value, std::string description,
              std::size_t& target);
Option required(Option option);

/// A text or a path.
template <class Text>
Option text(const std::string& names, std::string value, std::string description, Text& target) {
    const auto take = [&target](const std::string& given) -> std::string {
        target = given;
        return {};
    };
    return {namesIn(names), std::move(value), std::move(description), take};
}

template <class Text>
Option positional(std::string value, std::string description, Text& target) {
    Option option = text({}, std::move(value), std::move(description), target);
    option.names.clear();
    return option;
}

/// A decimal number, whole or not as its type is.
template <class Number, class Target>
Option number(const std::string& names, std::string value, std::string description, Target& target,
              Number least, Number most = std::numeric_limits<Number>::max()) {
    const auto take = [&target, least, most](const std::string& given) -> std::string {
        Number number{};
        const char* end = given.data() + given.size();
        const auto [rest, error] = std::from_chars(given.data(), end, number);
        if (error == std::errc() && rest == end && number >= least && number <= most) {
            target = number;
            return {};
        }
        std::ostringstream problem;
        problem << given << " is no " << (std::is_integral_v<Number> ? "whole " : "")
                << "number from " << least << " to " << most;
        return problem.str();
    };
    return {namesIn(names), std::move(value), std::move(description), take};
}

} // namespace tessaly
