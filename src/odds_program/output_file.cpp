#include "odds_program/output_file.h"

#include "odds/bad_input.h"
#include "odds_program/text_input.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace quillet::odds_program
{

namespace
{

namespace fs = std::filesystem;
using FileStatus = struct stat;

[[noreturn]] void fail(int error)
{
    throw std::system_error(error, std::generic_category());
}

// Delays signals until it is destroyed.
class SignalsHeld
{
public:
    SignalsHeld()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;

private:
    sigset_t m_before{};
};

// Returns false and sets errno on failure.
bool wrote(const std::string& path, const std::string& content)
{
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    return !file.fail();
}

// Gives the new file the mode of the old one, and its owner if that is allowed. Without an old file
// the mode is the default. Returns false and sets errno on failure.
bool copiedMode(int file, const FileStatus* old)
{
    const mode_t mask = umask(0);
    umask(mask);
    if (old != nullptr && fchown(file, old->st_uid, old->st_gid) != 0)
        errno = 0;
    constexpr mode_t byDefault = 0666;
    constexpr mode_t permissions = 0777;
    return fchmod(file, old != nullptr ? old->st_mode & permissions : byDefault & ~mask) == 0;
}

// Writes a new file in the same folder, then renames it, so the target is never incomplete.
void replaceFile(const fs::path& target, const FileStatus* old, const std::string& content)
{
    const SignalsHeld signals;
    std::string part = (target.parent_path() / ".quillet-XXXXXX").string();
    const int file = mkstemp(part.data());
    if (file < 0)
        fail(errno);
    const bool done = wrote(part, content) && copiedMode(file, old) && fsync(file) == 0 &&
                      std::rename(part.c_str(), target.c_str()) == 0;
    const int error = errno;
    close(file);
    if (!done) {
        unlink(part.c_str());
        fail(error);
    }
}

void writeNamedFile(fs::path path, const std::string& content)
{
    FileStatus status{};
    const FileStatus* const old = stat(path.c_str(), &status) == 0 ? &status : nullptr;
    if (old == nullptr && errno != ENOENT)
        fail(errno);
    constexpr mode_t writable = S_IWUSR | S_IWGRP | S_IWOTH;
    if (old != nullptr && (old->st_mode & writable) == 0)
        throw std::runtime_error(odds::printable(path.string(), 255) + " is read-only");
    if (old != nullptr && !S_ISREG(old->st_mode)) {
        if (!wrote(path, content))
            fail(errno);
        return;
    }
    if (old != nullptr && access(path.c_str(), W_OK) != 0)
        fail(errno);
    while (fs::is_symlink(path))
        path = path.parent_path() / fs::read_symlink(path);
    replaceFile(path, old, content);
}

bool isSameFile(const std::string& one, const std::string& other)
{
    std::error_code missing;
    return fs::is_regular_file(one, missing) && fs::equivalent(one, other, missing);
}

} // namespace

void writeFile(const std::string& path, const std::string& content)
{
    if (path == "-" || path == "/dev/stdout" || isSameFile(path, "/dev/stdout")) {
        std::cout << content;
        return;
    }
    try {
        writeNamedFile(path, content);
    } catch (const std::system_error& error) {
        throw std::runtime_error(odds::printable(path, 255) +
                                 " cannot be written: " + error.code().message());
    }
}

bool wouldReplace(const std::string& output, const std::string& input)
{
    return isSameFile(output, isStandardInput(input) ? "/dev/stdin" : input);
}

} // namespace quillet::odds_program
