#include "ui/output/export_commands.h"

#include "core/board/puzzle_record.h"
#include "ui/drawing/board_picture.h"
#include "ui/game_window.h"

#include <QClipboard>
#include <QMimeData>

namespace tessaly {
namespace {

struct Exporting : testing::Test {
    GameWindow game{"hard.txt", 2};
    const QImage window = game.window->grab().toImage();
};

TEST_F(Exporting, PutsPictureAndRecordOnTheClipboard) {
    const Board& board = game.session.game.board;
    for (const auto& [item, solution] :
         {std::pair{u"mnuclippuz"_s, false}, {u"mnuclippuz"_s, false}, {u"mnuclipsol"_s, true}}) {
        game.choose(item);
        const QMimeData& clipboard = *QApplication::clipboard()->mimeData();
        EXPECT_EQ(qvariant_cast<QImage>(clipboard.imageData()),
                  drawImage({board, game.session.appearance, solution}, 2));
        EXPECT_EQ(clipboard.text().toStdString(), PuzzleRecord(board));
    }
    game.window->files().goTo(2); // takes the message away
    EXPECT_EQ(game.window->grab().toImage(), window);
}

TEST_F(Exporting, WritesTheWindowAsBitmapOrPngAndAsksBeforeItReplacesAFile) {
    const std::string folder = game.folder.path();
    test::put(folder + "old.bmp", "old");
    test::put(folder + "empty.bmp", "");
    const struct {
        const char* chosen;
        std::deque<int> answers;
        std::string written;
        std::string said;
    } rows[] = {
        {"window", {}, "window.bmp", "window.bmp"},
        {"window.PNG", {}, "window.PNG", "window.PNG"},
        {"empty.bmp", {}, "empty.bmp", "empty.bmp"},
        {"old.bmp", {answer::No}, "", "old.bmp ?"},
        {"old.bmp", {answer::Yes, answer::Ok}, "old.bmp", "old.bmp"},
        {"no folder/a.bmp", {}, "", "a.bmp"},
        {"", {}, "", "a.bmp"},
    };
    for (const auto& [chosen, answers, written, said] : rows) {
        game.prompts.answers = answers;
        game.fileDialogs.add(*chosen == 0 ? QString() : QString::fromStdString(folder + chosen));
        game.choose(u"mnucapwin"_s);
        EXPECT_NE(game.lastPrompt().text.find(said), std::string::npos) << game.lastPrompt().text;
        const QImage picture(QString::fromStdString(folder + written),
                             written.ends_with("bmp") ? "BMP" : "PNG");
        EXPECT_EQ(picture.convertToFormat(window.format()), written.empty() ? QImage() : window);
        if (answers == std::deque<int>{answer::No}) {
            EXPECT_EQ(test::contentOf(folder + "old.bmp"), "old");
        }
    }
    EXPECT_EQ(game.lastPrompt().style, "vbok+vbcritical");
    EXPECT_EQ(game.prompts.shown.size(), 7U) << "nothing is said of nothing";
    const FileQuestion& asked = game.fileDialogs.asked.back();
    EXPECT_EQ(asked.title, u"Select destination file for a bitmap copy of this puzzle");
    EXPECT_EQ(asked.kind, u"Facetto Bitmap Files (*.bmp)");
    EXPECT_EQ(asked.folder.toStdString(), folder);
}

} // namespace
} // namespace tessaly
