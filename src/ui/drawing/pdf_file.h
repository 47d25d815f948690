#pragma once

#include "core/files/file_descriptor.h"
#include "core/options/appearance.h"
#include "core/output/print_job.h"

#include <QByteArray>
#include <QIODevice>

#include <filesystem>
#include <functional>

class QPainter;

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

/// Called before each page is painted with the number of those before it and of all; when it
/// answers false the printing ends.
using GoOn = std::function<bool(int page, int pageCount)>;

/// How painting ended. When it was stopped nothing is wrong, but not all pages are there.
struct PrintResult {
    Outcome outcome;
    bool stopped = false;

    bool isComplete() const { return outcome.ok() && !stopped; }
};

/// Lets the painter of a page count in points.
void scaleToPoints(QPainter& painter);

/// Writes a job's pages into a PDF file, with its fonts in it. The file is there, whole, when the
/// result is complete; otherwise the path holds what it held before.
PrintResult writePdf(const std::filesystem::path& path, PaperSize paper, const PrintJob& job,
                     const Appearance& appearance, const GoOn& goOn, const LockWait& wait = {});

} // namespace tessaly
