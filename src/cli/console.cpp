#include "cli/console.h"

#include "core/files/file_descriptor.h"

#include <algorithm>
#include <ostream>
#include <string>

namespace tessaly {

int fail(const Console& console, std::string_view problem) {
    std::string line(problem);
    std::replace(line.begin(), line.end(), '\n', ' ');
    console.err << "tessaly-cli: " << line << '\n';
    return exit_status::Failed;
}

Outcome flushed(std::ostream& out) {
    return out.flush() ? Outcome::done() : fileProblem("standard output", "cannot be written");
}

} // namespace tessaly
