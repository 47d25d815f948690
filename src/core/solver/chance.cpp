#include "core/solver/chance.h"

#include <chrono>
#include <random>

namespace tessaly {
namespace {

constexpr std::uint64_t Golden = 0x9E37'79B9'7F4A'7C15;

/// The mixing function of SplitMix64.
constexpr std::uint64_t mix(std::uint64_t value) {
    value = (value ^ (value >> 30)) * 0xBF58'476D'1CE4'E5B9;
    value = (value ^ (value >> 27)) * 0x94D0'49BB'1331'11EB;
    return value ^ (value >> 31);
}

} // namespace

Chance::Chance(std::uint64_t seed, std::uint64_t stream) {
    std::uint64_t at = mix(mix(seed + Golden) ^ stream);
    for (std::uint64_t& word : m_state) {
        at += Golden;
        word = mix(at);
    }
}

std::uint64_t Chance::freshSeed() {
    std::random_device entropy;
    const auto clock = std::chrono::system_clock::now().time_since_epoch().count();
    const std::uint64_t drawn = (std::uint64_t{entropy()} << 32) | entropy();
    return drawn ^ mix(static_cast<std::uint64_t>(clock));
}

std::uint32_t Chance::below(std::uint32_t bound) {
    const auto draw = [this, bound] { return (next() >> 32) * bound; };
    std::uint64_t product = draw();
    if (static_cast<std::uint32_t>(product) < bound) {
        const std::uint32_t unfair = (0U - bound) % bound;
        while (static_cast<std::uint32_t>(product) < unfair)
            product = draw();
    }
    return static_cast<std::uint32_t>(product >> 32);
}

} // namespace tessaly
