#include "core/board/puzzle_record.h"
#include "ui/game_window.h"

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedPrompts::Message;

/// The commands on puzzle files, as their menu items and buttons start them.
struct PuzzleFilesTest : testing::Test {
    QAction& action(const QString& name) { return game.find<QAction>(name); }
    QString fileName() { return game.text(u"PuzFileName"_s); }
    void choose(const QString& item, const std::string& path) {
        game.fileDialogs.add(QString::fromStdString(path));
        game.choose(item);
    }
    GameWindow game;
};

TEST_F(PuzzleFilesTest, AreSavedToAndDeletedFromWhateverTheirName) {
    choose(u"mnuload"_s, game.folder.puzzles("hard.txt"));
    const std::string saved = PuzzleRecord(game.session.game.board) + "\r\n";
    for (const char* name : {"\"q\" & 'b'.dat", "line\nfeed.txt", "ü 50%.txt"}) {
        const std::string path = game.folder.path() + name;
        choose(u"mnusavex"_s, path);
        EXPECT_EQ(game.lastPrompt(),
                  (Message{"Puzzle#1 added to file " + path, "vbok+vbinformation"}));
        game.choose(u"mnusaveto"_s);
        EXPECT_EQ(test::contentOf(path), saved + saved);
        EXPECT_EQ(fileName(), QString::fromUtf8(name));
        EXPECT_EQ(game.number(), u"2"_s);
        game.prompts.answers = {answer::Yes};
        game.choose(u"mnudelete"_s);
        EXPECT_EQ(test::contentOf(path), saved);
    }
    EXPECT_FALSE(action(u"oldfiles_1"_s).isVisible()) << "saving makes no recent file";
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    for (const FileQuestion& asked : game.fileDialogs.asked) {
        EXPECT_EQ(asked.folder.toStdString(), game.folder.path());
        EXPECT_EQ(asked.kind, u"Tessaly Files (*.txt;*.dat)"_s);
        EXPECT_EQ(asked.title, asked.saving ? u"Select an output Puzzle file"_s
                                            : u"Select a Puzzle file to open"_s);
    }
}

TEST_F(PuzzleFilesTest, SixFilesLeaveTheFiveLatestInTheMenu) {
    const std::string easy = game.folder.puzzles("easy.txt");
    for (char name = '1'; name <= '6'; ++name) {
        const std::string path = game.folder.path() + name + " & co.txt";
        std::filesystem::copy_file(easy, path);
        game.window->files().load(path);
    }
    for (int item = 0; item < 5; ++item) {
        EXPECT_TRUE(action(u"oldfiles_%1"_s.arg(item)).isVisible());
        EXPECT_EQ(action(u"oldfiles_%1"_s.arg(item)).text(),
                  QString::fromStdString(game.folder.path()) + u"%1 && co.txt"_s.arg(6 - item));
    }
    EXPECT_TRUE(action(u"oldfiles_5"_s).isSeparator() && action(u"oldfiles_5"_s).isVisible());
    game.choose(u"oldfiles_3"_s);
    EXPECT_EQ(fileName(), u"3 & co.txt"_s);
    EXPECT_EQ(action(u"mnusaveto"_s).text(),
              QString::fromStdString(game.folder.path()) + u"3 && co.txt"_s);
}

} // namespace
} // namespace tessaly
