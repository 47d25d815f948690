#include "support/command_line.h"
#include "support/sample_puzzles.h"

namespace tessaly::program_test {

using Program = CommandLineTest;

TEST_F(Program, EveryCommandHelpsWithAnExample) {
    const CommandResult all = run("--help");
    EXPECT_EQ(all.status, exit_status::Done);
    for (const std::string name :
         {"create", "solve", "explain", "check", "rate", "variants", "shuffle", "bench"}) {
        EXPECT_NE(all.out.find("\n  " + name), std::string::npos) << name;
        const CommandResult help = run(name + " --help");
        EXPECT_EQ(help.status, exit_status::Done);
        EXPECT_NE(help.out.find("Example: tessaly-cli " + name), std::string::npos) << help.out;
    }
    for (const std::string& told : linesOf(run("create -h").out))
        EXPECT_LE(told.size(), 80U) << told;
    EXPECT_EQ(run("-V").out, "Tessaly 1.0.0\n");
}

TEST_F(Program, WrongUsageIsOneLineAndStatusTwo) {
    // What is named, a bar, the command line.
    for (const std::string& row : linesOf(contentOf(TESSALY_TEST_DATA "/wrong_usage.txt"))) {
        const std::size_t bar = row.find('|');
        expectRefused(row.substr(bar + 1), exit_status::WrongUsage, row.substr(0, bar));
    }
}

TEST_F(Program, AnInterruptedCommandEndsWhereItIsAndSaysSoByItsStatus) {
    const std::string record = sampleRecords("easy.txt").front() + "\r\n";
    put(file, record + record);
    for (const std::string& line :
         {"check " + file, "solve " + file, std::string("bench --seconds 0.001"),
          "variants " + file + " --output " + other, "shuffle " + file + " --output " + other}) {
        const CommandResult result = run(line, {.wasInterrupted = [] { return true; }});
        EXPECT_EQ(result.status, exit_status::Interrupted) << line;
        EXPECT_LE(linesOf(result.out).size(), 1U) << result.out;
    }
    EXPECT_EQ(folder.names(), std::set<std::string>{"puzzles.txt"});
}

TEST_F(Program, TheBenchShowsTheSignatureOfTheEngineAndRates) {
    const CommandResult result = run("bench --seconds 0.001");
    EXPECT_EQ(result.status, exit_status::Done);
    const std::vector<std::string> lines = linesOf(result.out);
    ASSERT_EQ(lines.size(), 7U) << result.out;
    // This number changes with every change of what the engine fills, solves, counts or creates.
    // Where that is meant, put the new one here and into the message of the commit.
    EXPECT_EQ(lines[0], "signature 10032532596777945885");
    for (std::size_t i = 1; i < lines.size(); ++i)
        EXPECT_TRUE(lines[i].ends_with(" a second")) << lines[i];
}

} // namespace tessaly::program_test
