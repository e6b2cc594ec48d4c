#include "odds/output_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace quillet
{

void writeFile(const std::string& path, const std::string& content)
{
    namespace fs = std::filesystem;
    if (path == "-") {
        std::cout << content;
        return;
    }
    std::error_code error;
    // Behind a link lies the file to be replaced; a device or a pipe is written to as it is.
    const fs::path target = fs::weakly_canonical(path, error);
    const bool replaced = !fs::exists(target, error) || fs::is_regular_file(target, error);
    fs::path written = target;
    written += replaced ? ".part" : "";
    errno = 0;
    std::ofstream file(written, std::ios::binary | std::ios::trunc);
    file << content;
    file.close();
    std::string reason = file ? "" : std::strerror(errno);
    if (replaced && file) {
        fs::rename(written, target, error);
        reason = error ? error.message() : "";
    }
    if (reason.empty())
        return;
    if (replaced)
        fs::remove(written, error);
    throw std::runtime_error(path + " cannot be written: " + reason);
}

} // namespace quillet
