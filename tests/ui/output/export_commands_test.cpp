#include "ui/output/export_commands.h"

#include "core/board/puzzle_record.h"
#include "ui/drawing/board_picture.h"
#include "ui/game_window.h"

#include <QClipboard>
#include <QMimeData>

namespace tessaly::export_commands_test {

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
}

TEST_F(Exporting, WritesTheWindowAsBitmapOrPngAndAsksBeforeItReplacesAFile) {
    const std::string folder = game.folder.path();
    put(folder + "old.bmp", "old");
    put(folder + "empty.bmp", "");
    const std::tuple<std::string, std::deque<int>, std::string> rows[] = {
        {"window", {}, "window.bmp"},
        {"window.PNG", {}, "window.PNG"},
        {"c.jpg", {}, "c.jpg.bmp"},
        {"empty.bmp", {}, "empty.bmp"},
        {"old.bmp", {answer::No}, "OverWrite file: " + folder + "old.bmp ?"},
        {"no folder/a.bmp", {}, "a.bmp: cannot be written: No such file or directory"},
        {"old.bmp", {answer::Yes, answer::Ok}, "old.bmp"},
    };
    for (const auto& [chosen, answers, said] : rows) {
        game.prompts.answers = answers;
        game.fileDialogs.add(QString::fromStdString(folder + chosen));
        game.choose(u"mnucapwin"_s);
        EXPECT_TRUE(game.lastPrompt().text.ends_with(said)) << game.lastPrompt().text;
        if (said.find(' ') != std::string::npos) {
            EXPECT_EQ(game.lastPrompt().style,
                      answers.empty() ? "vbok+vbcritical" : "vbyesno+vbquestion+vbdefaultbutton2");
            EXPECT_EQ(contentOf(folder + "old.bmp"), "old");
            continue;
        }
        const QImage picture(QString::fromStdString(folder + said),
                             said.ends_with("bmp") ? "BMP" : "PNG");
        EXPECT_EQ(picture.convertToFormat(window.format()), window);
    }
    EXPECT_EQ(game.fileDialogs.asked.back().kind, u"Facetto Bitmap Files (*.bmp)");
}

} // namespace tessaly::export_commands_test
