#include "support/command_line.h"
#include "support/full_disk.h"
#include "support/pdf_document.h"
#include "support/temporary_folder.h"

#include <QImage>
#include <QSvgRenderer>

namespace tessaly {
namespace {

using Arguments = std::vector<std::string>;

class DrawingCommands : public testing::Test {
protected:
    int run(const Arguments& arguments, const std::function<bool()>& interrupted = {}) {
        test::CommandResult result =
            test::runCommand(arguments, {.wasInterrupted = interrupted}, drawingCommands());
        said = std::move(result.err);
        return result.status;
    }
    int render(const std::string& output, const Arguments& more = {}) {
        Arguments all{"render", Easy, "--number", "2", "--output", folder / output};
        all.insert(all.end(), more.begin(), more.end());
        return run(all);
    }
    int print(const Arguments& more) {
        Arguments all{"print", Easy, "--output", folder / "out.pdf"};
        all.insert(all.end(), more.begin(), more.end());
        return run(all);
    }
    QString file(const std::string& name) const { return QString::fromStdString(folder / name); }

    const std::string Easy = TESSALY_TEST_DATA "/puzzles/easy.txt";
    test::TemporaryFolder folder;
    std::string said;
};

TEST_F(DrawingCommands, RenderDrawsEveryKindOfPicture) {
    ASSERT_EQ(render("a.png"), 0) << said;
    const QImage puzzle(file("a.png"));
    EXPECT_EQ(puzzle.size(), QSize(506, 476));
    ASSERT_EQ(render("b.PNG", {"--scale", "2.5", "--solution"}), 0) << said;
    const QImage solution(file("b.PNG"));
    EXPECT_EQ(solution.size(), QSize(1265, 1190));
    ASSERT_EQ(render("c.svg", {"--scale", "2"}), 0) << said;
    EXPECT_EQ(QSvgRenderer(file("c.svg")).viewBox().size(), QSize(1012, 952));
    ASSERT_EQ(render("d.pdf"), 0) << said;
    EXPECT_TRUE(PdfDocument(folder / "d.pdf")
                    .info(QStringLiteral("Page size"))
                    .startsWith(QStringLiteral("380 x 357")))
        << PdfDocument(folder / "d.pdf").info(QStringLiteral("Page size")).toStdString();
    ASSERT_EQ(render("e.png", {"--scheme", "night"}), 0) << said;
    EXPECT_EQ(puzzle.pixelColor(2, 470), QColor(Qt::white));
    EXPECT_LT(QImage(file("e.png")).pixelColor(2, 470).lightness(), 100);
}

TEST_F(DrawingCommands, PrintMakesABooklet) {
    ASSERT_EQ(print({}), 0) << said;
    EXPECT_EQ(PdfDocument(folder / "out.pdf").pageCount(), 10 + 4);
    ASSERT_EQ(print({"--from", "3", "--to", "9", "--per-page", "6", "--no-solutions", "--paper",
                     "letter"}),
              0)
        << said;
    const PdfDocument pdf(folder / "out.pdf");
    EXPECT_EQ(pdf.pageCount(), 2);
    EXPECT_TRUE(pdf.info(QStringLiteral("Page size")).startsWith(QStringLiteral("612 x 792")));
}

TEST_F(DrawingCommands, WhatCannotBeDoneIsSaidOnOneLineAndLeavesNothing) {
    struct Case {
        Arguments arguments;
        int status;
        std::string named;
    };
    const std::string out = folder / "out.pdf";
    const std::string broken = folder / "broken.txt";
    test::put(broken, test::contentOf(Easy) + "no record\r\n");
    const std::string link = folder / "link.pdf";
    std::filesystem::create_symlink(broken, link);
    const auto before = folder.names();
    for (const Case& c : std::vector<Case>{
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
             {{"render", Easy, "--number", "41", "--output", out}, 1, "no puzzle 41"},
             {{"render", Easy, "--number", "1", "--output", "x.gif"}, 2, "x.gif"},
             {{"render", Easy, "--number", "1", "--output", out, "--scale", "0"}, 2, "--scale"},
             {{"render", Easy, "--number", "1", "--output", out, "--scheme", "no"}, 1, "no.col"},
             {{"render", Easy, "--output", out}, 2, "--number"}}) {
        EXPECT_EQ(run(c.arguments), c.status) << said;
        EXPECT_TRUE(said.starts_with("tessaly-cli: ")) << said;
        EXPECT_NE(said.find(c.named), std::string::npos) << said;
        EXPECT_EQ(said.find('\n'), said.size() - 1) << said;
        EXPECT_EQ(folder.names(), before);
    }
}

TEST_F(DrawingCommands, OnAFullDiskTheOldFileStaysAndTheNewOneIsNotSaidToBeThere) {
    for (const char* name : {"a.png", "a.svg", "a.pdf"}) {
        ASSERT_EQ(render(name), 0) << said;
        const std::string whole = test::contentOf(folder / name);
        const test::FullDisk disk(whole.size() / 2);
        EXPECT_EQ(render(name, {"--solution"}), 1) << name;
        EXPECT_NE(said.find(name), std::string::npos) << said;
        EXPECT_NE(said.find("File too large"), std::string::npos) << said;
        EXPECT_EQ(test::contentOf(folder / name), whole);
    }
    EXPECT_EQ(folder.names(), (std::set<std::string>{"a.png", "a.svg", "a.pdf"}));
}

TEST_F(DrawingCommands, AnInterruptedPrintLeavesNothing) {
    int asked = 0;
    EXPECT_EQ(run({"print", Easy, "--output", folder / "out.pdf"}, [&] { return ++asked > 3; }),
              exit_status::Interrupted);
    EXPECT_TRUE(folder.names().empty());
}

} // namespace
} // namespace tessaly
