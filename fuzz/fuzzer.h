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

// A broken promise ends the program, which the fuzzer reports.
inline void require(bool kept)
{
    if (!kept)
        std::abort();
}

} // namespace quillet::fuzz
