#pragma once

#include <cstdint>
#include <string_view>

namespace tessaly {

/// The hash FNV-1a of 64 bits (Glenn Fowler, Landon Curt Noll and Kiem-Phong Vo): the same on every
/// machine and with every compiler, unlike the standard library's.
class FnvHash {
public:
    void add(std::string_view text) {
        for (unsigned char c : text)
            m_value = (m_value ^ c) * 0x100'0000'01B3;
    }
    std::uint64_t value() const { return m_value; }

private:
    std::uint64_t m_value = 0xCBF2'9CE4'8422'2325;
};

} // namespace tessaly
