#include "core/files/file_access.h"
#include "core/play/board_geometry.h"
#include "support/command_line.h"
#include "support/pdf_document.h"
#include "support/process.h"
#include "support/temporary_folder.h"

#include <QImage>
#include <QSvgRenderer>

namespace tessaly::drawing_commands_test {

using namespace Qt::StringLiterals;

struct DrawingCommands : CommandLineTest {
    DrawingCommands() { otherCommands = drawingCommands; }
    /// Makes a file of the easy puzzles with that command; its path.
    QString make(const std::string& command, const std::string& output, const std::string& words) {
        const std::string path = folder / output;
        const CommandResult made = run(command + " " + Easy + " --output " + path + " " + words);
        EXPECT_EQ(made.status, 0) << made.err;
        return QString::fromStdString(path);
    }

    const std::string Easy = TESSALY_TEST_DATA "/puzzles/easy.txt";
    const std::string Out = " --output " + (folder / "out.pdf").string();
};

TEST_F(DrawingCommands, RenderDrawsEveryKindOfPicture) {
    const QImage puzzle(make("render", "b.PNG", "--number 2 --scale 2.5 --solution"));
    EXPECT_EQ(puzzle.size(), QSize(1265, 1190));
    EXPECT_EQ(puzzle.pixelColor(2, 470), QColor(Qt::white));
    const QSvgRenderer svg(make("render", "c.svg", "--number 2 --scale 2"));
    EXPECT_EQ(svg.viewBox().size(), QSize(1012, 952));
    const QImage night(make("render", "e.png", "--number 2 --scheme night"));
    EXPECT_LT(night.pixelColor(2, 470).lightness(), 100);
    make("render", "p%03d.png", "--numbers 2,12-13 --plain --transparent");
    const QImage clear(QString::fromStdString(folder / "p002.png"));
    const Point inACell = hexagonCentre(10) + Point{0, HalfHeight - 4};
    EXPECT_EQ(clear.pixelColor(QPointF(inACell.x, inACell.y).toPoint()).alpha(), 0);
    EXPECT_TRUE(FileExists(folder / "p013.png") && !FileExists(folder / "p014.png"));
    make("render", "d.pdf", "--number 2 --one-ink");
    EXPECT_TRUE(PdfDocument(folder / "d.pdf").content().contains(u"0 g"));
    make("render", "d.pdf", "--number 2");
    EXPECT_FALSE(PdfDocument(folder / "d.pdf").content().contains(u"\n0 g"));
    EXPECT_TRUE(PdfDocument(folder / "d.pdf").info(u"Page size"_s).startsWith(u"380 x 357"_s));
}

TEST_F(DrawingCommands, PrintMakesABooklet) {
    const PdfDocument pdf(folder / "out.pdf");
    make("print", "out.pdf", "");
    EXPECT_EQ(pdf.pageCount(), 10 + 4);
    make("print", "out.pdf", "--from 3 --to 9 --per-page 6 --no-solutions --paper letter");
    EXPECT_EQ(pdf.pageCount(), 2);
    EXPECT_TRUE(pdf.info(u"Page size"_s).startsWith(u"612 x 792"_s));
    std::filesystem::remove(folder / "out.pdf");
    int asked = 0;
    const auto interrupted = [&] { return ++asked > 3; };
    EXPECT_EQ(run("print " + Easy + Out, {.wasInterrupted = interrupted}).status,
              exit_status::Interrupted);
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(DrawingCommands, WhatCannotBeDoneIsSaidOnOneLineAndLeavesNothing) {
    const std::string broken = folder / "broken.txt", link = folder / "link.pdf";
    put(broken, contentOf(Easy) + "no record\r\n");
    std::filesystem::create_symlink(broken, link);
    const std::string onto = " --output " + link;
    const auto before = folder.names();
    const std::vector<std::tuple<std::string, int, std::string>> refused{
        {"print " + Easy + " --to 41" + Out, 1, "no puzzle 41 among its 40"},
        {"print " + Easy + " --from 9 --to 8" + Out, 2, "9 comes after"},
        {"print " + Easy + " --puzzles 3,60" + Out, 1, "no puzzle 60 among its 40"},
        {"print " + Easy + " --puzzles 3,x" + Out, 2, "\"x\" is neither"},
        {"print " + Easy + " --puzzles 3 --to 4" + Out, 2, "--puzzles: the list"},
        {"print " + Easy + " --difficulty hard" + Out, 1, "no such puzzle"},
        {"print " + Easy + " --title a\x01 " + Out, 2, "control character"},
        {"print " + Easy + " --font none" + Out, 1, "no font none"},
        {"print " + broken + Out, 1, broken + ": line 41: "},
        {"print /none" + Out, 1, "No such file"},
        {"print " + Easy + " --output /dev/null", 2, "/dev/null does not end in .pdf"},
        {"print " + broken + onto, 2, link + " is the puzzle file"},
        {"print " + Easy + " --per-page 3" + Out, 2, "--per-page"},
        {"print " + Easy + " --paper a9" + Out, 2, "--paper"},
        {"render " + broken + " --number 1" + onto, 2, link + " is the puzzle"},
        {"render " + broken + " --number 41" + Out, 1, broken + ": line 41: "},
        {"render " + Easy + " --number 1 --output /nowhere/o.png", 1, "No such file"},
        {"render " + Easy + " --number 41" + Out, 1, "no puzzle 41 among"},
        {"render " + Easy + " --numbers 1-2" + Out, 2, "has no %d"},
        {"render " + Easy + " --number 1 --one-ink --scheme night" + Out, 2, "--one-ink"},
        {"render " + Easy + " --number 1 --output x.gif", 2, "x.gif"},
        {"render " + Easy + " --number 1 --scheme no" + Out, 1, "no.col"},
        {"render " + Easy + Out, 2, "--number"}};
    for (const auto& [line, status, named] : refused) {
        expectRefused(line, status, named);
        EXPECT_EQ(folder.names(), before);
    }
}

TEST_F(DrawingCommands, OnAFullDiskTheOldFileStaysAndTheNewOneIsNotSaidToBeThere) {
    for (const char* name : {"a.png", "a.svg", "a.pdf"}) {
        make("render", name, "--number 2");
        const std::string whole = contentOf(folder / name);
        const FullDisk disk(whole.size() / 2);
        expectRefused("render " + Easy + " --number 2 --solution --output " +
                          (folder / name).string(),
                      1, "File too large");
        EXPECT_EQ(contentOf(folder / name), whole);
    }
    EXPECT_EQ(folder.names(), (std::set<std::string>{"a.png", "a.svg", "a.pdf"}));
}

} // namespace tessaly::drawing_commands_test
