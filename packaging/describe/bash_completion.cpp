#include "command_text.h"

namespace tessaly {
namespace {

std::string joined(const std::vector<std::string>& words, const char* between) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : between) + word;
    return text;
}

/// What completes a value, as a command of the shell.
std::string valueCompletion(const OptionText& option) {
    switch (option.kind) {
    case ValueKind::Choice:
        return "mapfile -t COMPREPLY < <(compgen -W '" + joined(option.choices, " ") +
               "' -- \"$word\")";
    case ValueKind::File:
        return "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- \"$word\")";
    case ValueKind::Folder:
        return "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- \"$word\")";
    default:
        return ":";
    }
}

std::string valueCases(const CommandText& command, const std::string& path) {
    std::string text;
    for (const OptionText& option : command.options) {
        if (option.kind == ValueKind::None)
            continue;
        std::vector<std::string> patterns;
        for (const std::string& name : option.names)
            patterns.push_back(std::string("'").append(path).append(name).append("'"));
        text += "    " + joined(patterns, "|") + ") " + valueCompletion(option) + "; return ;;\n";
    }
    return text;
}

std::string wordCase(const CommandText& command, const std::string& path) {
    std::vector<std::string> words;
    for (const OptionText& option : command.options)
        words.insert(words.end(), option.names.begin(), option.names.end());
    for (const CommandText& subcommand : command.subcommands)
        words.push_back(subcommand.name);
    std::string text = "    '" + path + "')\n        mapfile -t COMPREPLY < <(compgen -W '" +
                       joined(words, " ") + "' -- \"$word\")\n";
    if (!command.positionals.empty())
        text += "        [ \"${word:0:1}\" = - ] || { " +
                valueCompletion(command.positionals.front()) + "; }\n";
    return text + "        ;;\n";
}

} // namespace

std::string bashCompletion(const CommandText& program) {
    std::string function = "_" + program.name;
    for (char& c : function)
        c = c == '-' ? '_' : c;
    std::string cases = valueCases(program, " ");
    std::string words = wordCase(program, "");
    std::string names;
    for (const CommandText& command : program.subcommands) {
        names += (names.empty() ? "" : "|") + command.name;
        cases += valueCases(command, command.name + " ");
        words += wordCase(command, command.name);
    }
    std::string text =
        "# Completion of " + program.name + " for bash.\n" + function + "()\n{\n" +
        "    local word=${COMP_WORDS[COMP_CWORD]} at=$((COMP_CWORD - 1)) command='' i\n"
        // "--name=value" comes as three words.
        "    [ \"$word\" = = ] && word='' && at=$COMP_CWORD\n"
        "    [ \"${COMP_WORDS[at]}\" = = ] && at=$((at - 1))\n"
        "    local before=${COMP_WORDS[at]}\n";
    if (!names.empty())
        text += "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
                "        case ${COMP_WORDS[i]} in " +
                names + ") command=${COMP_WORDS[i]}; break ;; esac\n    done\n";
    return text + "    COMPREPLY=()\n    case \"$command $before\" in\n" + cases +
           "    esac\n    case \"$command\" in\n" + words + "    esac\n}\ncomplete -F " + function +
           " " + program.name + "\n";
}

} // namespace tessaly
