#include "command_text.h"

namespace tessaly {
namespace {

/// Between single quotes of the shell, where brackets and colons mean something to _arguments.
std::string quotedForZsh(const std::string& text) {
    std::string result;
    for (char c : text) {
        if (c == '[' || c == ']' || c == ':')
            result += '\\';
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return result;
}

std::string action(const OptionText& option) {
    std::string choices;
    switch (option.kind) {
    case ValueKind::Choice:
        for (const std::string& choice : option.choices)
            choices += (choices.empty() ? "" : " ") + choice;
        return ":" + quotedForZsh(option.description) + ":(" + choices + ")";
    case ValueKind::File:
        return ":" + option.value + ":_files";
    case ValueKind::Folder:
        return ":" + option.value + ":_files -/";
    case ValueKind::Text:
        return ":" + option.value + ":";
    case ValueKind::None:
        break;
    }
    return {};
}

std::string arguments(const CommandText& command, const std::string& indent) {
    std::string text =
        indent + (command.subcommands.empty() ? "_arguments -s" : "_arguments -C -s");
    const std::string next = " \\\n" + indent + "    ";
    for (const OptionText& option : command.options)
        for (const std::string& name : option.names)
            text.append(next)
                .append("'")
                .append(name)
                .append("[")
                .append(quotedForZsh(option.description))
                .append("]")
                .append(action(option))
                .append("'");
    for (const OptionText& positional : command.positionals)
        text += next + (positional.mayRepeat ? "'*" : "'1") + action(positional) + "'";
    return text;
}

} // namespace

std::string zshCompletion(const CommandText& program) {
    std::string text =
        "#compdef " + program.name + "\n# Completion of " + program.name + " for zsh.\n\n";
    if (program.subcommands.empty())
        return text + arguments(program, "") + "\n";
    text += "local curcontext=$curcontext state line\n" + arguments(program, "") +
            " \\\n    '1: :->command' \\\n    '*:: :->arguments'\n\ncase $state in\ncommand)\n"
            "    local -a commands\n    commands=(\n";
    for (const CommandText& command : program.subcommands)
        text += "        '" + command.name + ":" + quotedForZsh(command.description) + "'\n";
    text += "    )\n    _describe command commands\n    ;;\narguments)\n    case $line[1] in\n";
    for (const CommandText& command : program.subcommands)
        text += "    " + command.name + ")\n" + arguments(command, "        ") + "\n        ;;\n";
    return text + "    esac\n    ;;\nesac\n";
}

} // namespace tessaly
