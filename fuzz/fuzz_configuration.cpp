// The configuration file. Whatever was read, saving and reading it again gives the same.

#include "core/session/configuration.h"
#include "fuzz_target.h"
#include "support/temporary_folder.h"

using namespace tessaly;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::TemporaryFolder folder;
    static const std::string path = folder / "tessaly.cfg";
    test::put(path, fuzz::textOf(data, size));
    Configuration read;
    Configuration again;
    fuzz::require(ReadcfgFile(path, read).ok(), "any configuration can be read");
    fuzz::require(SavecfgFile(path, read).ok() && ReadcfgFile(path, again).ok() && again == read,
                  "a configuration reads as it was saved");
    return 0;
}
