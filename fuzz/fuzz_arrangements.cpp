// The arrangement file. A table that is read has words of six letters only, each counted.

#include "core/board/arrangements.h"
#include "fuzz_target.h"

#include <numeric>

using namespace tessaly;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ArrangementTable table;
    if (!readArrangements(fuzz::textOf(data, size), table).ok())
        return 0;
    fuzz::require(table.wordCount >= 0 &&
                      static_cast<std::size_t>(table.wordCount) <= ArrangementTable::Capacity,
                  "the words fit into the table");
    int letters = 0;
    for (int word = 1; word <= table.wordCount; ++word)
        letters += static_cast<int>(table.words[static_cast<std::size_t>(word)].size());
    const int weights = std::accumulate(table.letterWeights.begin(), table.letterWeights.end(), 0);
    fuzz::require(letters == 6 * table.wordCount, "each word has six letters");
    fuzz::require(weights == letters, "each letter is counted");
    return 0;
}
