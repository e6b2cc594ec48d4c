#include "odds_program/text_input.h"

#include "odds/bad_input.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <ostream>
#include <unistd.h>
#include <utility>

namespace quillet::odds_program
{

namespace
{

// Removes the byte order mark.
std::string decoded(std::string text)
{
    const bool halfZero = text.size() > 1 && (text[0] == '\0') != (text[1] == '\0');
    if (halfZero || text.starts_with("\xff\xfe") || text.starts_with("\xfe\xff"))
        throw odds::BadInput("the text is UTF-16; save it as UTF-8");
    return text.starts_with("\xef\xbb\xbf") ? text.substr(3) : text;
}

std::string sizeText(std::size_t bytes)
{
    constexpr std::size_t million = 1'000'000;
    return bytes % million == 0 ? std::to_string(bytes / million) + " MB"
                                : std::to_string(bytes) + " bytes";
}

} // namespace

TextInput::TextInput(const std::string& path, std::ostream* flushed)
    : m_name(isStandardInput(path) ? "standard input" : odds::printable(path, 255)),
      m_flushed(flushed), m_file(STDIN_FILENO), m_ownsFile(!isStandardInput(path))
{
    if (m_ownsFile)
        m_file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (m_file < 0)
        throw std::runtime_error(m_name + " cannot be read: " + std::strerror(errno));
}

TextInput::~TextInput()
{
    if (m_ownsFile)
        close(m_file);
}

bool TextInput::isStandardInput(std::string_view path)
{
    return path == "-" || path == "/dev/stdin";
}

bool TextInput::fill()
{
    constexpr std::size_t atOnce = 1 << 16;
    if (m_flushed != nullptr)
        m_flushed->flush();
    m_buffer.resize(atOnce);
    ssize_t bytes = -1;
    do
        bytes = read(m_file, m_buffer.data(), m_buffer.size());
    while (bytes < 0 && errno == EINTR);
    if (bytes < 0)
        throw std::runtime_error(m_name + " cannot be read: " + std::strerror(errno));
    m_left = std::string_view(m_buffer).substr(0, static_cast<std::size_t>(bytes));
    return bytes > 0;
}

std::string TextInput::all(std::size_t maxBytes)
{
    std::string text;
    while (fill()) {
        text += m_left;
        if (text.size() > maxBytes)
            throw odds::BadInput("the text is longer than " + sizeText(maxBytes));
    }
    return decoded(std::move(text));
}

bool TextInput::takeLine(std::string& line, std::size_t maxBytes)
{
    line.clear();
    if (m_left.empty() && !fill())
        return false;
    for (std::size_t end = std::string_view::npos; end == std::string_view::npos;) {
        end = m_left.find('\n');
        line += m_left.substr(0, end);
        if (line.size() > maxBytes)
            throw odds::BadInput("the line is longer than " + sizeText(maxBytes));
        m_left = end == std::string_view::npos ? std::string_view() : m_left.substr(end + 1);
        if (end == std::string_view::npos && !fill())
            break;
    }
    if (std::exchange(m_atStart, false))
        line = decoded(std::move(line));
    return true;
}

} // namespace quillet::odds_program
