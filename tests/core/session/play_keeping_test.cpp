#include "core/session/play_keeping.h"

#include "core/play/selection_walk.h"
#include "core/session/start_up.h"
#include "support/core_fakes.h"

namespace tessaly::play_keeping_test {

namespace fs = std::filesystem;

/// The game as it is started in a folder, and killed when this goes.
struct GameRun : SessionScene {
    explicit GameRun(const fs::path& in) {
        session.ProgramFolder = in / "";
        told = openPlayBook(session).problem;
        files.reopen(session.last.path, session.last.number);
    }
    void enter(const std::string& entry) {
        session.game.place(firstSelectable(session.game), entry);
    }
    std::string entered() const {
        const Game& game = session.game;
        return game.hasPuzzle() ? game.board.CellNum[firstSelectable(game)] : "no puzzle";
    }
    std::string told;
};

struct PlayKeepingTest : testing::Test {
    /// What the next start shows, and what stands in the cell that was played.
    std::string nextStart() const {
        GameRun run(folder.path());
        return run.seen() + run.entered();
    }
    TemporaryFolder folder;
};

TEST_F(PlayKeepingTest, TheGameOpensWhereItWasLeftWhateverEndedIt) {
    GameRun run(folder.path());
    EXPECT_EQ(run.seen() + run.entered(), "0/0 : no puzzle");
    const fs::path puzzles = run.fileOfPuzzles("a.txt", 3);
    const fs::path temporary = run.fileOfPuzzles("temporarypuzfile.txt", 2);
    const std::pair<std::function<void()>, std::string> rows[] = {
        {[&] { run.files.load(puzzles), run.enter("1"); }, "1/3 a.txt: 1"},
        {[&] { run.files.cmdarrow(1); }, "2/3 a.txt: "},
        {[&] { run.enter("25"); }, "2/3 a.txt: 25"},
        {[&] { run.files.cmdarrow(0); }, "1/3 a.txt: 1"},
        {[&] { run.play.cmdundo(); }, "1/3 a.txt: "},
        {[&] { run.play.cmdredo(); }, "1/3 a.txt: 1"},
        {[&] { run.files.load(temporary, 2); }, "2/2 temporarypuzfile.txt: 25"},
        {[&] { run.enter("4"), run.files.mnusaveto(), run.prompts.told(); },
         "3/3 temporarypuzfile.txt: 4"},
        {[&] { fs::remove(temporary); }, "0/0 : 4"},
        {[&] { run.files.goTo(2); }, "0/0 : 4"},
        {[&] { run.files.load(puzzles, 3), run.enter("6"), run.session.game.reset(); },
         "3/3 a.txt: "},
        {[&] { run.session.game.undo(); }, "3/3 a.txt: 6"},
        {[&] {
             run.files.load(puzzles, 2), run.session.game.takeAway(), run.files.load(puzzles, 1);
         },
         "1/3 a.txt: 1"},
        {[&] { run.files.cmdarrow(1); }, "2/3 a.txt: 4"},
    };
    for (const auto& [act, expected] : rows) {
        act();
        run.prompts.told();
        EXPECT_EQ(nextStart(), expected);
    }
    EXPECT_EQ(run.told, "");
}

TEST_F(PlayKeepingTest, TimeIsCountedOnlyForWhoIsThere) {
    GameRun run(folder.path());
    run.files.load(run.fileOfPuzzles("a.txt", 2));
    run.keeping.setPresent(true);
    run.enter("1");
    EXPECT_LT(run.session.game.seconds, 2);
    run.session.game.seconds = 100;
    run.keeping.setPresent(false);
    run.files.cmdarrow(1);
    EXPECT_EQ(run.session.game.seconds, 0);
    run.files.cmdarrow(1);
    EXPECT_GE(run.session.game.seconds, 100);
    EXPECT_LT(run.session.game.seconds, 102);
}

} // namespace tessaly::play_keeping_test
