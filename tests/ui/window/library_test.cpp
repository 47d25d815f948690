#include "ui/game_window.h"

#include "core/board/puzzle_record.h"

#include <QAction>
#include <QLineEdit>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedPrompts::Message;

/// The commands on puzzle files, as their menu items and buttons start them.
class Library : public testing::Test {
protected:
    QAction& action(const QString& name) { return game.find<QAction>(name); }
    QString number() { return game.find<QLineEdit>(u"PuzNumNow"_s).text(); }
    QString fileName() { return game.find<QLabel>(u"PuzFileName"_s).text(); }
    std::string pathOf(const std::string& name) const { return game.folder.path() + name; }
    Message lastMessage() { return game.prompts.shown.back(); }

    void load(const std::string& path) {
        game.fileDialogs.add(QString::fromStdString(path));
        action(u"mnuload"_s).trigger();
    }
    void saveTo(const std::string& path) {
        game.fileDialogs.add(QString::fromStdString(path));
        action(u"mnusavex"_s).trigger();
    }
    std::string record() const { return PuzzleRecord(game.session.game.board); }

    GameWindow game;
};

TEST_F(Library, TheDialogsOfferPuzzleFilesInTheProgramsFolder) {
    load({});
    action(u"mnusavex"_s).trigger();
    EXPECT_EQ(game.fileDialogs.asked.size(), 1) << "there is no puzzle to save";
    load(game.folder.puzzles("easy.txt"));
    saveTo({});
    ASSERT_EQ(game.fileDialogs.asked.size(), 3);
    for (const auto& asked : game.fileDialogs.asked) {
        EXPECT_EQ(asked.folder, QString::fromStdString(game.folder.path()));
        EXPECT_EQ(asked.kind, u"Tessaly Files (*.txt;*.dat)"_s);
    }
    EXPECT_EQ(game.fileDialogs.asked[0].title, u"Select a Puzzle file to open"_s);
    EXPECT_FALSE(game.fileDialogs.asked[0].saving);
    EXPECT_EQ(game.fileDialogs.asked[2].title, u"Select an output Puzzle file"_s);
    EXPECT_TRUE(game.fileDialogs.asked[2].saving);
    EXPECT_TRUE(game.prompts.shown.empty());
}

TEST_F(Library, AFileThatHoldsNoPuzzleIsSaidAndWhatIsShownStays) {
    load(game.folder.puzzles("easy.txt"));
    const std::string empty = pathOf("empty.txt");
    test::put(empty, "");
    load(empty);
    EXPECT_EQ(lastMessage(), (Message{"Error reading file:\r\n" + empty, "vbcritical+vbok"}));
    EXPECT_EQ(game.message(), u"Error reading p# 1"_s);
    EXPECT_EQ(fileName(), u"easy.txt"_s);
    EXPECT_FALSE(action(u"oldfiles_1"_s).isVisible());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Library, SavingTwiceAppendsTwoCopiesWhateverTheFilesName) {
    load(game.folder.puzzles("hard.txt"));
    const std::string saved = record() + "\r\n";
    for (const char* name : {"two words.txt", "\"q\" & 'b'.dat", "line\nfeed.txt", "ü 50%.txt"}) {
        const std::string path = pathOf(name);
        saveTo(path);
        EXPECT_EQ(lastMessage(), (Message{"Puzzle#1 added to file " + path, "vbok+vbinformation"}));
        EXPECT_TRUE(action(u"mnusaveto"_s).isVisible() && action(u"mnusaveto"_s).isEnabled());
        action(u"mnusaveto"_s).trigger();
        EXPECT_EQ(lastMessage(), (Message{"Puzzle#2 added to file " + path, "vbok+vbinformation"}));
        EXPECT_EQ(number(), u"2"_s);
        EXPECT_EQ(test::contentOf(path), saved + saved);
        EXPECT_EQ(fileName(), QString::fromUtf8(name));
    }
    EXPECT_FALSE(action(u"oldfiles_1"_s).isVisible()) << "saving makes no recent file";
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Library, ASaveThatFailsIsSaidAndThePlayStays) {
    load(game.folder.puzzles("easy.txt"));
    game.session.game.place({1, 5}, "4");
    const Board before = game.session.game.board;
    const std::string path = pathOf("no/such.txt");
    saveTo(path);
    EXPECT_EQ(lastMessage(), (Message{path + ": cannot be written: No such file or directory",
                                      "vbok+vbcritical"}));
    EXPECT_EQ(game.session.game.board, before);
    EXPECT_EQ(action(u"mnusaveto"_s).text(), QString::fromStdString(pathOf("easy.txt")));
}

TEST_F(Library, DeleteAsksAndShowsTheFirstPuzzleOfTheRest) {
    const std::string path = pathOf("three.txt");
    load(game.folder.puzzles("easy.txt"));
    for (int copies = 0; copies < 2; ++copies) {
        saveTo(path);
        load(pathOf("easy.txt"));
    }
    load(path);
    QTest::mouseClick(&game.find(u"cmdarrow_1"_s), Qt::LeftButton);
    const Message question{"Delete current puzzle from file?", "vbyesno+vbquestion"};
    const std::string content = test::contentOf(path);
    for (int no : {answer::No, answer::None}) {
        game.prompts.answers = {no};
        action(u"mnudelete"_s).trigger();
        EXPECT_EQ(lastMessage(), question);
        EXPECT_EQ(test::contentOf(path), content);
    }
    for (const std::size_t left : {content.size() / 2, std::size_t{0}}) {
        game.prompts.answers = {answer::Yes, answer::Ok};
        action(u"mnudelete"_s).trigger();
        EXPECT_EQ(lastMessage(), (Message{"Done", "vbinformation+vbok"}));
        EXPECT_EQ(test::contentOf(path).size(), left);
        EXPECT_EQ(number(), u"1"_s);
    }
    EXPECT_EQ(game.message(), u"Error reading p# 1"_s);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Library, SixFilesLeaveTheFiveLatestInTheMenu) {
    const std::string easy = game.folder.puzzles("easy.txt");
    for (char name = '1'; name <= '6'; ++name) {
        const std::string path = pathOf(std::string(1, name) + " & co.txt");
        std::filesystem::copy_file(easy, path);
        load(path);
    }
    for (int item = 0; item < 5; ++item) {
        EXPECT_TRUE(action(u"oldfiles_%1"_s.arg(item)).isVisible());
        EXPECT_EQ(action(u"oldfiles_%1"_s.arg(item)).text(),
                  QString::fromStdString(pathOf("")) + u"%1 && co.txt"_s.arg(6 - item));
    }
    EXPECT_TRUE(action(u"oldfiles_5"_s).isSeparator() && action(u"oldfiles_5"_s).isVisible());

    action(u"oldfiles_3"_s).trigger();
    EXPECT_EQ(fileName(), u"3 & co.txt"_s);
    EXPECT_EQ(number(), u"1"_s);
    const std::string vanished = pathOf("5 & co.txt");
    std::filesystem::remove(vanished);
    action(u"oldfiles_1"_s).trigger();
    EXPECT_EQ(lastMessage(), (Message{"File not found:\r\n" + vanished, "vbcritical+vbok"}));
    EXPECT_EQ(fileName(), u"3 & co.txt"_s);
    EXPECT_TRUE(action(u"oldfiles_1"_s).isVisible()) << "it stays in the list";
}

TEST_F(Library, ARestartReopensTheLastPuzzleAfterExitOnly) {
    load(game.folder.puzzles("hard.txt"));
    load(game.folder.puzzles("easy.txt"));
    for (int steps = 0; steps < 4; ++steps)
        QTest::mouseClick(&game.find(u"cmdarrow_1"_s), Qt::LeftButton);
    const Board shown = game.session.game.board;
    game.prompts.answers = {answer::Yes};
    action(u"cmdexit"_s).trigger();
    game.restart();
    EXPECT_EQ(fileName(), u"easy.txt"_s);
    EXPECT_EQ(number(), u"5"_s);
    EXPECT_EQ(game.session.game.board, shown);
    EXPECT_EQ(action(u"mnusaveto"_s).text(), QString::fromStdString(pathOf("easy.txt")));
    EXPECT_EQ(action(u"oldfiles_1"_s).text(), QString::fromStdString(pathOf("hard.txt")));
    EXPECT_FALSE(action(u"oldfiles_2"_s).isVisible());

    load(pathOf("hard.txt"));
    game.window->close();
    game.restart();
    EXPECT_EQ(fileName(), u"easy.txt"_s) << "the close box remembers nothing";
    std::filesystem::remove(pathOf("easy.txt"));
    game.restart();
    EXPECT_EQ(fileName(), u"Create a New Puzzle"_s);
    EXPECT_FALSE(action(u"mnusaveto"_s).isVisible());
    EXPECT_EQ(game.prompts.shown.size(), 1U) << "only Exit asked anything";
}

} // namespace
} // namespace tessaly
