// The game as it is started: what its command line does, and what it says when it cannot start.

#include "ui/game_window.h"

#include <QImage>
#include <QProcess>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

struct Ended {
    int status;
    QString said;
    QString complained;
};

/// Runs the game to its end, without a display or with one that does not answer.
Ended start(const QStringList& arguments, const QString& display = {}) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : {u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(name);
    environment.insert(u"DISPLAY"_s, display);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TESSALY_GAME), arguments);
    EXPECT_TRUE(process.waitForFinished());
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

class Program : public testing::Test {
protected:
    Ended draw(QStringList arguments) const {
        arguments << u"--folder"_s << folderName() << u"--screenshot"_s << picture();
        return start(arguments, u":4711"_s);
    }

    QString folderName() const { return QString::fromStdString(folder.path()); }
    QString picture() const { return folderName() + u"window.png"_s; }
    QImage drawn() const { return QImage(picture()); }

    DataFolder folder;
};

TEST_F(Program, NeedsADisplayForAWindowOnly) {
    EXPECT_EQ(start({u"--version"_s}).status, 0);
    EXPECT_EQ(start({u"--nonsense"_s}).status, 2);
    const Ended ended = start({u"--folder"_s, folderName()});
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.complained, u"tessaly: there is no display to open a window on\n"_s);
}

TEST_F(Program, DrawsThePuzzleThatIsAskedFor) {
    const QString file = QString::fromStdString(folder.puzzles("easy.txt"));
    EXPECT_EQ(draw({}).status, 0);
    const QImage empty = drawn();
    EXPECT_EQ(draw({file}).status, 0);
    const QImage first = drawn();
    EXPECT_EQ(draw({file, u"--puzzle"_s, u"2"_s}).status, 0);
    const QImage second = drawn();
    EXPECT_FALSE(empty.isNull());
    EXPECT_NE(first, empty);
    EXPECT_NE(second, first);
    EXPECT_EQ(draw({file, u"--developer"_s}).status, 0);
    EXPECT_NE(drawn(), first);
}

TEST_F(Program, SaysWhatItCouldNotReadOrWrite) {
    for (const char* name : {"all.col", "hexabinx.txt"}) {
        const DataFolder broken;
        const QStringList arguments{u"--folder"_s, QString::fromStdString(broken.path()),
                                    u"--screenshot"_s, picture()};
        test::put(broken.path() + name, "garbage");
        EXPECT_TRUE(start(arguments).complained.contains(QLatin1String(name)));
        std::filesystem::remove(broken.path() + name);
        const Ended ended = start(arguments);
        EXPECT_EQ(ended.status, 1);
        EXPECT_TRUE(ended.complained.contains(QLatin1String(name)));
        EXPECT_TRUE(drawn().isNull());
    }
    Ended ended = draw({u"/nowhere/at all.txt"_s});
    EXPECT_EQ(ended.status, 1);
    EXPECT_TRUE(ended.complained.contains(u"Error reading file:"_s));
    ended = start({u"--folder"_s, folderName(), u"--screenshot"_s, u"/nowhere/a.png"_s});
    EXPECT_EQ(ended.status, 1);
    EXPECT_TRUE(ended.complained.contains(u"/nowhere/a.png"_s));
}

} // namespace
} // namespace tessaly
