#pragma once

#include "core/base/outcome.h"
#include "core/base/prompts.h"

#include <filesystem>
#include <iosfwd>
#include <string>

class QWidget;

namespace tessaly {

/// Says on a stream what a message box would say, and waits for nobody.
class PrintedPrompts : public Prompts {
public:
    explicit PrintedPrompts(std::ostream& out)
        : m_out(out) {}

    int message(std::string_view text, std::string_view style) override;
    std::string ask(std::string_view) override { return {}; }
    bool saidAnything() const { return m_saidAnything; }

private:
    std::ostream& m_out;
    bool m_saidAnything = false;
};

/// Writes the picture of a window to a PNG file.
Outcome writeScreenshot(QWidget& window, const std::filesystem::path& path);

} // namespace tessaly
