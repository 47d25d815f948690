#pragma once

#include "cli/command.h"
#include "core/solver/library_tools.h"

namespace tessaly {

/// "variants": multiplies the puzzles of a file by mirroring and turning them.
class VariantsCommand : public Command {
public:
    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    ToolFiles m_files;
};

} // namespace tessaly
