#include "cli/program.h"
#include "core/files/file_access.h"

#include <csignal>
#include <exception>
#include <iostream>
#include <new>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

// All that a signal handler may touch.
volatile std::sig_atomic_t caught = 0;

void interrupt(int signal) {
    caught = signal;
}

/// What was ignored from the start, as behind nohup, stays so. A call that waits for input is not
/// taken up again, and whoever asks a second time is not made to wait.
void catchInterrupts() {
    struct sigaction action {};
    action.sa_handler = interrupt;
    action.sa_flags = SA_RESETHAND;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before {};
        if (::sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            ::sigaction(signal, &action, nullptr);
    }
}

/// Ends as whoever started the program expects of one that was interrupted.
void dieOfSignal() {
    std::signal(caught, SIG_DFL);
    static_cast<void>(std::raise(caught));
}

int terminalColumns() {
    winsize size{};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

/// What nothing else has caught, a lack of memory mostly, ends in one line too.
int run(int argc, const char* const* argv, const tessaly::Console& console) {
    try {
        return tessaly::runProgram(argc, argv, console,
                                   tessaly::allCommands(tessaly::drawingCommands()));
    } catch (const std::bad_alloc&) {
        return tessaly::fail(console, "there is not enough memory");
    } catch (const std::exception& problem) {
        return tessaly::fail(console, problem.what());
    }
}

} // namespace

int main(int argc, char** argv) {
    tessaly::surviveFileSizeLimit();
    catchInterrupts();
    tessaly::StandardOutput buffer(STDOUT_FILENO);
    std::ostream out(&buffer);
    const tessaly::Console console{out, std::cerr, ::isatty(STDERR_FILENO) == 1,
                                   [] { return caught != 0; }, terminalColumns()};
    const int status = run(argc, argv, console);
    if (caught != 0 && status != tessaly::exit_status::Done)
        dieOfSignal();
    return status;
}
