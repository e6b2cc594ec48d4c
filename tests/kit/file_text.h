#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace quillet::test
{

// What is in a file, byte by byte; nothing for one that cannot be read.
inline std::string fileText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace quillet::test
