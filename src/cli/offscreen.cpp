#include "cli/offscreen.h"

namespace tessaly {

Offscreen::Offscreen() {
    if (QCoreApplication::instance() != nullptr)
        return;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    m_application.emplace(m_argc, m_argv);
}

} // namespace tessaly
