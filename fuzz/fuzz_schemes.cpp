// The library of colour schemes: listing, loading, and the three changes.

#include "core/options/scheme_library.h"
#include "fuzz_target.h"
#include "support/temporary_folder.h"

using namespace tessaly;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::TemporaryFolder folder;
    test::put(folder / "all.col", fuzz::textOf(data, size));
    SchemeLibrary library(folder.path());
    fuzz::require(library.RefreshSchemeList().ok(), "a library can be listed");
    Appearance appearance;
    for (const std::string& name : library.names()) {
        const SchemeColours before = appearance.SchemeColours;
        fuzz::require(library.LoadScheme(name + ".col", appearance).ok() ||
                          appearance.SchemeColours == before,
                      "a scheme that cannot be loaded leaves the colours alone");
    }
    const SchemeColours colours{1, 2, 3};
    if (!library.names().empty())
        static_cast<void>(library.ReplaceScheme(library.names().front(), colours));
    // A name that is listed already is left alone: its record may carry it in capitals.
    if (!library.AddScheme("added", colours).ok())
        return 0;
    fuzz::require(library.LoadScheme("added.col", appearance).ok() &&
                      appearance.SchemeColours[0] == 1,
                  "an added scheme keeps its colours");
    fuzz::require(library.DeleteScheme("added").ok() &&
                      !library.LoadScheme("added.col", appearance).ok(),
                  "a deleted scheme is gone");
    return 0;
}
