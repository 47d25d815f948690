// The arrangement file. A table that is read holds every arrangement, each letter counted.

#include "core/board/arrangements.h"
#include "fuzz_target.h"

using namespace tessaly;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ArrangementTable table;
    const bool isRead = readArrangements(fuzz::textOf(data, size), table).ok();
    fuzz::require(table.wordCount == (isRead ? ArrangementCount : 0), "every word or none");
    for (std::size_t letter = 0; letter < 6; ++letter)
        fuzz::require(table.letterWeights[letter] == table.wordCount, "each letter is counted");
    return 0;
}
