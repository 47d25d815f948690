#include "command_text.h"

#include <CLI/CLI.hpp>

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

std::vector<std::string> piecesOf(const std::string& value) {
    return CLI::detail::split(value, '|');
}

OptionText describe(const CLI::Option& option) {
    OptionText text;
    for (const std::string& name : option.get_lnames())
        text.names.push_back("--" + name);
    for (const std::string& name : option.get_snames())
        text.names.push_back("-" + name);
    const bool takesValue = option.get_items_expected_max() > 0;
    if (takesValue)
        text.value = text.names.empty() ? option.get_name() : option.get_type_name();
    text.kind = kindOf(text.value);
    if (text.kind == ValueKind::Choice)
        text.choices = piecesOf(text.value);
    text.description = option.get_description();
    text.isRequired = option.get_required();
    return text;
}

} // namespace

CommandText describe(const CLI::App& app) {
    CommandText text;
    text.name = app.get_name();
    text.description = app.get_description();
    text.footer = app.get_footer();
    for (const CLI::Option* option : app.get_options({}))
        (option->get_positional() ? text.positionals : text.options).push_back(describe(*option));
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
        text.subcommands.push_back(describe(*command));
    return text;
}

} // namespace tessaly
