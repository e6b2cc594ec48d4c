#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

namespace quillet::odds_program
{

// A text from a file, a pipe or a device. "-" and "/dev/stdin" are standard input. It is UTF-8,
// with or without a byte order mark. What cannot be opened or read throws a std::runtime_error
// with the reason; a text that is too long, or UTF-16, throws BadInput.
class TextInput
{
public:
    // Before it waits for input it flushes the output, if there is one.
    explicit TextInput(const std::string& path, std::ostream* flushed = nullptr);
    ~TextInput();
    TextInput(const TextInput&) = delete;
    TextInput& operator=(const TextInput&) = delete;

    // As messages show it.
    [[nodiscard]] const std::string& name() const { return m_name; }
    [[nodiscard]] static bool isStandardInput(std::string_view path);

    [[nodiscard]] std::string all(std::size_t maxBytes);

    // Takes the next line, without its end; false when there is none.
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
