// The commands that work through a puzzle file: solve, check, variants and shuffle.

#include "core/solver/deduction.h"
#include "support/command_line.h"
#include "support/sample_puzzles.h"

#include <algorithm>
#include <array>
#include <unistd.h>

namespace tessaly::file_commands_test {

using FileCommands = CommandLineTest;

const std::string Easy = sampleRecords("easy.txt").front();
const std::string Hard = sampleRecords("hard.txt").front();

std::string answer(int number, int result, const Board& board) {
    std::string line = std::to_string(number) + " " + std::to_string(result);
    for (CellId cell : AllCells)
        line += " " + (board.CellNum[cell].empty() ? "-" : board.CellNum[cell]);
    return line + "\n";
}

TEST_F(FileCommands, SolveAnswersForEveryRecordOrForOne) {
    const std::string open = "H1211" + std::string(BoardCellCount, '1');
    put(file, Easy + "\r\n" + Hard + ":" + std::string(BoardCellCount, '3') + "\r\n" + open);
    std::vector<std::string> answers;
    for (const std::string& record : {Easy, Hard, open}) {
        Board board = boardOf(record);
        board.ResetToGivens();
        const int solved = SolveByDeduction(board);
        answers.push_back(answer(static_cast<int>(answers.size()) + 1, solved, board));
    }
    EXPECT_EQ(run("solve " + file).out, answers[0] + answers[1] + answers[2]);
    EXPECT_EQ(run("solve " + file + " --rules ALL --number 02").out, answers[1]);
    EXPECT_EQ(run("solve " + file + " /none " + file + " -n 1").out,
              (file + ": ").append(answers[0]).append(file + ": ").append(answers[0]));

    Board basic = boardOf(Easy);
    basic.ResetToGivens();
    basic.CellNum[basic.BlankHex].fill("");
    basic.BlankHex = NoHexagon;
    std::int32_t counter = 0;
    SolveBasic(basic, false, counter);
    EXPECT_EQ(run("solve " + file + " --rules basic --number 1").out, answer(1, 0, basic));
    EXPECT_TRUE(run("solve " + file + " --rules basic --number 3").out.starts_with("3 84 "));
    expectRefused("solve " + file + " --number 1000", exit_status::Failed,
                  file + ": line 1000: there is no such record\n");
    expectRefused("solve \x1b]0;\xc2\x9b\x7f\xc2\xa0", exit_status::Failed,
                  "\\x1b]0;\\xc2\\x9b\\x7f\xc2\xa0: cannot be read: No such file or directory\n");
}

TEST_F(FileCommands, ExplainTellsTheWholeWayOrWhereTheRulesEnd) {
    put(file, Easy + "\r\n" + recordOfTheRim(Hard));
    const CommandResult way = run("explain " + file + " --number 1");
    EXPECT_EQ(way.status, exit_status::Done) << way.err;
    const std::vector<std::string> steps = linesOf(way.out);
    Board board = boardOf(Easy);
    board.ResetToGivens();
    for (std::size_t i = 0; i < steps.size(); ++i) {
        std::istringstream words(steps[i]);
        std::string number, cell, digit, reason, sentence;
        words >> number >> cell >> digit >> reason;
        std::getline(words, sentence);
        EXPECT_EQ(number, std::to_string(i + 1));
        EXPECT_TRUE(sentence.find(digit) != std::string::npos && sentence.back() == '.') << way.out;
        board.CellNum[{std::stoi(cell.substr(0, 2)), cell[2] - '0'}] = digit;
    }
    EXPECT_EQ(board.CellNum, board.SolNum);
    EXPECT_EQ(steps.front(), "1 015 3 across The triangle across the side holds 3.");
    const CommandResult rated = run("rate " + file);
    EXPECT_EQ(rated.status, exit_status::Failed);
    EXPECT_TRUE(rated.err.ends_with("line 2: the rules do not lead to the solution\n"));
    std::istringstream words(rated.out);
    std::size_t number = 0, stars = 0, score = 0, counted = 0;
    std::string difficulty;
    words >> number >> difficulty >> stars >> score;
    EXPECT_TRUE(difficulty == "Easy" && stars >= 1 && stars <= 5 && score > 0) << rated.out;
    for (std::size_t count = 0; words >> count;)
        counted += count;
    EXPECT_EQ(counted, steps.size());
    const CommandResult stuck = run("explain " + file + " --number 2");
    EXPECT_EQ(stuck.status, exit_status::Failed);
    EXPECT_EQ(stuck.err,
              "tessaly-cli: " + file +
                  ": line 2: the rules end after step 6; 72 cells not solved, first 014\n");
    expectRefused("explain " + file + " --number 3", exit_status::Failed, "there is no such");
}

TEST_F(FileCommands, BrokenLinesAreNamedAndPassedOver) {
    const std::string broken = Easy.substr(0, 50) + "7" + Easy.substr(51);
    put(file, "\r\n" + Easy + "\r\n" + std::string(300'000, 'x') + "\r\n" + broken + "\r\n" + Easy +
                  ":1\r\n\r\n");
    const CommandResult solved = run("solve " + file);
    EXPECT_EQ(solved.status, exit_status::Failed);
    EXPECT_EQ(solved.out,
              run("solve " + file + " --number 2").out + run("solve " + file + " --number 5").out);
    const std::string start = file + ": line ", told = "tessaly-cli: " + start;
    const std::string empty = "1: the record has 0 characters instead of 119\n";
    const std::string isLong = "3: the line is longer than any record\n";
    EXPECT_EQ(solved.err, told + empty + told + isLong + told + "4: character 51 is no cell\n");
    const CommandResult checked = run("check " + file);
    EXPECT_EQ(checked.status, exit_status::Failed);
    EXPECT_EQ(checked.err, "");
    EXPECT_EQ(checked.out, start + empty + start + isLong + start + "4: character 51 is no cell\n" +
                               start + "5: the same puzzle as line 2\n" + file +
                               ": 5 puzzles checked, 4 findings\n");
    EXPECT_EQ(run("solve " + file + " --number 3").status, exit_status::Failed);
    put(file, Easy + "\r\n" + Hard + "\r\n\r\n\r\n");
    EXPECT_EQ(run("check " + file).status, exit_status::Done);
    EXPECT_EQ(run("check " + file).out, file + ": 2 puzzles checked, 0 findings\n");
}

TEST_F(FileCommands, PipesAreReadAndStandardOutputIsWritten) {
    put(file, Easy + "\r\n" + Hard + "\r\n");
    for (const std::string command :
         {"check ", "solve ", "rate ", "variants ", "shuffle --seed 1 "}) {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe(ends.data()), 0);
        ASSERT_GT(::write(ends[1], contentOf(file).data(), contentOf(file).size()), 0);
        ::close(ends[1]);
        const std::string pipe = "/dev/fd/" + std::to_string(ends[0]);
        std::string expected = run(command + file).out;
        if (const std::size_t name = expected.find(file); name != std::string::npos)
            expected.replace(name, file.size(), pipe);
        EXPECT_EQ(run(command + pipe).out, expected);
        EXPECT_NE(expected, "");
        ::close(ends[0]);
    }
    EXPECT_EQ(linesOf(run("variants " + file + " -o -").out, "\r\n").size(), 16u);
}

TEST_F(FileCommands, AFileThatCannotBeReadOrWrittenIsOneLineAndTheOutputStays) {
    for (const std::string path : {"/nonexistent/puzzles.txt", "/", "/dev/zero"}) {
        expectRefused("solve " + path, exit_status::Failed, ": " + path + ": ");
        expectRefused("check " + path, exit_status::CannotCheck, ": " + path + ": ");
    }
    const std::string broken = Easy + "\r\n" + Easy.substr(1) + "\r\n" + Easy;
    for (const std::string name : {"variants ", "shuffle "}) {
        const std::string line = name + file + " --output ";
        put(other, "old");
        std::filesystem::remove(file);
        expectRefused(line + other, exit_status::Failed, ": " + file + ": ");
        put(file, broken);
        expectRefused(line + other, exit_status::Failed, ": " + file + ": line 2: ");
        expectRefused(line + "-", exit_status::Failed, ": " + file + ": line 2: ");
        EXPECT_EQ(contentOf(other), "old");
        put(file, "");
        expectRefused(line + "/none/out.txt", exit_status::Failed, ": /none/out.txt: ");
        EXPECT_EQ(run(line + other).status, exit_status::Done);
        EXPECT_EQ(contentOf(other), "") << "what an empty file gives";
        EXPECT_EQ(folder.names(), (std::set<std::string>{"other.txt", "puzzles.txt"}));
    }
}

TEST_F(FileCommands, EveryVariantOfNewPuzzlesPassesTheCheckAndIsShuffledOnce) {
    run("create --difficulty random --count 40 --seed 7 --output " + file);
    const CommandResult variants = run("variants " + file + " --output " + other);
    EXPECT_EQ(variants.err + variants.out, "");
    EXPECT_EQ(run("check " + other).out, other + ": 320 puzzles checked, 0 findings\n");

    put(file, contentOf(other) + contentOf(file));
    const auto mixed = [&](const std::string& seed) {
        const std::string path = folder / "mixed.txt";
        EXPECT_EQ(run("shuffle " + file + " --output " + path + " --seed " + seed).status, 0);
        return recordsOf(path);
    };
    const std::vector<std::string> lines = mixed("3"), variant = recordsOf(other);
    EXPECT_EQ(mixed("3"), lines);
    EXPECT_NE(mixed("4"), lines);
    EXPECT_NE(lines, variant);
    EXPECT_TRUE(std::ranges::is_permutation(lines, variant));
}

} // namespace tessaly::file_commands_test
