#pragma once

#include "core/play/busy.h"
#include "core/play/display.h"
#include "core/session/session.h"

namespace tessaly {

/// For as long as it lives the pointer is busy and other commands are refused.
class WhileAtWork {
public:
    WhileAtWork(Session& session, Display& display)
        : m_running(session.busy.commandRunning)
        , m_display(display) {
        m_display.showBusy(true);
    }
    ~WhileAtWork() { m_display.showBusy(false); }
    WhileAtWork(const WhileAtWork&) = delete;
    WhileAtWork& operator=(const WhileAtWork&) = delete;

private:
    WhileSet m_running;
    Display& m_display;
};

} // namespace tessaly
