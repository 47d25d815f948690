#pragma once

#include "core/base/command_line.h"

#include <string>
#include <vector>

namespace tessaly {

/// What may follow an option, or stand for a positional.
enum class ValueKind { None, Text, File, Folder, Choice };

/// An option or a positional of a command line.
struct OptionText {
    /// "--output" and the like, long names first; a positional has none.
    std::vector<std::string> names;
    /// The placeholder, "FILE"; empty for a flag.
    std::string value;
    ValueKind kind = ValueKind::None;
    /// What may be chosen from, when that is settled.
    std::vector<std::string> choices;
    std::string description;
    bool isRequired = false;
    bool mayRepeat = false;
};

/// A program or a subcommand in plain words: all that manual pages and completions are made from.
struct CommandText {
    std::string name;
    std::string description;
    std::string footer;
    std::vector<OptionText> options;
    std::vector<OptionText> positionals;
    std::vector<CommandText> subcommands;
};

/// The same with the options that need not be said.
CommandText describe(const CommandSyntax& syntax, bool isProgram = true);

/// The same as a manual page (man(7)) of a section. `date` is the release's, "2026-11-22";
/// `appendix` holds sections of its own, as they stand.
std::string manualPage(const CommandText& program, int section, const std::string& date,
                       const std::string& appendix);
std::string bashCompletion(const CommandText& program);
std::string zshCompletion(const CommandText& program);
std::string fishCompletion(const CommandText& program);

} // namespace tessaly
