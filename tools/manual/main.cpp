// Draws the manual's pictures anew: tessaly_manual FOLDER, which is data/manual of the sources. A
// test compares what lies there with what this would draw.

#include "manual/drawings.h"

#include <QApplication>

#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: tessaly_manual FOLDER\n";
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const auto& [name, picture] : tessaly::manual::drawings()) {
        const QString path =
            QString::fromLocal8Bit(argv[1]) + QLatin1Char('/') + name + QStringLiteral(".png");
        if (!picture.save(path)) {
            std::cerr << path.toStdString() << ": cannot be written\n";
            return 1;
        }
    }
    return 0;
}
