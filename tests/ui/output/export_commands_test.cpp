#include "ui/output/export_commands.h"

#include "core/board/puzzle_record.h"
#include "ui/drawing/board_picture.h"
#include "ui/game_window.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class Copying : public testing::Test {
protected:
    Copying() { game.window->files().load(game.folder.puzzles("hard.txt"), 2); }

    static const QMimeData& clipboard() { return *QGuiApplication::clipboard()->mimeData(); }
    static QImage picture() { return qvariant_cast<QImage>(clipboard().imageData()); }
    void choose(const QString& item) { game.find<QAction>(item).trigger(); }

    GameWindow game;
};

TEST_F(Copying, PutsPictureAndRecordOnTheClipboard) {
    const Appearance appearance = game.session.appearance;
    const Board& board = game.session.game.board;
    const QImage window = game.window->grab().toImage();
    for (const auto& [item, solution] :
         {std::pair{u"mnuclippuz"_s, false}, {u"mnuclippuz"_s, false}, {u"mnuclipsol"_s, true}}) {
        choose(item);
        EXPECT_EQ(picture(), drawImage({board, appearance, solution}, 2));
        EXPECT_EQ(clipboard().text().toStdString(), PuzzleRecord(board));
    }
    game.window->files().goTo(2); // takes the message away
    EXPECT_EQ(game.window->grab().toImage(), window);
}

TEST_F(Copying, WritesTheWindowAsBitmapOrPngAndAsksBeforeItReplacesAFile) {
    const QImage window = game.window->grab().toImage();
    const std::string folder = game.folder.path();
    test::put(folder + "old.bmp", "old");
    test::put(folder + "empty.bmp", "");
    const struct {
        QString chosen;
        std::deque<int> answers;
        std::string written;
        std::string said;
    } rows[] = {
        {u"window"_s, {}, "window.bmp", folder + "window.bmp"},
        {u"window.PNG"_s, {}, "window.PNG", folder + "window.PNG"},
        {u"empty.bmp"_s, {}, "empty.bmp", folder + "empty.bmp"},
        {u"old.bmp"_s, {answer::No}, "", "OverWrite file: " + folder + "old.bmp ?"},
        {u"old.bmp"_s, {answer::Yes, answer::Ok}, "old.bmp", folder + "old.bmp"},
    };
    for (const auto& [chosen, answers, written, said] : rows) {
        game.prompts.answers = answers;
        game.fileDialogs.add(QString::fromStdString(folder) + chosen);
        choose(u"mnucapwin"_s);
        EXPECT_EQ(game.prompts.shown.back().text, said);
        if (!written.empty()) {
            const QImage picture(QString::fromStdString(folder + written),
                                 written.ends_with("bmp") ? "BMP" : "PNG");
            EXPECT_EQ(picture.convertToFormat(window.format()), window) << written;
        } else {
            EXPECT_EQ(test::contentOf(folder + "old.bmp"), "old");
        }
    }
    const FileQuestion& asked = game.fileDialogs.asked.back();
    EXPECT_EQ(asked.title, u"Select destination file for a bitmap copy of this puzzle");
    EXPECT_EQ(asked.kind, u"Facetto Bitmap Files (*.bmp)");
    EXPECT_EQ(asked.folder.toStdString(), folder);
    game.fileDialogs.add(u"/nowhere/out.bmp"_s);
    choose(u"mnucapwin"_s);
    EXPECT_EQ(game.prompts.shown.back().style, "vbok+vbcritical");
    const auto before = game.prompts.shown.size();
    game.fileDialogs.add({});
    choose(u"mnucapwin"_s);
    EXPECT_EQ(game.prompts.shown.size(), before);
}

} // namespace
} // namespace tessaly
