#include "support/command_line.h"
#include "support/sample_puzzles.h"

#include <algorithm>

namespace tessaly {
namespace {

using test::contentOf;
using test::linesOf;
using test::put;
using Tools = test::CommandLineTest;

TEST_F(Tools, WhatIsWrongIsOneLineAndTheOutputStaysAsItWas) {
    const std::string record = sampleRecords("easy.txt").front();
    for (const std::string name : {"variants ", "shuffle "}) {
        const std::string line = name + file + " --output ";
        put(other, "old");
        std::filesystem::remove(file);
        expectRefused(line + other, exit_status::Failed, ": " + file + ": ");
        put(file, std::string(record)
                      .append("\r\n")
                      .append(record.substr(1))
                      .append("\r\n")
                      .append(record));
        expectRefused(line + other, exit_status::Failed, ": " + file + ": line 2: ");
        EXPECT_EQ(contentOf(other), "old");
        put(file, "");
        expectRefused(line + "/none/out.txt", exit_status::Failed, ": /none/out.txt: ");
        EXPECT_EQ(run(line + other).status, exit_status::Done);
        EXPECT_EQ(contentOf(other), "") << "what an empty file gives";
        EXPECT_EQ(folder.names(), (std::set<std::string>{"other.txt", "puzzles.txt"}));
    }
}

TEST_F(Tools, EveryVariantOfNewPuzzlesPassesTheCheck) {
    run("create --difficulty random --count 40 --seed 7 --output " + file);
    const test::CommandResult variants = run("variants " + file + " --output " + other);
    EXPECT_EQ(variants.err + variants.out, "");
    EXPECT_EQ(run("check " + other).out, other + ": 320 puzzles checked, 0 findings\n");

    put(file, contentOf(other) + contentOf(file));
    const auto mixed = [&](const std::string& seed) {
        const std::string path = folder / "mixed.txt";
        EXPECT_EQ(run("shuffle " + file + " --output " + path + " --seed " + seed).status, 0);
        return linesOf(contentOf(path), "\r\n");
    };
    std::vector<std::string> lines = mixed("3");
    std::vector<std::string> expected = linesOf(contentOf(other), "\r\n");
    EXPECT_EQ(mixed("3"), lines);
    EXPECT_NE(mixed("4"), lines);
    EXPECT_NE(expected, lines);
    std::sort(lines.begin(), lines.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(lines, expected);
}

} // namespace
} // namespace tessaly
