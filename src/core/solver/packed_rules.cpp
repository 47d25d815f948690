#include "core/solver/packed_rules.h"

#include "core/board/digit_set.h"
#include "core/board/tables.h"
#include "core/solver/deduction.h"

#include <algorithm>
#include <bit>

namespace tessaly {
namespace {

/// Two cells of one hexagon that touch an xcell.
struct XcellPart {
    int hexagon = 0;
    HexagonWord mask = 0;
};
using XcellParts = std::array<XcellPart, 3>;

constexpr std::array<XcellParts, XcellCount + 1> makeXcellParts() {
    std::array<XcellParts, XcellCount + 1> table{};
    for (std::size_t xcell = 1; xcell <= XcellCount; ++xcell)
        for (std::size_t i = 0; i < XcellTable[xcell].size(); ++i) {
            XcellPart& part = table[xcell][i / 2];
            part.hexagon = XcellTable[xcell][i].hexagon;
            part.mask |= word::maskOf(XcellTable[xcell][i].position);
        }
    return table;
}

constexpr std::array<XcellParts, XcellCount + 1> XcellPartTable = makeXcellParts();

/// One bit for each digit set, set for those of three digits.
constexpr std::uint64_t makeThreeDigitSets() {
    std::uint64_t sets = 0;
    for (unsigned bits = 0; bits <= DigitSet::all().bits(); ++bits)
        if (DigitSet::fromBits(bits).size() == 3)
            sets |= std::uint64_t{1} << bits;
    return sets;
}

constexpr std::uint64_t ThreeDigitSets = makeThreeDigitSets();

/// The cells of `first` up to and with the first flagged one, those of `second` behind it.
HexagonWord upToFlag(HexagonWord flags, HexagonWord first, HexagonWord second) {
    const HexagonWord lowest = flags & (~flags + 1);
    const HexagonWord upTo = (lowest << 1) - 1;
    return (first & upTo) | (second & ~upTo);
}

HexagonWord lowestBitOfEachByte(HexagonWord bytes) {
    const HexagonWord lessOne = (bytes | word::Flags) - word::Ones;
    return bytes & ~lessOne;
}

} // namespace

PackedRules::PackedRules(const HexagonWords& cells, LeftOut leftOut, const Texts* texts)
    : m_board(cells)
    , m_leftOut(leftOut)
    , m_texts(texts) {}

void PackedRules::FixNeighbours() {
    m_board.agendas().neighbours.work([this](int hexagon) {
        copyAcross(hexagon);
        return true;
    });
}

void PackedRules::copyAcross(int hexagon) {
    if (m_board.isSettled(hexagon) || hexagon == m_leftOut.skipHex)
        return;
    const HexagonWord across = m_board.settledAcross(hexagon);
    const HexagonWord copied = word::flagNonZero(across) & m_board.openFlags(hexagon);
    if (copied == 0)
        return;
    const HexagonWord mask = word::bytesOf(copied);
    m_board.set(hexagon, (m_board.hexagon(hexagon) & ~mask) | (across & mask));
    counter += word::countFlags(copied);
}

void PackedRules::GetCandidates() {
    m_board.agendas().candidates.work([this](int hexagon) { return fixCandidates(hexagon); });
}

/// Whether the rule may go on: no cell was emptied.
bool PackedRules::fixCandidates(int hexagon) {
    if (m_board.isSettled(hexagon) || hexagon == m_leftOut.skipHex)
        return true;
    const HexagonWord before = m_board.hexagon(hexagon);
    const HexagonWord inner =
        m_board.openFlags(hexagon) & InnerSideFlags[static_cast<std::size_t>(hexagon)];
    const HexagonWord across = m_board.settledAcross(hexagon);
    const HexagonWord copied = word::flagNonZero(across) & inner;
    const HexagonWord free =
        word::Digits & ~(m_board.placed(hexagon) | m_board.placedAcross(hexagon));
    const HexagonWord innerMask = word::bytesOf(inner);
    const HexagonWord copiedMask = word::bytesOf(copied);
    const HexagonWord after =
        (before & ~innerMask) | (across & copiedMask) | (free & innerMask & ~copiedMask);
    const HexagonWord changed = word::flagNonZero(before ^ after);
    if (changed == 0)
        return true;
    const HexagonWord emptied = changed & ~word::flagNonZero(after);
    if (emptied != 0) {
        m_board.set(hexagon, upToFlag(emptied, after, before));
        m_board.agendas().candidates.add(1U << hexagon);
        counter = -1;
        return false;
    }
    m_board.set(hexagon, after);
    counter += word::countFlags(changed);
    return true;
}

void PackedRules::FixSingles() {
    m_board.agendas().singles.work([this](int hexagon) {
        settleSingles(hexagon);
        return true;
    });
}

void PackedRules::settleSingles(int hexagon) {
    if (m_board.isSettled(hexagon) || hexagon == m_leftOut.skipHex)
        return;
    const HexagonWord cells = m_board.hexagon(hexagon);
    const HexagonWord singles = cells & word::repeat(word::onlyOnce(cells & word::Digits)) &
                                word::bytesOf(m_board.openFlags(hexagon));
    if (singles == 0)
        return;
    const HexagonWord fixed = word::flagNonZero(singles);
    const HexagonWord mask = word::bytesOf(fixed);
    m_board.set(hexagon, (cells & ~mask) | lowestBitOfEachByte(singles));
    counter += word::countFlags(fixed);
}

void PackedRules::FixXcellPairs() {
    m_board.agendas().xcells.work([this](int xcell) {
        if (!admitsThreeDigits(xcell) || digitsInTwoPlaces(xcell) == 0)
            return true;
        const auto placements = examineXcell(xcell);
        for (const XcellPlacement& placement : placements.all())
            place(placement);
        return true;
    });
}

/// Whether the rule looks at an xcell at all.
bool PackedRules::admitsThreeDigits(int xcell) const {
    HexagonWord open = 0;
    HexagonWord cells = 0;
    bool isBlank = false;
    for (const XcellPart& part : XcellPartTable[static_cast<std::size_t>(xcell)]) {
        open |= m_board.openFlags(part.hexagon) & part.mask;
        cells |= m_board.hexagon(part.hexagon) & part.mask;
        isBlank |= part.hexagon == m_leftOut.blankHex;
    }
    const unsigned digits = word::unite(cells) & DigitSet::all().bits();
    return open != 0 && !isBlank && ((ThreeDigitSets >> digits) & 1) != 0;
}

/// The digits that the six entries name exactly twice.
unsigned PackedRules::digitsInTwoPlaces(int xcell) const {
    HexagonWord cells = 0;
    for (CellId cell : XcellTable[static_cast<std::size_t>(xcell)])
        cells = (cells << 8) | word::byteAt(m_board.hexagon(cell.hexagon), cell.position);
    if ((cells & word::Flags) == 0)
        return word::exactlyTwice(cells);
    unsigned digits = 0;
    for (int digit = 1; digit <= CellCount; ++digit) {
        int total = 0;
        for (CellId cell : XcellTable[static_cast<std::size_t>(xcell)])
            total += occurrences(cell, digit);
        digits |= total == 2 ? DigitSet::of(digit).bits() : 0;
    }
    return digits;
}

XcellFinding PackedRules::examineXcell(int xcell) const {
    XcellFinding finding;
    finding.threeDigits = admitsThreeDigits(xcell);
    if (!finding.threeDigits)
        return finding;
    for (DigitSet rest = DigitSet::fromBits(digitsInTwoPlaces(xcell)); !rest.empty();
         rest = rest.withoutFirst())
        for (CellId cell : XcellTable[static_cast<std::size_t>(xcell)])
            for (int n = occurrences(cell, rest.first()); n > 0; --n)
                finding.placements[static_cast<std::size_t>(finding.count++)] = {cell,
                                                                                 rest.first()};
    return finding;
}

/// How often a cell's entry names a digit; more than once only in an unusual text.
int PackedRules::occurrences(CellId cell, int digit) const {
    const unsigned byte = word::byteAt(m_board.hexagon(cell.hexagon), cell.position);
    if ((byte & word::UnusualBits) == word::UnusualBits && m_texts != nullptr) {
        const std::string& text = (*m_texts)[cell];
        return static_cast<int>(
            std::count(text.begin(), text.end(), static_cast<char>('0' + digit)));
    }
    return DigitSet::fromBits(byte).contains(digit) ? 1 : 0;
}

bool PackedRules::place(XcellPlacement placement) {
    const HexagonWord mask = word::maskOf(placement.cell.position);
    if ((word::flagSeveral(m_board.hexagon(placement.cell.hexagon)) & mask) == 0)
        return false;
    settle(placement.cell, placement.digit);
    ++counter;
    return true;
}

void PackedRules::settle(CellId cell, int digit) {
    const HexagonWord others = m_board.hexagon(cell.hexagon) & ~word::maskOf(cell.position);
    const HexagonWord bit = DigitSet::of(digit).bits();
    m_board.set(cell.hexagon, others | (bit << word::shiftOf(cell.position)));
}

int CheckHexagons(const PackedBoard& board, int leftOut) {
    int settledCount = 0;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        if (hexagon == leftOut)
            continue;
        const HexagonWord settled = word::flagNonZero(board.settled(hexagon));
        const int count = word::countFlags(settled);
        const bool hasEmptyCell = word::flagNonZero(board.hexagon(hexagon)) != word::Flags;
        if (hasEmptyCell || std::popcount(word::unite(board.settled(hexagon))) != count)
            return Contradictory;
        settledCount += count;
    }
    constexpr int AllButOneHexagon = BoardCellCount - CellCount;
    return settledCount == AllButOneHexagon ? SettledAndSound : Unsettled;
}

} // namespace tessaly
