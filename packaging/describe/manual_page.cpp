#include "command_text.h"
#include "core/base/product.h"

#include <algorithm>

namespace tessaly {
namespace {

/// What roff would take for a command of its own or for a hyphen is escaped.
std::string escaped(const std::string& text) {
    std::string result;
    for (char c : text) {
        if (c == '\\' || c == '-')
            result += '\\';
        if ((c == '.' || c == '\'') && (result.empty() || result.back() == '\n'))
            result += "\\&";
        result += c;
    }
    return result;
}

std::string upperCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return text;
}

/// "\fB\-\-output\fR \fIFILE\fR"
std::string nameOf(const OptionText& option) {
    std::string text;
    for (const std::string& name : option.names)
        text += (text.empty() ? "\\fB" : ", \\fB") + escaped(name) + "\\fR";
    if (option.value.empty())
        return text;
    const char* font = option.kind == ValueKind::Choice ? "\\fB" : "\\fI";
    return text + (text.empty() ? "" : " ") + font + escaped(option.value) + "\\fR";
}

std::string item(const OptionText& option) {
    const std::string required = option.isRequired ? " (required)" : "";
    return ".TP\n" + nameOf(option) + "\n" + escaped(option.description + required) + ".\n";
}

std::string items(const CommandText& command) {
    std::string text;
    for (const auto* list : {&command.positionals, &command.options})
        for (const OptionText& option : *list)
            text += item(option);
    return text;
}

std::string synopsis(const CommandText& command, const std::string& before) {
    std::string line = ".PP\n" + before + "\\fB" + escaped(command.name) + "\\fR";
    if (!command.options.empty())
        line += " [\\fIOPTION\\fR]...";
    for (const OptionText& positional : command.positionals)
        line += (positional.isRequired ? " \\fI" + positional.value + "\\fR"
                                       : " [\\fI" + positional.value + "\\fR]") +
                (positional.mayRepeat ? "..." : "");
    return line + "\n";
}

/// The sentences of a footer, an example in bold on a line of its own.
std::string footer(const std::string& text) {
    constexpr std::string_view Example = "Example: ";
    if (!text.starts_with(Example))
        return text.empty() ? "" : ".PP\n" + escaped(text) + "\n";
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string command = text.substr(Example.size(), end - Example.size());
    std::string rest = text.substr(end);
    rest.erase(0, rest.find_first_not_of('\n'));
    return ".PP\nExample:\n.PP\n.RS 4\n\\fB" + escaped(command) + "\\fR\n.RE\n" + footer(rest);
}

/// "Makes puzzles." as the name line has it: "makes puzzles".
std::string inBrief(std::string text) {
    if (text.ends_with('.'))
        text.pop_back();
    if (!text.empty() && text[0] >= 'A' && text[0] <= 'Z')
        text[0] = static_cast<char>(text[0] + 32);
    return text;
}

} // namespace

std::string manualPage(const CommandText& program, int section, const std::string& date,
                       const std::string& appendix) {
    const std::string name = escaped(program.name);
    std::string page = ".TH " + upperCase(name) + " " + std::to_string(section) + " \"" + date +
                       "\" \"" + Product::Name + " " + Product::Version + "\"\n";
    page += ".SH NAME\n" + name + " \\- " + escaped(inBrief(program.description)) + "\n";
    page += ".SH SYNOPSIS\n";
    if (program.subcommands.empty())
        page += synopsis(program, "");
    for (const CommandText& command : program.subcommands)
        page += synopsis(command, "\\fB" + name + "\\fR ");
    page += ".SH DESCRIPTION\n" + escaped(program.description) + "\n" + footer(program.footer);
    page += ".SH OPTIONS\n" + items(program);
    for (const CommandText& command : program.subcommands)
        page += ".SH \"" + upperCase(name) + " " + upperCase(escaped(command.name)) + "\"\n" +
                escaped(command.description) + ".\n" + items(command) + footer(command.footer);
    return page + appendix;
}

} // namespace tessaly
