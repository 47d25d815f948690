#pragma once

#include "cli/command.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tessaly {

/// "create": makes puzzles, to standard output or appended to a file.
class CreateCommand : public Command {
public:
    static constexpr std::int64_t MaxCount = 10'000'000;

    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    std::string m_difficulty = "random";
    std::int64_t m_count = 0;
    std::optional<std::uint64_t> m_seed;
    int m_jobs = 0;
    std::string m_output;
};

} // namespace tessaly
