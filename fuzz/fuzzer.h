#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quillet::fuzz
{

inline std::string_view textOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

// Ends the program if a promise is broken, so that the fuzzer reports it.
inline void require(bool kept)
{
    if (!kept)
        std::abort();
}

} // namespace quillet::fuzz
