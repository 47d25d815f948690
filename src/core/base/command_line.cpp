#include "core/base/command_line.h"

#include "core/base/product.h"
#include "core/base/text.h"

// The only place that takes in CLI11, which is slow to compile.
#include <CLI/CLI.hpp>

#include <algorithm>
#include <ostream>

namespace tessaly {
namespace {

constexpr std::size_t HelpWidth = 80;

/// Breaks lines between words, so that none is wider than `width`.
std::string wrapped(const std::string& text, std::size_t width) {
    std::string lines = text;
    std::size_t start = 0, blank = std::string::npos;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (lines[at] == ' ')
            blank = at;
        if (at - start >= width && blank != std::string::npos) {
            lines[blank] = '\n';
            start = blank + 1;
            blank = std::string::npos;
        }
        if (lines[at] == '\n') {
            start = at + 1;
            blank = std::string::npos;
        }
    }
    return lines;
}

/// --help in lines that fit into a terminal.
class Help : public CLI::Formatter {
public:
    std::string make_description(const CLI::App* app) const override {
        return wrapped(CLI::Formatter::make_description(app), HelpWidth);
    }
    std::string make_footer(const CLI::App* app) const override {
        return wrapped(CLI::Formatter::make_footer(app), HelpWidth);
    }
    std::string make_option_desc(const CLI::Option* option) const override {
        return wrapped(CLI::Formatter::make_option_desc(option), besideNames());
    }
    std::string make_subcommand(const CLI::App* command) const override {
        std::ostringstream line;
        CLI::detail::format_help(line, command->get_name(),
                                 wrapped(command->get_description(), besideNames()),
                                 get_column_width());
        return line.str();
    }

private:
    std::size_t besideNames() const { return HelpWidth - get_column_width(); }
};

void add(CLI::App& command, const Option& option) {
    const std::string names =
        option.isPositional() ? option.value : CLI::detail::join(option.names);
    const auto take = [&option, names](const std::string& given) {
        if (const std::string problem = option.take(given); !problem.empty())
            throw CLI::ValidationError(option.isPositional() ? names : option.names.front(),
                                       problem);
    };
    const auto takeEach = [take](const std::vector<std::string>& given) {
        std::for_each(given.begin(), given.end(), take);
    };
    if (option.value.empty())
        command.add_flag_callback(
            names, [take] { take({}); }, option.description);
    else if (option.mayRepeat)
        command.add_option_function<std::vector<std::string>>(names, takeEach, option.description)
            ->required(option.isRequired)
            ->type_name("");
    else
        command.add_option_function<std::string>(names, take, option.description)
            ->required(option.isRequired)
            ->type_name(option.isPositional() ? "" : option.value);
}

void describe(CLI::App& command, const CommandSyntax& syntax) {
    command.name(syntax.name);
    command.description(syntax.description);
    command.footer(syntax.footer);
    for (const Option& option : syntax.options)
        add(command, option);
    for (const CommandSyntax& subcommand : syntax.subcommands)
        describe(*command.add_subcommand(subcommand.name), subcommand);
    command.require_subcommand(syntax.subcommands.empty() ? 0 : 1);
}

/// A word that nothing takes is the cause where something else seems to be missing.
std::string problemOf(const CLI::App& program, const CLI::ParseError& said) {
    for (const std::string& word : program.remaining(true))
        if (word.starts_with('-'))
            return "there is no option " + word;
        else if (program.get_require_subcommand_min() > 0 && program.get_subcommands().empty())
            return "there is no subcommand " + word;
    return said.what();
}

} // namespace

std::vector<Option> standardOptions(bool isProgram) {
    std::vector<Option> options{{.names = {"--help", "-h"},
                                 .value = "",
                                 .description = "Print this help message and exit"}};
    if (isProgram)
        options.push_back({.names = {"--version", "-V"},
                           .value = "",
                           .description = "Display program version information and exit"});
    return options;
}

CommandLine parseCommandLine(const CommandSyntax& program, int argc, const char* const* argv,
                             std::ostream& out, std::ostream& err) {
    CLI::App app;
    app.set_version_flag("-V,--version", std::string(Product::Name) + " " + Product::Version);
    app.formatter(std::make_shared<Help>());
    describe(app, program);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& said) {
        if (said.get_exit_code() == 0)
            return {app.exit(said, out, err)};
        sayProblem(err, program.name, problemOf(app, said) + " (try --help)");
        return {WrongUsage};
    }
    CommandLine line;
    const auto isChosen = [&app](const CommandSyntax& each) {
        return app.got_subcommand(each.name);
    };
    const auto& subcommands = program.subcommands;
    line.subcommand = static_cast<std::size_t>(
        std::find_if(subcommands.begin(), subcommands.end(), isChosen) - subcommands.begin());
    return line;
}

void sayProblem(std::ostream& err, std::string_view program, std::string_view problem) {
    std::string line(problem);
    std::replace(line.begin(), line.end(), '\n', ' ');
    err << program << ": " << printable(line) << '\n';
}

std::vector<std::string> namesIn(const std::string& names) {
    return CLI::detail::split(names, ',');
}

Option flag(const std::string& names, std::string description, bool& target) {
    const auto take = [&target](const std::string&) -> std::string {
        target = true;
        return {};
    };
    return {namesIn(names), "", std::move(description), take};
}

Option choice(const std::string& names, const std::string& value, std::string description,
              std::size_t& target) {
    const auto take = [&target, value](const std::string& given) -> std::string {
        const std::vector<std::string> choices = CLI::detail::split(value, '|');
        const auto chosen = std::find(choices.begin(), choices.end(), CLI::detail::to_lower(given));
        if (chosen == choices.end())
            return given + " is none of " + value;
        target = static_cast<std::size_t>(chosen - choices.begin());
        return {};
    };
    return {namesIn(names), value, std::move(description), take};
}

Option required(Option option) {
    option.isRequired = true;
    return option;
}

} // namespace tessaly
