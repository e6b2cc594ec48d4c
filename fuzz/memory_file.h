#pragma once

#include "fuzz/fuzzer.h"

#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace quillet::fuzz
{

// A file in memory, for readers that take a path.
class MemoryFile
{
public:
    explicit MemoryFile(std::string_view contents) : m_file(memfd_create("input", MFD_CLOEXEC))
    {
        require(write(m_file, contents.data(), contents.size()) ==
                static_cast<ssize_t>(contents.size()));
    }
    ~MemoryFile() { close(m_file); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(m_file); }

private:
    int m_file;
};

} // namespace quillet::fuzz
