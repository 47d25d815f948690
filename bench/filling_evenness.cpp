// How evenly fillings are drawn: filling_evenness [COUNT]. For every pair of sides it compares how
// often the two hold the same digit in COUNT fillings (by default 1,000,000) with how often they do
// in fillings that are all equally likely, and tells the largest and the mean square difference in
// percentage points. The truth comes from twice as many weighted fillings, turned and mirrored in
// all ways; that of a pair is right to some 0.02 points, and chance alone makes a largest
// difference of 0.15 in 1,000,000 fillings.

#include "core/board/symmetry.h"
#include "core/solver/even_fill.h"
#include "core/solver/search_fill.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <utility>
#include <vector>

namespace tessaly {
namespace {

constexpr std::size_t SideCount = 72; // 42 that two hexagons share and 30 on the rim

/// A cell for each side.
std::vector<CellId> allSides() {
    std::vector<CellId> sides;
    std::copy_if(AllCells.begin(), AllCells.end(), std::back_inserter(sides), [](CellId cell) {
        return !SideLink[cell] || cell.position < SideLink[cell].position;
    });
    return sides;
}

/// For each pair of sides how often the two agree; counts or weights.
class Agreement {
public:
    void add(const HexagonWords& filling, const Symmetry& symmetry, double weight) {
        std::array<unsigned, SideCount> digits{};
        for (std::size_t i = 0; i < SideCount; ++i) {
            const CellId cell = symmetry.cell(m_sides[i]);
            digits[i] =
                word::byteAt(filling[static_cast<std::size_t>(cell.hexagon)], cell.position);
        }
        for (std::size_t i = 0; i < SideCount; ++i)
            for (std::size_t j = 0; j < i; ++j)
                m_sums[i][j] += digits[i] == digits[j] ? weight : 0;
        m_total += weight;
    }

    void printDifference(const char* name, const Agreement& truth) const {
        double largest = 0, squares = 0;
        for (std::size_t i = 0; i < SideCount; ++i)
            for (std::size_t j = 0; j < i; ++j) {
                const double points =
                    100 * (m_sums[i][j] / m_total - truth.m_sums[i][j] / truth.m_total);
                largest = std::max(largest, std::abs(points));
                squares += points * points;
            }
        constexpr double Pairs = SideCount * (SideCount - 1) / 2.0;
        std::printf("%s: at most %.3f points, root mean square %.4f\n", name, largest,
                    std::sqrt(squares / Pairs));
    }

private:
    std::vector<CellId> m_sides = allSides();
    std::array<std::array<double, SideCount>, SideCount> m_sums{};
    double m_total = 0;
};

void measure(long count) {
    constexpr const Symmetry& Unchanged = symmetry::All[1];
    Chance chance(1);
    Agreement truth;
    for (long i = 0; i < 2 * count; ++i) {
        const WeightedFilling filling = drawWeightedFilling(chance).value();
        for (const Symmetry& symmetry : symmetry::All)
            truth.add(filling.cells, symmetry, filling.weight);
    }
    // One arrangement twice: the table is not the complete one, so the search has to do.
    std::vector<Arrangement> twice = allArrangements();
    twice.push_back(twice.front());
    const SearchFill even(allArrangements());
    const SearchFill search(twice);
    for (const auto& [name, fill] : {std::pair("even", &even), {"search", &search}}) {
        Agreement found;
        for (long i = 0; i < count; ++i) {
            HexagonWords cells{};
            fill->fill(cells, chance);
            found.add(cells, Unchanged, 1);
        }
        found.printDifference(name, truth);
    }
}

} // namespace
} // namespace tessaly

int main(int argc, char** argv) {
    tessaly::measure(argc > 1 ? std::atol(argv[1]) : 1'000'000);
}
