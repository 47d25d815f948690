#pragma once

#include "core/session/session.h"

#include <string>
#include <utility>

namespace tessaly {

/// Something that the player is told a single time. The play book remembers that; where there is
/// none it is known for this run.
class ToldOnce {
public:
    /// `setting` is its name in the book. The session must outlive it.
    ToldOnce(Session& session, std::string setting)
        : m_session(session)
        , m_setting(std::move(setting)) {}

    bool isTold() const {
        return m_told || (m_session.book && !m_session.book->setting(m_setting).empty());
    }
    Outcome remember() {
        m_told = true;
        return m_session.book ? m_session.book->set(m_setting, "told") : Outcome::done();
    }

private:
    Session& m_session;
    std::string m_setting;
    bool m_told = false;
};

} // namespace tessaly
