#include "cli/program.h"
#include "core/files/file_access.h"

#include <csignal>
#include <iostream>
#include <unistd.h>

namespace {

// All that a signal handler may touch.
volatile std::sig_atomic_t caught = 0;

void interrupt(int signal) {
    caught = signal;
}

/// What was ignored from the start, as behind nohup, stays so.
void catchInterrupts() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        if (std::signal(signal, interrupt) == SIG_IGN)
            std::signal(signal, SIG_IGN);
}

/// Ends as whoever started the program expects of one that was interrupted.
void dieOfSignal() {
    std::signal(caught, SIG_DFL);
    static_cast<void>(std::raise(caught));
}

} // namespace

int main(int argc, char** argv) {
    tessaly::surviveFileSizeLimit();
    catchInterrupts();
    tessaly::StandardOutput buffer(STDOUT_FILENO);
    std::ostream out(&buffer);
    const tessaly::Console console{out, std::cerr, ::isatty(STDERR_FILENO) == 1,
                                   [] { return caught != 0; }};
    const int status =
        tessaly::runProgram(argc, argv, console, tessaly::allCommands(tessaly::drawingCommands()));
    if (status == tessaly::exit_status::Interrupted)
        dieOfSignal();
    return status;
}
