#include "command_text.h"

namespace tessaly {
namespace {

std::string quotedForFish(const std::string& text) {
    std::string result = "'";
    for (char c : text)
        result += c == '\'' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    return result + "'";
}

std::string line(const std::string& program, const std::string& condition,
                 const OptionText& option) {
    std::string text = "complete -c " + program + condition;
    for (const std::string& name : option.names)
        text += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    switch (option.kind) {
    case ValueKind::Choice: {
        std::string choices;
        for (const std::string& choice : option.choices)
            choices += (choices.empty() ? "" : " ") + choice;
        text += " -x -a '" + choices + "'";
        break;
    }
    case ValueKind::File:
        text += " -r -F";
        break;
    case ValueKind::Folder:
        text += " -x -a '(__fish_complete_directories)'";
        break;
    case ValueKind::Text:
        text += " -x";
        break;
    case ValueKind::None:
        break;
    }
    return text + " -d " + quotedForFish(option.description) + "\n";
}

} // namespace

std::string fishCompletion(const CommandText& program) {
    const bool hasCommands = !program.subcommands.empty();
    std::string text = "# Completion of " + program.name + " for fish.\n";
    if (hasCommands)
        text += "complete -c " + program.name + " -n __fish_use_subcommand -f\n";
    for (const OptionText& option : program.options)
        text += line(program.name, hasCommands ? " -n __fish_use_subcommand" : "", option);
    for (const CommandText& command : program.subcommands)
        text += "complete -c " + program.name + " -n __fish_use_subcommand -a " + command.name +
                " -d " + quotedForFish(command.description) + "\n";
    for (const CommandText& command : program.subcommands)
        for (const OptionText& option : command.options)
            text += line(program.name, " -n '__fish_seen_subcommand_from " + command.name + "'",
                         option);
    return text;
}

} // namespace tessaly
