#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

/// What every fuzz target is made of: libFuzzer calls this with one input after another.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tessaly::fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size}; // NOLINT: bytes are text here
}

/// Ends the run with the input that made `holds` false.
inline void require(bool holds, std::string_view what) {
    if (holds)
        return;
    std::cerr << "not so: " << what << '\n';
    std::abort();
}

} // namespace tessaly::fuzz
