// Does one operation on files, so that a tracer can hurt it, and judges what came of it:
//
//     tessaly_faults make RECORDS OPERATION FOLDER   fills a folder; -1 makes no puzzle file
//     tessaly_faults OPERATION FOLDER                fails with a message, or has done it
//     tessaly_faults judge OPERATION BEFORE AFTER WORK SAID

#include "core/files/file_access.h"
#include "faults/scene.h"

#include <algorithm>
#include <iostream>
#include <sys/uio.h>
#include <unistd.h>

namespace tessaly::faults {
namespace {

Outcome run(const std::vector<std::string>& words) {
    const bool makes = words.size() == 4 && words[0] == "make";
    const bool judges = words.size() == 6 && words[0] == "judge";
    const auto operation = std::ranges::find(operations(),
                                             words.at(makes    ? 2
                                                      : judges ? 1
                                                               : 0),
                                             &Operation::name);
    if (operation == operations().end() || (!makes && !judges && words.size() != 2))
        return Outcome::failed("wrong usage");
    if (makes) {
        const Scene scene{words[3]};
        Outcome made = scene.make(std::stoi(words[1]));
        operation->prepare(scene);
        return made;
    }
    if (judges) {
        std::string left;
        Outcome judged =
            judge(*operation, {words[2]}, {words[3]}, {words[4]}, words[5] == "done", left);
        std::cout << left << '\n';
        return judged;
    }
    // Calls that do nothing but stand in the trace.
    static_cast<void>(::access("/operation-begins", F_OK));
    Outcome outcome = operation->work({words[1]});
    static_cast<void>(::access("/operation-ends", F_OK));
    return outcome;
}

} // namespace
} // namespace tessaly::faults

int main(int argc, char** argv) {
    tessaly::surviveFileSizeLimit();
    const tessaly::Outcome outcome = tessaly::faults::run({argv + 1, argv + argc});
    std::string line = outcome.problem + '\n';
    const iovec piece{line.data(), line.size()};
    // Said by a call that no file is written with, for that one may be failing.
    return outcome.ok() ? 0 : ::writev(STDERR_FILENO, &piece, 1) > 0 ? 1 : 2;
}
