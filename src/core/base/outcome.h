#pragma once

#include <string>
#include <utility>

namespace tessaly {

/// How an operation on files or other outside things ended: well, or with a problem said in plain
/// words for the user, the system's own description included.
struct [[nodiscard]] Outcome {
    std::string problem;

    static Outcome done() { return {}; }
    static Outcome failed(std::string problem) { return {std::move(problem)}; }

    bool ok() const { return problem.empty(); }
};

} // namespace tessaly
