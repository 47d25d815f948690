// Does one operation on files, so that a tracer can hurt it, and judges what came of it:
//
//     tessaly_faults make RECORDS FOLDER             fills a folder; -1 makes no puzzle file
//     tessaly_faults OPERATION FOLDER                says "done" or what is wrong
//     tessaly_faults judge OPERATION BEFORE AFTER WORK SAID

#include "core/files/file_access.h"

#include "faults/scene.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <iostream>
#include <unistd.h>

namespace tessaly::faults {
namespace {

/// A system call that does nothing but stand in the trace.
void mark(const char* name) {
    static_cast<void>(::access(name, F_OK));
}

const Operation* operationNamed(std::string_view name) {
    const auto found = std::find_if(operations().begin(), operations().end(),
                                    [name](const Operation& each) { return each.name == name; });
    return found == operations().end() ? nullptr : &*found;
}

Outcome perform(const Operation& operation, const Scene& scene) {
    const std::function<Outcome()> work = operation.prepare(scene);
    mark("/operation-begins");
    Outcome outcome = work();
    mark("/operation-ends");
    if (outcome.ok())
        say(STDOUT_FILENO, "done");
    return outcome;
}

Outcome run(const std::vector<std::string>& words) {
    if (words.size() == 3 && words[0] == "make")
        return Scene(words[2]).make(std::stoi(words[1]));
    if (words.empty())
        return Outcome::failed("wrong usage");
    const bool judges = words.size() == 6 && words[0] == "judge";
    const Operation* operation = operationNamed(judges ? words[1] : words[0]);
    if (operation && judges)
        return judge(*operation, Scene(words[2]), Scene(words[3]), Scene(words[4]),
                     test::contentOf(words[5]), std::cout);
    if (operation && words.size() == 2)
        return perform(*operation, Scene(words[1]));
    return Outcome::failed("wrong usage");
}

} // namespace
} // namespace tessaly::faults

int main(int argc, char** argv) {
    tessaly::surviveFileSizeLimit();
    const std::vector<std::string> words(argv + 1, argv + argc);
    const tessaly::Outcome outcome = tessaly::faults::run(words);
    if (!outcome.ok())
        tessaly::faults::say(STDERR_FILENO, outcome.problem);
    return outcome.ok() ? 0 : 1;
}
