#include "ui/controls/file_name_picker.h"

#include "support/scripted_file_dialogs.h"
#include "support/scripted_prompts.h"

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace tessaly {
namespace {

class FileNamePickerTest : public testing::Test {
protected:
    ScriptedFileDialogs m_dialogs;
    ScriptedPrompts m_prompts;
    FNDialog m_picker{m_dialogs.dialog(), m_prompts};
};

TEST_F(FileNamePickerTest, OnlyTheWordSaveAsksForAFileToSaveTo) {
    for (const QString& mode :
         {QStringLiteral("save"), QStringLiteral("SAVE"), QStringLiteral("sAvE"),
          QStringLiteral("open"), QString(), QStringLiteral("  "), QStringLiteral("saved")}) {
        m_dialogs.add(QStringLiteral("/some/file.txt"));
        EXPECT_EQ(m_picker.GetFileName(mode), QStringLiteral("/some/file.txt"));
        EXPECT_EQ(m_dialogs.asked.last().saving, mode.toUpper() == QStringLiteral("SAVE"));
    }
}

TEST_F(FileNamePickerTest, TheQuestionIsMadeOfTheProperties) {
    m_picker.setProperty("Title", QStringLiteral("Load a Puzzle File"));
    m_picker.setProperty("DefaultDir", QStringLiteral("/puzzles"));
    m_picker.setProperty("FileTypes", QStringLiteral("*.txt; *.dat;"));
    m_picker.setProperty("FileTypesName", QStringLiteral("Tessaly Files"));
    m_dialogs.add({});
    EXPECT_EQ(m_picker.GetFileName({}), QString());
    const FileQuestion& asked = m_dialogs.asked.last();
    EXPECT_EQ(asked.title, QStringLiteral("Load a Puzzle File"));
    EXPECT_EQ(asked.folder, QStringLiteral("/puzzles/"));
    EXPECT_EQ(asked.kind, QStringLiteral("Tessaly Files (*.txt; *.dat;)"));
    EXPECT_EQ(asked.patterns, (QStringList{QStringLiteral("*.txt"), QStringLiteral("*.dat")}));
}

TEST_F(FileNamePickerTest, WithoutAFolderItStartsInTheDocuments) {
    m_dialogs.add({});
    m_picker.GetFileName({});
    EXPECT_EQ(m_dialogs.asked.last().folder,
              QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/');
    m_picker.setDefaultDir(QStringLiteral("/with/its/end/"));
    m_dialogs.add({});
    m_picker.GetFileName({});
    EXPECT_EQ(m_dialogs.asked.last().folder, QStringLiteral("/with/its/end/"));
}

TEST_F(FileNamePickerTest, TheProcessStaysWhereItWas) {
    const QTemporaryDir elsewhere;
    const QString before = QDir::currentPath();
    m_dialogs.meanwhile = [&] { QDir::setCurrent(elsewhere.path()); };
    m_dialogs.add(QStringLiteral("relative.txt"));
    EXPECT_EQ(QFileInfo(m_picker.GetFileName({})).path(),
              QFileInfo(elsewhere.path()).canonicalFilePath());
    EXPECT_EQ(QDir::currentPath(), before);
}

TEST_F(FileNamePickerTest, NamesThatWouldNameAnotherFileAreRefusedWithTheReason) {
    const QString broken = QFile::decodeName("/puzzles/caf\xe9.txt");
    const QStringList others{broken, QStringLiteral("/half") + QChar(0xd800),
                             QStringLiteral("/cut") + QChar(0) + QStringLiteral("off")};
    for (const QString& name : others) {
        m_dialogs.add(name);
        m_prompts.answers.push_back(answer::Ok);
        EXPECT_EQ(m_picker.GetFileName({}), QString());
        EXPECT_NE(m_prompts.shown.back().text.find("not valid UTF-8"), std::string::npos);
        EXPECT_EQ(m_prompts.shown.back().style, "vbok+vbcritical");
    }
    for (const QString& name :
         {QStringLiteral("/puzzles/café 日本.txt"), QStringLiteral("/ends ")}) {
        m_dialogs.add(name);
        EXPECT_EQ(m_picker.GetFileName({}), name);
    }
}

TEST_F(FileNamePickerTest, APathOf254CharactersIsTheLongest) {
    const QString longest = QChar(u'/') % QString(253, QLatin1Char('x'));
    m_dialogs.add(longest);
    EXPECT_EQ(m_picker.GetFileName({}), longest);
    m_dialogs.add(longest % QChar(u'x'));
    m_prompts.answers.push_back(answer::Ok);
    EXPECT_EQ(m_picker.GetFileName({}), QString());
    EXPECT_NE(m_prompts.shown.back().text.find("longer than 254"), std::string::npos);
}

TEST_F(FileNamePickerTest, ItsButtonFillsItAndItsEventsArePassedOn) {
    auto* button = m_picker.findChild<BoxControl*>(QStringLiteral("Command1"));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(m_picker.property("Caption"), QStringLiteral("..."));
    EXPECT_EQ(m_picker.sizeHint(), button->sizeHint());
    m_picker.resize(90, 50);
    m_picker.show();
    EXPECT_EQ(button->geometry(), m_picker.rect());

    const QSignalSpy clicked(&m_picker, &FNDialog::clicked);
    const QSignalSpy pressed(&m_picker, &FNDialog::mousePressed);
    const QSignalSpy released(&m_picker, &FNDialog::mouseReleased);
    const QSignalSpy keys(&m_picker, &FNDialog::keyPressed);
    QTest::mouseClick(button, Qt::RightButton);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(clicked.count(), 2);
    EXPECT_EQ(pressed.count(), 2);
    EXPECT_EQ(released.count(), 2);
    EXPECT_EQ(keys.count(), 1);

    m_picker.setProperty("Enabled", false);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 2);
}

/// The dialogs themselves, on a platform that has none of its own and shows Qt's.
class PlatformFileDialogsTest : public testing::Test {
protected:
    PlatformFileDialogsTest() {
        for (const char* name : {"one.txt", "two.DAT", "three.png"}) {
            QFile file(m_folder.filePath(QString::fromLatin1(name)));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }

    FileQuestion question() const {
        return {QStringLiteral("Load a Puzzle File"),
                m_folder.path() + u'/',
                QStringLiteral("Tessaly Files (*.txt;*.dat)"),
                {QStringLiteral("*.txt"), QStringLiteral("*.dat")}};
    }

    /// Does `what` to the dialog that opens next.
    template <class What>
    static void inTheDialog(What what) {
        QTimer::singleShot(0, qApp, [what] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            what(*dialog);
        });
    }

    static void type(QFileDialog& dialog, const QString& name) {
        auto* box = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        box->setText(name);
        QTest::keyClick(box, Qt::Key_Return);
    }

    QTemporaryDir m_folder;
};

TEST_F(PlatformFileDialogsTest, ListsTheFilesOfEveryPatternUnderTheKindAsWritten) {
    inTheDialog([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Load a Puzzle File"));
        EXPECT_EQ(
            dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->currentText().trimmed(),
            QStringLiteral("Tessaly Files (*.txt;*.dat)"));
        const auto* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
        const auto names = [list] {
            QStringList found;
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                found << list->model()->index(row, 0, list->rootIndex()).data().toString();
            found.sort();
            return found;
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return names().size() == 2; }));
        EXPECT_EQ(names(), (QStringList{QStringLiteral("one.txt"), QStringLiteral("two.DAT")}));
        dialog.reject();
    });
    EXPECT_EQ(askPlatform(question(), nullptr), QString());
}

TEST_F(PlatformFileDialogsTest, NeitherAsksAboutTheFileItself) {
    inTheDialog([](QFileDialog& dialog) { type(dialog, QStringLiteral("absent.txt")); });
    EXPECT_EQ(askPlatform(question(), nullptr), m_folder.filePath(QStringLiteral("absent.txt")));
    inTheDialog([](QFileDialog& dialog) { type(dialog, QStringLiteral("one.txt")); });
    EXPECT_EQ(askPlatform(question(), nullptr), m_folder.filePath(QStringLiteral("one.txt")));
}

} // namespace
} // namespace tessaly
