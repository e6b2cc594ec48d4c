#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace quillet::test
{

// The bytes of a file; empty if it cannot be read.
inline std::string fileText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace quillet::test
