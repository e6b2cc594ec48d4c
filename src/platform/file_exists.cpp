#include "platform/file_exists.h"

#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace quillet
{

bool FileExists(const std::string& thePath)
{
    // The system would look only at the part before a NUL.
    if (thePath.find('\0') != std::string::npos)
        return false;
    std::error_code error;
    const auto length = std::filesystem::file_size(thePath, error);
    // An unreadable file counts as missing.
    return !error && length > 0 && ::faccessat(AT_FDCWD, thePath.c_str(), R_OK, AT_EACCESS) == 0;
}

} // namespace quillet
