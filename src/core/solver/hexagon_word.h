#pragma once

#include "core/board/vocabulary.h"

#include <array>
#include <cstdint>

namespace tessaly {

/// What the six cells of a hexagon hold, a byte for each cell, so that one machine operation works
/// on all six:
///
///     byte      7   6   5   4   3   2   1   0
///     cell      -   -   6   5   4   3   2   1       (the two upper bytes are always 0)
///
/// and within each byte the digits that the cell may hold:
///
///     bit       7   6   5   4   3   2   1   0
///     meaning   *   0   6   5   4   3   2   1
///
/// A byte with one bit set is a settled cell, 0 is an empty one. Bit 6 is the number 0, which a
/// player may place although no solution holds it. Bit 7 marks a text that is not the ascending
/// list of its digits ("351", "11"); bit 6 goes with it, so that it never looks settled.
using HexagonWord = std::uint64_t;

/// One word for each hexagon; word 0 stays 0 and stands for what lies beyond the rim.
using HexagonWords = std::array<HexagonWord, HexagonCount + 1>;

namespace word {

inline constexpr HexagonWord Ones = 0x0101'0101'0101;
inline constexpr HexagonWord Flags = 0x80 * Ones;
inline constexpr HexagonWord Lows = 0x7F * Ones;
inline constexpr HexagonWord Digits = 0x3F * Ones;
inline constexpr unsigned ZeroBit = 0x40;
inline constexpr unsigned UnusualBits = 0xC0;

constexpr int shiftOf(int position) {
    return 8 * (position - 1);
}

constexpr unsigned byteAt(HexagonWord hexagon, int position) {
    return static_cast<unsigned>(hexagon >> shiftOf(position)) & 0xFFU;
}

constexpr HexagonWord maskOf(int position) {
    return HexagonWord{0xFF} << shiftOf(position);
}

constexpr HexagonWord repeat(unsigned byte) {
    return Ones * byte;
}

/// The top bit of every byte that is not 0.
constexpr HexagonWord flagNonZero(HexagonWord bytes) {
    return (((bytes & Lows) + Lows) | bytes) & Flags;
}

/// The top bit of every byte that has two or more bits.
constexpr HexagonWord flagSeveral(HexagonWord bytes) {
    return flagNonZero(bytes & ((bytes | Flags) - Ones));
}

/// The top bit of every byte that has exactly one bit.
constexpr HexagonWord flagSettled(HexagonWord bytes) {
    return flagNonZero(bytes) & ~flagSeveral(bytes);
}

/// Whole bytes from their top bits.
constexpr HexagonWord bytesOf(HexagonWord flags) {
    return (flags << 1) - (flags >> 7);
}

constexpr int countFlags(HexagonWord flags) {
    return static_cast<int>((((flags >> 7) * Ones) >> 40) & 0xFF);
}

/// The flags of cells 1 to 6 as bits 0 to 5.
constexpr unsigned gatherFlags(HexagonWord flags) {
    // Byte i's flag, moved to bit 8i, meets the factor's bit 40 - 7i at bit 40 + i.
    constexpr HexagonWord Factor = 0x0102'0408'1020;
    return static_cast<unsigned>(((flags >> 7) * Factor) >> 40) & 0x3FU;
}

/// The union of the six bytes.
constexpr unsigned unite(HexagonWord bytes) {
    const HexagonWord three = bytes | (bytes >> 24);
    return static_cast<unsigned>(three | (three >> 8) | (three >> 16)) & 0xFFU;
}

/// The bits that exactly one of the six bytes has.
constexpr unsigned onlyOnce(HexagonWord bytes) {
    const HexagonWord either = bytes | (bytes >> 24);
    const HexagonWord both = bytes & (bytes >> 24);
    const HexagonWord first = either;
    const HexagonWord second = either >> 8;
    const HexagonWord third = either >> 16;
    const HexagonWord several =
        both | (both >> 8) | (both >> 16) | (first & second) | ((first | second) & third);
    return static_cast<unsigned>((first | second | third) & ~several) & 0xFFU;
}

/// The bits that exactly two of the six bytes have.
constexpr unsigned exactlyTwice(HexagonWord bytes) {
    const HexagonWord odd = bytes ^ (bytes >> 24);
    const HexagonWord both = bytes & (bytes >> 24);
    const HexagonWord a = odd;
    const HexagonWord b = odd >> 8;
    const HexagonWord c = odd >> 16;
    const HexagonWord one = a ^ b ^ c;
    const HexagonWord carry = (a & b) | ((a ^ b) & c);
    const HexagonWord d = both;
    const HexagonWord e = both >> 8;
    const HexagonWord f = both >> 16;
    // Each of these four stands for two: exactly one of them, and no odd one left.
    const HexagonWord any = carry | d | e | f;
    const HexagonWord more = (carry & (d | e | f)) | (d & (e | f)) | (e & f);
    return static_cast<unsigned>(any & ~more & ~one) & 0xFFU;
}

static_assert(flagSeveral(0xC0'40'00'03'20'3F) == 0x80'00'00'80'00'80);
static_assert(flagSettled(0xC0'40'00'03'20'3F) == 0x00'80'00'00'80'00);
static_assert(bytesOf(0x80'00'00'80'00'80) == 0xFF'00'00'FF'00'FF);
static_assert(countFlags(0x80'00'00'80'00'80) == 3);
static_assert(gatherFlags(0x80'00'00'80'00'80) == 0b10'0101 && gatherFlags(Flags) == 0x3F);
static_assert(unite(0x10'00'02'00'00'01) == 0x13);
static_assert(onlyOnce(0x11'09'22'04'00'3A) == 0x04);
static_assert(exactlyTwice(0x11'09'22'04'00'3A) == 0x3B);
static_assert(exactlyTwice(0x03'03'03'02'04'04) == 0x04);

} // namespace word
} // namespace tessaly
