#include <gtest/gtest.h>

#include <QApplication>

#include <iostream>

namespace {

/// What the offscreen platform says of every window and means nothing for a test.
bool isPlatformNoise(const QString& message) {
    return message.startsWith(QLatin1String("This plugin does not support "));
}

/// A warning of Qt's is a fault of ours: a bad connection, a painter used twice, a missing file.
void failOnWarning(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg || isPlatformNoise(message)) {
        std::cerr << message.toStdString() << '\n';
        return;
    }
    ADD_FAILURE_AT(context.file != nullptr ? context.file : "Qt", context.line)
        << message.toStdString();
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The printers of this machine are nothing for a test.
    if (qEnvironmentVariableIsEmpty("CUPS_SERVER"))
        qputenv("CUPS_SERVER", "/nonexistent");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    qInstallMessageHandler(failOnWarning);
    return RUN_ALL_TESTS();
}
