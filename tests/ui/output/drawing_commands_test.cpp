#include "support/command_line.h"
#include "support/full_disk.h"
#include "support/pdf_document.h"
#include "support/temporary_folder.h"

#include <QImage>
#include <QSvgRenderer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using Arguments = std::vector<std::string>;

struct DrawingCommands : testing::Test {
    int run(const Arguments& arguments, const std::function<bool()>& interrupted = {}) {
        test::CommandResult result =
            test::runCommand(arguments, {.wasInterrupted = interrupted}, drawingCommands());
        said = std::move(result.err);
        return result.status;
    }
    /// Makes a file of the easy puzzles with that command; its path.
    QString make(const std::string& command, const std::string& output, const Arguments& more) {
        Arguments all{command, Easy, "--output", folder / output};
        all.insert(all.end(), more.begin(), more.end());
        EXPECT_EQ(run(all), 0) << said;
        return QString::fromStdString(folder / output);
    }

    const std::string Easy = TESSALY_TEST_DATA "/puzzles/easy.txt";
    test::TemporaryFolder folder;
    std::string said;
};

TEST_F(DrawingCommands, RenderDrawsEveryKindOfPicture) {
    const QImage puzzle(make("render", "a.png", {"--number", "2"}));
    EXPECT_EQ(puzzle.size(), QSize(506, 476));
    EXPECT_EQ(puzzle.pixelColor(2, 470), QColor(Qt::white));
    const Arguments larger{"--number", "2", "--scale", "2.5", "--solution"};
    EXPECT_EQ(QImage(make("render", "b.PNG", larger)).size(), QSize(1265, 1190));
    const QSvgRenderer svg(make("render", "c.svg", {"--number", "2", "--scale", "2"}));
    EXPECT_EQ(svg.viewBox().size(), QSize(1012, 952));
    const QImage night(make("render", "e.png", {"--number", "2", "--scheme", "night"}));
    EXPECT_LT(night.pixelColor(2, 470).lightness(), 100);
    make("render", "d.pdf", {"--number", "2"});
    EXPECT_TRUE(PdfDocument(folder / "d.pdf").info(u"Page size"_s).startsWith(u"380 x 357"_s));
}

TEST_F(DrawingCommands, PrintMakesABooklet) {
    make("print", "out.pdf", {});
    EXPECT_EQ(PdfDocument(folder / "out.pdf").pageCount(), 10 + 4);
    make("print", "out.pdf",
         {"--from", "3", "--to", "9", "--per-page", "6", "--no-solutions", "--paper", "letter"});
    const PdfDocument pdf(folder / "out.pdf");
    EXPECT_EQ(pdf.pageCount(), 2);
    EXPECT_TRUE(pdf.info(u"Page size"_s).startsWith(u"612 x 792"_s));
    std::filesystem::remove(folder / "out.pdf");
    int asked = 0;
    EXPECT_EQ(run({"print", Easy, "--output", folder / "out.pdf"}, [&] { return ++asked > 3; }),
              exit_status::Interrupted);
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(DrawingCommands, WhatCannotBeDoneIsSaidOnOneLineAndLeavesNothing) {
    const std::string out = folder / "out.pdf";
    const std::string broken = folder / "broken.txt";
    test::put(broken, test::contentOf(Easy) + "no record\r\n");
    const std::string link = folder / "link.pdf";
    std::filesystem::create_symlink(broken, link);
    const auto before = folder.names();
    for (const auto& [arguments, status, named] :
         std::vector<std::tuple<Arguments, int, std::string>>{
             {{"print", Easy, "--to", "41", "--output", out}, 1, "no puzzle 41 among its 40"},
             {{"print", Easy, "--from", "9", "--to", "8", "--output", out}, 1, "9 comes after"},
             {{"print", broken, "--output", out}, 1, broken + ": line 41: "},
             {{"print", folder / "none", "--output", out}, 1, "No such file"},
             {{"print", Easy, "--output", folder / "none" / "o.pdf"}, 1, "No such file"},
             {{"print", Easy, "--output", "/dev/null"}, 2, "/dev/null does not end in .pdf"},
             {{"print", broken, "--output", link}, 2, link + " is the puzzle file"},
             {{"render", broken, "--number", "1", "--output", link}, 2, link + " is the puzzle"},
             {{"render", broken, "--number", "41", "--output", out}, 1, broken + ": line 41: "},
             {{"render", Easy, "--number", "1", "--output", "/nowhere/o.png"}, 1, "No such file"},
             {{"print", Easy, "--per-page", "3", "--output", out}, 2, "--per-page"},
             {{"print", Easy, "--from", "0", "--output", out}, 2, "--from"},
             {{"print", Easy, "--paper", "a5", "--output", out}, 2, "--paper"},
             {{"render", Easy, "--number", "41", "--output", out}, 1, "41: there is no"},
             {{"render", Easy, "--number", "1", "--output", "x.gif"}, 2, "x.gif"},
             {{"render", Easy, "--number", "1", "--output", out, "--scale", "0"}, 2, "--scale"},
             {{"render", Easy, "--number", "1", "--output", out, "--scheme", "no"}, 1, "no.col"},
             {{"render", Easy, "--output", out}, 2, "--number"}}) {
        EXPECT_EQ(run(arguments), status) << said;
        EXPECT_TRUE(said.starts_with("tessaly-cli: ")) << said;
        EXPECT_NE(said.find(named), std::string::npos) << said;
        EXPECT_EQ(said.find('\n'), said.size() - 1) << said;
        EXPECT_EQ(folder.names(), before);
    }
}

TEST_F(DrawingCommands, OnAFullDiskTheOldFileStaysAndTheNewOneIsNotSaidToBeThere) {
    for (const char* name : {"a.png", "a.svg", "a.pdf"}) {
        make("render", name, {"--number", "2"});
        const std::string whole = test::contentOf(folder / name);
        const test::FullDisk disk(whole.size() / 2);
        EXPECT_EQ(run({"render", Easy, "--number", "2", "--output", folder / name, "--solution"}),
                  1);
        EXPECT_NE(said.find(name), std::string::npos) << said;
        EXPECT_NE(said.find("File too large"), std::string::npos) << said;
        EXPECT_EQ(test::contentOf(folder / name), whole);
    }
    EXPECT_EQ(folder.names(), (std::set<std::string>{"a.png", "a.svg", "a.pdf"}));
}

} // namespace
} // namespace tessaly
