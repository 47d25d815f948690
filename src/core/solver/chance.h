#pragma once

#include <array>
#include <cstdint>
#include <iterator>
#include <utility>

namespace tessaly {

/// A source of random numbers that gives the same numbers from the same seed on every machine and
/// compiler; the standard library's distributions do not.
///
/// The numbers come from xoshiro256** (David Blackman and Sebastiano Vigna, "Scrambled linear
/// pseudorandom number generators", ACM Transactions on Mathematical Software 47, 2021); its state
/// is filled by SplitMix64 (Guy Steele, Doug Lea and Christine Flood, "Fast splittable pseudorandom
/// number generators", OOPSLA 2014).
class Chance {
public:
    /// The numbers of `seed`; each `stream` of one seed is a sequence of its own.
    explicit Chance(std::uint64_t seed, std::uint64_t stream = 0);

    /// A seed from the system's entropy and clock.
    static std::uint64_t freshSeed();

    std::uint64_t next() {
        const std::uint64_t result = rotate(m_state[1] * 5, 7) * 9;
        const std::uint64_t shifted = m_state[1] << 17;
        m_state[2] ^= m_state[0];
        m_state[3] ^= m_state[1];
        m_state[1] ^= m_state[2];
        m_state[0] ^= m_state[3];
        m_state[2] ^= shifted;
        m_state[3] = rotate(m_state[3], 45);
        return result;
    }

    /// A whole number from 0 to `bound` - 1, each equally likely; `bound` must not be 0. (Daniel
    /// Lemire, "Fast random integer generation in an interval", ACM Transactions on Modeling and
    /// Computer Simulation 29, 2019.)
    std::uint32_t below(std::uint32_t bound);

    /// A number from 0 up to but not 1, a whole number over 2 to the power of 53.
    double unit() { return static_cast<double>(next() >> 11) * 0x1p-53; }

    /// Puts the items into random order, each order equally likely (Fisher and Yates).
    template <class Range>
    void shuffle(Range&& items) {
        for (std::size_t left = std::size(items); left > 1; --left)
            std::swap(items[left - 1], items[below(static_cast<std::uint32_t>(left))]);
    }

private:
    static constexpr std::uint64_t rotate(std::uint64_t value, int by) {
        return (value << by) | (value >> (64 - by));
    }

    std::array<std::uint64_t, 4> m_state{};
};

} // namespace tessaly
