#include "command_text.h"

#include <sstream>

namespace tessaly {
namespace {

ValueKind kindOf(const std::string& value) {
    if (value.empty())
        return ValueKind::None;
    if (value == "FILE" || value.starts_with("OUT"))
        return ValueKind::File;
    if (value.find('|') != std::string::npos)
        return ValueKind::Choice;
    return value == "DIR" ? ValueKind::Folder : ValueKind::Text;
}

std::vector<std::string> choicesOf(const std::string& value) {
    std::vector<std::string> choices;
    std::istringstream rest(value);
    for (std::string choice; std::getline(rest, choice, '|');)
        choices.push_back(choice);
    return choices;
}

OptionText describe(const Option& option) {
    OptionText text{.names = option.names,
                    .value = option.value,
                    .kind = kindOf(option.value),
                    .choices = {},
                    .description = option.description,
                    .isRequired = option.isRequired,
                    .mayRepeat = option.mayRepeat};
    if (text.kind == ValueKind::Choice)
        text.choices = choicesOf(text.value);
    return text;
}

} // namespace

CommandText describe(const CommandSyntax& syntax, bool isProgram) {
    CommandText text{.name = syntax.name,
                     .description = syntax.description,
                     .footer = syntax.footer,
                     .options = {},
                     .positionals = {},
                     .subcommands = {}};
    for (const Option& option : standardOptions(isProgram))
        text.options.push_back(describe(option));
    for (const Option& option : syntax.options)
        (option.isPositional() ? text.positionals : text.options).push_back(describe(option));
    for (const CommandSyntax& command : syntax.subcommands)
        text.subcommands.push_back(describe(command, false));
    return text;
}

} // namespace tessaly
