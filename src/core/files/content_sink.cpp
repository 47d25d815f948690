#include "core/files/content_sink.h"

#include <unistd.h>

namespace tessaly {

Outcome ContentSink::write(std::string_view piece) const {
    while (!piece.empty()) {
        const auto written =
            retried([&] { return ::write(m_file.get(), piece.data(), piece.size()); });
        if (written < 0)
            return fileProblem(m_path, "cannot be written");
        piece.remove_prefix(static_cast<std::size_t>(written));
    }
    return Outcome::done();
}

} // namespace tessaly
