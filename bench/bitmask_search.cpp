#include "bitmask_search.h"

#include "core/board/digit_set.h"
#include "core/board/tables.h"

#include <algorithm>
#include <bit>

namespace tessaly::plain {
namespace {

constexpr unsigned lowestBit(unsigned bits) {
    return bits & (~bits + 1);
}

} // namespace

BitmaskSearch::BitmaskSearch() {
    for (CellId cell : AllCells)
        if (!SideLink[cell] || SideLink[cell].hexagon > cell.hexagon)
            m_open.push_back({cell, SideLink[cell]});
}

BitmaskSearch::BitmaskSearch(const Board& board)
    : BitmaskSearch() {
    const auto isGiven = [&board](CellId cell) {
        return cell && board.FixedCell[cell] && cell.hexagon != board.BlankHex;
    };
    for (const Place& place : m_open)
        if (isGiven(place.cell) || isGiven(place.across))
            put(place, DigitSet::fromText(board.SolNum[place.cell]).bits());
    std::erase_if(m_open,
                  [&](const Place& place) { return isGiven(place.cell) || isGiven(place.across); });
}

unsigned BitmaskSearch::choices(const Place& place) const {
    const auto used = [this](CellId cell) {
        return m_used[static_cast<std::size_t>(cell.hexagon)];
    };
    return DigitSet::all().bits() & ~used(place.cell) & (place.across ? ~used(place.across) : ~0U);
}

void BitmaskSearch::put(const Place& place, unsigned bit) {
    for (CellId cell : {place.cell, place.across})
        if (cell) {
            m_used[static_cast<std::size_t>(cell.hexagon)] |= bit;
            m_bits[cell] = bit;
        }
}

void BitmaskSearch::take(const Place& place, unsigned bit) {
    for (CellId cell : {place.cell, place.across})
        if (cell)
            m_used[static_cast<std::size_t>(cell.hexagon)] &= ~bit;
}

BitmaskSearch::Place BitmaskSearch::takeBest() {
    auto best = m_open.begin();
    int fewest = CellCount + 1;
    for (auto at = m_open.begin(); at != m_open.end(); ++at) {
        const int size = std::popcount(choices(*at));
        if (size < fewest) {
            fewest = size;
            best = at;
        }
        if (size <= 1)
            break;
    }
    const Place place = *best;
    *best = m_open.back();
    m_open.pop_back();
    return place;
}

bool BitmaskSearch::fill(Chance& chance) {
    if (m_open.empty())
        return true;
    const Place place = takeBest();
    for (unsigned rest = choices(place); rest != 0;) {
        unsigned drawn = rest;
        for (auto skip = chance.below(static_cast<std::uint32_t>(std::popcount(rest))); skip > 0;
             --skip)
            drawn &= drawn - 1;
        const unsigned bit = lowestBit(drawn);
        rest &= ~bit;
        put(place, bit);
        if (fill(chance))
            return true;
        take(place, bit);
    }
    m_open.push_back(place);
    return false;
}

int BitmaskSearch::count(int limit) {
    if (m_open.empty())
        return 1;
    const Place place = takeBest();
    int found = 0;
    for (unsigned rest = choices(place); rest != 0 && found < limit; rest &= rest - 1) {
        const unsigned bit = lowestBit(rest);
        put(place, bit);
        found += count(limit - found);
        take(place, bit);
    }
    m_open.push_back(place);
    return found;
}

} // namespace tessaly::plain
