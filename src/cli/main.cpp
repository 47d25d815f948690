#include "cli/program.h"
#include "core/files/file_access.h"

#include <csignal>
#include <iostream>
#include <unistd.h>

namespace {

// All that a signal handler may touch.
volatile std::sig_atomic_t interrupted = 0;

void interrupt(int) {
    interrupted = 1;
}

} // namespace

int main(int argc, char** argv) {
    tessaly::surviveFileSizeLimit();
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
    tessaly::StandardOutput buffer(STDOUT_FILENO);
    std::ostream out(&buffer);
    const tessaly::Console console{out, std::cerr, ::isatty(STDERR_FILENO) == 1,
                                   [] { return interrupted != 0; }};
    return tessaly::runProgram(argc, argv, console,
                               tessaly::allCommands(tessaly::drawingCommands()));
}
