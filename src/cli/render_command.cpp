#include "cli/commands.h"
#include "cli/offscreen.h"
#include "core/board/puzzle_record.h"
#include "core/options/scheme_library.h"
#include "core/output/print_selection.h"
#include "core/session/configuration.h"
#include "core/session/program_folder.h"
#include "ui/drawing/picture_document.h"

#include <QRegularExpression>

#include <filesystem>
#include <memory>

namespace tessaly {
namespace {

struct RenderOptions {
    std::filesystem::path file;
    std::optional<NumberList> numbers;
    std::filesystem::path output;
    bool solution = false;
    double scale = 1;
    /// Black on white when it is empty.
    std::string scheme;
    bool plain = false;
    bool transparent = false;
    bool oneInk = false;
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

/// Where a name has room for the puzzle's number, "%d" or "%03d": three digits or more.
QRegularExpressionMatch placeOfNumber(const std::filesystem::path& name) {
    static const QRegularExpression place(QStringLiteral("%(?:0([1-9]))?d"));
    return place.match(QString::fromStdString(name.native()));
}

std::filesystem::path numbered(const std::filesystem::path& name, int number) {
    const QRegularExpressionMatch place = placeOfNumber(name);
    if (!place.hasMatch())
        return name;
    QString text = QString::fromStdString(name.native());
    text.replace(place.capturedStart(), place.capturedLength(),
                 QString::number(number).rightJustified(place.captured(1).toInt(), u'0'));
    return text.toStdString();
}

/// What cannot be meant; nothing when all is clear.
std::string confusionIn(const RenderOptions& options) {
    const std::string output = options.output.native();
    if (!isPictureDocument(options.output))
        return "--output: " + output + " ends in neither .png nor .svg nor .pdf";
    if (isSameFile(options.file, options.output))
        return "--output: " + output + " is the puzzle file";
    if (!options.numbers)
        return "--number is required, or --numbers";
    if (options.oneInk && !options.scheme.empty())
        return "--one-ink: the colours of a --scheme take more";
    return {};
}

int renderAll(const RenderOptions& options, const std::vector<PrintedPuzzle>& puzzles,
              const Appearance& appearance, const Console& console) {
    const Offscreen offscreen;
    const auto look = options.scheme.empty() ? BoardPicture::Look::Copy : BoardPicture::Look::Game;
    std::int64_t drawn = 0;
    for (const PrintedPuzzle& puzzle : puzzles) {
        if (console.isInterrupted()) {
            fail(console, "interrupted after " + counted(drawn, "picture"));
            return exit_status::Interrupted;
        }
        Board board;
        Outcome outcome = readRecord(puzzle.record, board);
        if (outcome.ok())
            outcome = writePictureDocument(numbered(options.output, puzzle.number),
                                           {board, appearance, options.solution, look,
                                            !options.plain, options.transparent, options.oneInk},
                                           options.scale);
        if (!outcome.ok())
            return fail(console, outcome.problem);
        ++drawn;
    }
    return exit_status::Done;
}

int render(const RenderOptions& options, const Console& console) {
    if (const std::string confusion = confusionIn(options); !confusion.empty())
        return refuseUsage(console, confusion);
    std::vector<PrintedPuzzle> puzzles;
    if (const Outcome read = selectPuzzles({options.file}, {.numbers = options.numbers}, puzzles);
        !read.ok())
        return fail(console, read.problem);
    if (puzzles.size() > 1 && !placeOfNumber(options.output).hasMatch())
        return refuseUsage(console, "--output: " + options.output.native() +
                                        " has no %d or %03d for the numbers of the puzzles");
    Appearance appearance;
    if (!options.scheme.empty())
        if (const Outcome worn = wear(options.scheme, appearance); !worn.ok())
            return fail(console, worn.problem);
    return renderAll(options, puzzles, appearance, console);
}

} // namespace

Subcommand renderCommand() {
    constexpr double Smallest = 0.25;
    constexpr double Largest = 16;
    const auto options = std::make_shared<RenderOptions>();
    return {
        {.name = "render",
         .description = "Draw puzzles into picture files",
         .footer =
             "Examples: tessaly-cli render easy.txt --number 3 --output three.svg\n"
             "tessaly-cli render easy.txt --numbers 1-20 --plain --one-ink --output p%03d.pdf",
         .options = {puzzleFile(options->file),
                     numberList("--number,-n", "N", "The puzzle", options->numbers),
                     numberList("--numbers", "LIST",
                                "The puzzles, a picture each: \"3, 7, 20-24\"; \"90-\" goes on to "
                                "the last",
                                options->numbers),
                     required(text("--output,-o", "OUT.png|svg|pdf",
                                   "The picture; its ending says which kind, and %d or %03d in it "
                                   "stands for the puzzle's number",
                                   options->output)),
                     flag("--solution", "Draw its solution", options->solution),
                     number("--scale", "S",
                            "How large, from 0.25 to 16; 1 is 506 by 476 pixels (by default 1)",
                            options->scale, Smallest, Largest),
                     text("--scheme", "NAME", "A colour scheme, instead of black on white",
                          options->scheme),
                     flag("--plain",
                          "Without the hexagons' numbers, the difficulty and the line "
                          "above",
                          options->plain),
                     flag("--transparent", "Paint nothing under the lines and numbers",
                          options->transparent),
                     flag("--one-ink", "All in black, which a PDF file says in shades of grey",
                          options->oneInk)}},
        [options](const Console& console) { return render(*options, console); }};
}

} // namespace tessaly
