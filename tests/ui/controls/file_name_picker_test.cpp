#include "ui/controls/file_name_picker.h"

#include "ui/game_window.h"

#include <QTemporaryDir>

namespace tessaly::file_name_picker_test {

struct FileNamePickerTest : testing::Test {
    QString choose(const QString& name, const QString& mode = {}) {
        dialogs.add(name);
        return pathText(picker.GetFileName(mode));
    }
    ScriptedFileDialogs dialogs;
    ScriptedPrompts prompts;
    FNDialog picker{dialogs.dialog(), prompts};
};

TEST_F(FileNamePickerTest, TheQuestionIsMadeOfTheModeAndTheProperties) {
    for (const QString& mode : {u"sAvE"_s, QString(), u"saved"_s}) {
        EXPECT_EQ(choose(u"/some/file.txt"_s, mode), u"/some/file.txt"_s);
        EXPECT_EQ(dialogs.asked.last().saving, mode == u"sAvE"_s);
    }
    for (const auto& [property, value] : {std::pair("Title", u"Load a Puzzle File"_s),
                                          {"DefaultDir", u"/puzzles"_s},
                                          {"FileTypes", u"*.txt; *.dat;"_s},
                                          {"FileTypesName", u"Tessaly Files"_s}})
        picker.setProperty(property, value);
    EXPECT_EQ(choose({}), QString());
    const FileQuestion& asked = dialogs.asked.last();
    EXPECT_EQ(asked.title + asked.folder, u"Load a Puzzle File/puzzles/"_s);
    EXPECT_EQ(asked.kind, u"Tessaly Files (*.txt; *.dat;)"_s);
    EXPECT_EQ(asked.patterns, (QStringList{u"*.txt"_s, u"*.dat"_s}));

    const QTemporaryDir elsewhere;
    const QString before = QDir::currentPath();
    dialogs.meanwhile = [&] { QDir::setCurrent(elsewhere.path()); };
    EXPECT_EQ(QFileInfo(choose(u"relative.txt"_s)).path(),
              QFileInfo(elsewhere.path()).canonicalFilePath());
    EXPECT_EQ(QDir::currentPath(), before) << "the process stays where it was";
}

TEST_F(FileNamePickerTest, NamesThatCannotBeTakenAreRefusedWithTheReason) {
    const QString longest = u'/' + QString(253, u'x');
    for (const QString& name : {longest, u"/puzzles/café 日本.txt"_s, u"/ends "_s})
        EXPECT_EQ(choose(name), name);
    for (const auto& [name, reason] : {std::pair(QString(longest + u'x'), "longer than 254"),
                                       {u"/half"_s + QChar(0xd800), "not valid UTF-8"},
                                       {u"/cut"_s + QChar(0) + u"off"_s, "not valid UTF-8"}}) {
        EXPECT_EQ(choose(name), QString());
        EXPECT_NE(prompts.shown.back().text.find(reason), std::string::npos);
        EXPECT_EQ(prompts.shown.back().style, "vbok+vbcritical");
    }
    const TemporaryFolder folder;
    const std::filesystem::path odd = folder / "caf\xe9.txt";
    put(odd, "");
    dialogs.add(pathText(odd));
    EXPECT_EQ(picker.GetFileName({}), odd) << "the only file that looks like this";
    put(folder / "caf\xe8.txt", "");
    EXPECT_EQ(choose(pathText(odd)), QString()) << "which of the two?";
}

} // namespace tessaly::file_name_picker_test
