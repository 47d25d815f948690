#pragma once

#include "cli/console.h"

namespace CLI {
class App;
}

namespace tessaly {

/// A subcommand of the command line: what it takes, and what it does.
class Command {
public:
    virtual ~Command() = default;
    /// Adds the subcommand with its options to the program; what is parsed goes into this object.
    virtual CLI::App& addTo(CLI::App& program) = 0;
    /// Carries it out; the exit status.
    virtual int run(const Console& console) = 0;
};

} // namespace tessaly
