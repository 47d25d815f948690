#include "ui/drawing/sink_device.h"

namespace tessaly {

SinkDevice::SinkDevice(const ContentSink& sink)
    : m_sink(sink) {
    setOpenMode(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 SinkDevice::writeData(const char* bytes, qint64 count) {
    constexpr qsizetype LargePiece = qsizetype{256} * 1024;
    if (!m_outcome.ok())
        return -1;
    m_held.append(bytes, count);
    if (m_held.size() >= LargePiece)
        pass();
    return m_outcome.ok() ? count : -1;
}

void SinkDevice::pass() {
    m_outcome = m_sink.write({m_held.constData(), static_cast<std::size_t>(m_held.size())});
    m_held.clear();
}

Outcome SinkDevice::finish() {
    if (m_outcome.ok())
        pass();
    return m_outcome;
}

} // namespace tessaly
