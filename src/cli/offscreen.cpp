#include "cli/offscreen.h"

#include <QHashSeed>

namespace tessaly {

Offscreen::Offscreen() {
    if (QCoreApplication::instance() != nullptr)
        return;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The order in which Qt writes the fonts of a document is that of a hash table.
    QHashSeed::setDeterministicGlobalSeed();
    m_application.emplace(m_argc, m_argv);
}

} // namespace tessaly
