#include "platform/file_exists.h"

#include <filesystem>
#include <system_error>

namespace quillet
{

bool FileExists(const std::string& thePath)
{
    // The system would examine only what stands before a NUL.
    if (thePath.find('\0') != std::string::npos)
        return false;
    std::error_code error;
    const auto length = std::filesystem::file_size(thePath, error);
    return !error && length > 0;
}

} // namespace quillet
