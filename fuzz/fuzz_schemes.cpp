// The library of colour schemes: listing, loading, and the three changes.

#include "core/files/file_access.h"
#include "core/options/scheme_library.h"
#include "fuzz_target.h"
#include "support/temporary_folder.h"

#include <algorithm>

using namespace tessaly;

namespace {

bool lists(const SchemeLibrary& library, const std::string& name) {
    const auto& names = library.names();
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Every listed scheme is loaded; a failure leaves the colours alone.
void loadAll(const SchemeLibrary& library) {
    for (const std::string& name : library.names()) {
        Appearance appearance;
        const Appearance before = appearance;
        if (!library.LoadScheme(name + ".col", appearance).ok())
            fuzz::require(appearance.SchemeColours == before.SchemeColours,
                          "a scheme that cannot be loaded leaves the colours alone");
    }
}

/// A name that is listed already is left alone: its record may carry the name in capitals, and such
/// a record is loaded but never deleted.
void addAndDelete(SchemeLibrary& library, const SchemeColours& colours) {
    if (!library.AddScheme("added", colours).ok())
        return;
    Appearance appearance;
    fuzz::require(lists(library, "added"), "an added scheme is listed");
    fuzz::require(library.LoadScheme("added.col", appearance).ok(), "an added scheme loads");
    fuzz::require(appearance.SchemeColours[0] == 1, "an added scheme keeps its colours");
    fuzz::require(library.DeleteScheme("added").ok(), "a scheme can be deleted");
    fuzz::require(!lists(library, "added"), "a deleted scheme is not listed");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::TemporaryFolder folder;
    test::put(folder / "all.col", fuzz::textOf(data, size));
    SchemeLibrary library(folder.path().string() + "/");
    fuzz::require(library.RefreshSchemeList().ok(), "a library can be listed");
    loadAll(library);

    const SchemeColours colours{1, 2, 3};
    if (!library.names().empty())
        static_cast<void>(library.ReplaceScheme(library.names().front(), colours));
    addAndDelete(library, colours);
    return 0;
}
