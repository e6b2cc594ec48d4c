#include "odds_program/output_file.h"

#include "odds/bad_input.h"
#include "odds_program/text_input.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace quillet::odds_program
{

namespace
{

namespace fs = std::filesystem;
using FileStatus = struct stat;

[[noreturn]] void fail()
{
    throw std::system_error(errno, std::generic_category());
}

// Nothing interrupts the program while this lives; what would have done so does it afterwards.
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

void writeAll(int file, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t written = write(file, content.data(), content.size());
        if (written < 0 && errno != EINTR)
            fail();
        content.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
}

std::optional<FileStatus> statusOf(const std::string& path)
{
    FileStatus status{};
    if (stat(path.c_str(), &status) == 0)
        return status;
    if (errno != ENOENT)
        fail();
    return std::nullopt;
}

bool isSame(const FileStatus& one, const FileStatus& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool isStandardOutput(const std::string& path)
{
    FileStatus named{};
    FileStatus output{};
    return stat(path.c_str(), &named) == 0 && fstat(STDOUT_FILENO, &output) == 0 &&
           isSame(named, output);
}

void writeInPlace(const std::string& path, const std::string& content)
{
    const int file = open(path.c_str(), O_WRONLY | O_CLOEXEC);
    if (file < 0)
        fail();
    try {
        writeAll(file, content);
    } catch (...) {
        close(file);
        throw;
    }
    if (close(file) != 0)
        fail();
}

// The end of a chain of links, whether there is a file or not.
fs::path followed(fs::path path)
{
    constexpr int maxLinks = 40;
    for (int link = 0; link < maxLinks && fs::is_symlink(fs::symlink_status(path)); ++link)
        path = path.parent_path() / fs::read_symlink(path);
    return path;
}

// Gives the new file the owner, as far as that is allowed, and the mode of the old one; without an
// old one, the mode that new files get.
void takeAfter(int file, const std::optional<FileStatus>& old)
{
    const mode_t mask = umask(0);
    umask(mask);
    if (old && fchown(file, old->st_uid, old->st_gid) != 0)
        errno = 0;
    constexpr mode_t ofNewFiles = 0666;
    constexpr mode_t permissions = 0777;
    if (fchmod(file, old ? old->st_mode & permissions : ofNewFiles & ~mask) != 0)
        fail();
}

// Under a name of its own in the same folder first.
void replaceFile(const fs::path& target, const std::optional<FileStatus>& old,
                 const std::string& content)
{
    const SignalsHeld signals;
    std::string part = (target.parent_path() / ".quillet-XXXXXX").string();
    const int file = mkstemp(part.data());
    if (file < 0)
        fail();
    try {
        writeAll(file, content);
        takeAfter(file, old);
        if (fsync(file) != 0 || std::rename(part.c_str(), target.c_str()) != 0)
            fail();
    } catch (...) {
        close(file);
        unlink(part.c_str());
        throw;
    }
    close(file);
}

} // namespace

void writeFile(const std::string& path, const std::string& content)
{
    if (path == "-" || isStandardOutput(path)) {
        std::cout << content;
        return;
    }
    const std::string name = odds::printable(path, 255);
    try {
        const auto old = statusOf(path);
        constexpr mode_t writable = S_IWUSR | S_IWGRP | S_IWOTH;
        if (old && (old->st_mode & writable) == 0)
            throw std::runtime_error(name + " is read-only");
        if (old && !S_ISREG(old->st_mode))
            writeInPlace(path, content);
        else if (old && access(path.c_str(), W_OK) != 0)
            fail();
        else
            replaceFile(followed(path), old, content);
    } catch (const std::system_error& error) {
        throw std::runtime_error(name + " cannot be written: " + error.code().message());
    }
}

bool wouldReplace(const std::string& output, const std::string& input)
{
    FileStatus read{};
    FileStatus written{};
    const int status =
        TextInput::isStandardInput(input) ? fstat(STDIN_FILENO, &read) : stat(input.c_str(), &read);
    return status == 0 && stat(output.c_str(), &written) == 0 && S_ISREG(read.st_mode) &&
           isSame(read, written);
}

} // namespace quillet::odds_program
