#pragma once

#include "core/files/content_sink.h"

#include <QByteArray>
#include <QIODevice>

namespace tessaly {

/// Passes on to a file what Qt writes. Qt does not look whether that worked: `finish` tells.
class SinkDevice : public QIODevice {
public:
    /// Open for writing from the start. The sink must outlive the device.
    explicit SinkDevice(const ContentSink& sink);

    bool isSequential() const override { return true; }
    /// Writes what is still held back; how all writing went.
    Outcome finish();

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 count) override;

private:
    void pass();

    const ContentSink& m_sink;
    QByteArray m_held;
    Outcome m_outcome;
};

} // namespace tessaly
