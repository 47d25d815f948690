#include "cli/commands.h"
#include "cli/offscreen.h"
#include "core/board/puzzle_store.h"
#include "core/options/scheme_library.h"
#include "core/session/configuration.h"
#include "core/session/program_folder.h"
#include "ui/drawing/picture_document.h"

#include <filesystem>
#include <memory>

namespace tessaly {
namespace {

struct RenderOptions {
    std::filesystem::path file;
    int number = 1;
    std::filesystem::path output;
    bool solution = false;
    double scale = 1;
    /// Black on white when it is empty.
    std::string scheme;
};

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

int render(const RenderOptions& options, const Console& console) {
    const auto& [file, number, output, solution, scale, scheme] = options;
    if (!isPictureDocument(output))
        return refuseUsage(console, "--output: " + output.native() +
                                        " ends in neither .png nor .svg nor .pdf");
    if (isSameFile(file, output))
        return refuseUsage(console, "--output: " + output.native() + " is the puzzle file");
    Board board;
    if (const Outcome read = readRecordAt(file, number, board); !read.ok())
        return fail(console, read.problem);
    Appearance appearance;
    if (!scheme.empty())
        if (const Outcome worn = wear(scheme, appearance); !worn.ok())
            return fail(console, worn.problem);
    const Offscreen offscreen;
    const auto look = scheme.empty() ? BoardPicture::Look::Copy : BoardPicture::Look::Game;
    const Outcome written =
        writePictureDocument(output, {board, appearance, solution, look}, scale);
    return written.ok() ? exit_status::Done : fail(console, written.problem);
}

} // namespace

Subcommand renderCommand() {
    constexpr double Smallest = 0.25;
    constexpr double Largest = 16;
    const auto options = std::make_shared<RenderOptions>();
    return {{.name = "render",
             .description = "Draw a puzzle into a picture file",
             .footer = "Example: tessaly-cli render easy.txt --number 3 --output three.svg",
             .options = {puzzleFile(options->file),
                         required(number("--number,-n", "N", "The puzzle", options->number, 1)),
                         required(text("--output,-o", "OUT.png|svg|pdf",
                                       "The picture; its ending says which kind", options->output)),
                         flag("--solution", "Draw its solution", options->solution),
                         number("--scale", "S",
                                "How large, from 0.25 to 16; 1 is 506 by 476 pixels (by default 1)",
                                options->scale, Smallest, Largest),
                         text("--scheme", "NAME", "A colour scheme, instead of black on white",
                              options->scheme)}},
            [options](const Console& console) { return render(*options, console); }};
}

} // namespace tessaly
