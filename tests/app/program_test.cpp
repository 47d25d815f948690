// The game as it is started: what its command line does, and what it says when it cannot start.

#include "ui/game_window.h"

#include <QProcess>

namespace tessaly::program_test {

struct Program : testing::Test {
    /// Runs the game to its end, without a display or with one that does not answer; its status.
    int start(const QStringList& arguments, const QString& display = {}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& variable : {u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(variable);
        environment.insert(u"DISPLAY"_s, display);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(TESSALY_GAME), arguments);
        EXPECT_TRUE(process.waitForFinished());
        complained = process.readAllStandardError().toStdString();
        return process.exitCode();
    }
    int draw(const QStringList& arguments) {
        return start(arguments + QStringList{u"--folder"_s, name, u"--screenshot"_s, picture},
                     u":4711"_s);
    }
    bool complainedOf(std::string_view what) const {
        return complained.find(what) != std::string::npos;
    }

    DataFolder folder;
    const QString name = QString::fromStdString(folder.path());
    const QString picture = name + u"window.png"_s;
    std::string complained;
};

TEST_F(Program, NeedsADisplayForAWindowOnly) {
    EXPECT_EQ(start({u"--version"_s}), 0);
    EXPECT_EQ(start({u"--nonsense"_s}), 2);
    EXPECT_EQ(start({u"--folder"_s, name}), 1);
    EXPECT_EQ(complained, "tessaly: there is no display to open a window on\n");
}

TEST_F(Program, DrawsThePuzzleThatIsAskedFor) {
    const QString file = QString::fromStdString(folder.puzzles("easy.txt"));
    QList<QImage> seen{QImage()};
    for (const QStringList& arguments :
         {QStringList(), {file}, {file, u"--puzzle"_s, u"2"_s}, {file, u"--developer"_s}}) {
        EXPECT_EQ(draw(arguments), 0) << complained;
        const QImage image(picture);
        EXPECT_FALSE(seen.contains(image)) << arguments.join(u' ').toStdString();
        seen << image;
    }
}

TEST_F(Program, SaysWhatItCouldNotReadOrWrite) {
    EXPECT_EQ(draw({u"/nowhere/at all.txt"_s}), 1);
    EXPECT_TRUE(complainedOf("Error reading file:"));
    EXPECT_EQ(start({u"--folder"_s, name, u"--screenshot"_s, u"/nowhere/a.png"_s}), 1);
    EXPECT_TRUE(complainedOf("/nowhere/a.png"));
    QFile::remove(picture);
    put(folder.path() + "all.col", "garbage");
    EXPECT_EQ(draw({}), 1);
    EXPECT_TRUE(complainedOf("all.col")) << complained;
    EXPECT_FALSE(QFile::exists(picture));
}

} // namespace tessaly::program_test
