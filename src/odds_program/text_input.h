#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

namespace quillet::odds_program
{

// Reads UTF-8 text, with or without a byte order mark, from a file, pipe or device. "-" and
// "/dev/stdin" are standard input. A failure to open or read throws a std::runtime_error with the
// reason; text that is too long, or UTF-16, throws BadInput.
class TextInput
{
public:
    // Flushes `flushed`, if any, before it waits for input.
    explicit TextInput(const std::string& path, std::ostream* flushed = nullptr);
    ~TextInput();
    TextInput(const TextInput&) = delete;
    TextInput& operator=(const TextInput&) = delete;

    // The name for messages.
    [[nodiscard]] const std::string& name() const { return m_name; }
    [[nodiscard]] static bool isStandardInput(std::string_view path);

    [[nodiscard]] std::string all(std::size_t maxBytes);

    // Reads the next line, without its end. Returns false at the end of the text.
    [[nodiscard]] bool takeLine(std::string& line, std::size_t maxBytes);

private:
    bool fill();

    std::string m_name;
    std::ostream* m_flushed = nullptr;
    int m_file = -1;
    bool m_ownsFile = false;
    bool m_atStart = true;
    std::string m_buffer;
    std::string_view m_left; // of the buffer
};

} // namespace quillet::odds_program
