#include "cli/render_command.h"

#include "cli/offscreen.h"
#include "core/board/puzzle_file.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"
#include "core/session/program_folder.h"
#include "ui/drawing/picture_document.h"

#include <CLI/CLI.hpp>

#include <limits>

namespace tessaly {
namespace {

/// How the game looks in a scheme when nothing else was set.
Outcome wear(const std::string& scheme, Appearance& appearance) {
    std::filesystem::path folder;
    if (Outcome found = findProgramFolder(ProgramFolderSources::ofThisProcess(), folder);
        !found.ok())
        return found;
    Outcome loaded = SchemeLibrary(folder).LoadScheme(scheme + ".col", appearance);
    Configuration().applyTo(appearance);
    appearance.FixedNumberColour = readableOn(appearance.HexaFillColour);
    appearance.HexaBorderColour = appearance.FixedNumberColour;
    return loaded;
}

} // namespace

CLI::App& RenderCommand::addTo(CLI::App& program) {
    CLI::App& command = *program.add_subcommand("render", "Draw a puzzle into a picture file");
    command.footer("Example: tessaly-cli render easy.txt --number 3 --output three.svg");
    command.add_option("FILE", m_file, "The puzzle file")->required()->type_name("");
    command.add_option("--number", m_number, "The puzzle")
        ->required()
        ->check(CLI::Range(1, std::numeric_limits<int>::max()).description(""))
        ->type_name("N");
    command.add_option("--output", m_output, "The picture; its ending says which kind")
        ->required()
        ->check(
            [](const std::string& path) {
                return isPictureDocument(path) ? std::string()
                                               : path + " ends in neither .png nor .svg nor .pdf";
            },
            "")
        ->type_name("OUT.png|svg|pdf");
    command.add_flag("--solution", m_solution, "Draw its solution");
    constexpr double Smallest = 0.25;
    constexpr double Largest = 16;
    command
        .add_option("--scale", m_scale,
                    "How large, from 0.25 to 16; 1 is 506 by 476 pixels (by default 1)")
        ->check(CLI::Range(Smallest, Largest).description(""))
        ->type_name("S");
    command.add_option("--scheme", m_scheme, "A colour scheme, instead of black on white")
        ->type_name("NAME");
    return command;
}

int RenderCommand::run(const Console& console) {
    Board board;
    if (const PuzzleRead read = PuzzleFiles().ReadPuzzle(m_file, m_number, board); !read.ok())
        return fail(console, read.reason);
    Appearance appearance;
    if (!m_scheme.empty())
        if (const Outcome worn = wear(m_scheme, appearance); !worn.ok())
            return fail(console, worn.problem);
    const Offscreen offscreen;
    const auto look = m_scheme.empty() ? BoardPicture::Look::Copy : BoardPicture::Look::Game;
    const Outcome written =
        writePictureDocument(m_output, {board, appearance, m_solution, look}, m_scale);
    return written.ok() ? exit_status::Done : fail(console, written.problem);
}

} // namespace tessaly
