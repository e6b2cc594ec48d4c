#include "odds_program/text_input.h"

#include "odds/bad_input.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace quillet::odds_program
{

namespace
{

// Removes the byte order mark.
void decode(std::string& text)
{
    const bool halfZero = text.size() > 1 && (text[0] == '\0') != (text[1] == '\0');
    if (halfZero || text.starts_with("\xff\xfe") || text.starts_with("\xfe\xff"))
        throw odds::BadInput("the text is UTF-16; save it as UTF-8");
    if (text.starts_with("\xef\xbb\xbf"))
        text.erase(0, 3);
}

[[noreturn]] void fail(const std::string& path)
{
    throw std::runtime_error(inputName(path) + " cannot be read: " + std::strerror(errno));
}

} // namespace

bool isStandardInput(std::string_view path)
{
    return path == "-" || path == "/dev/stdin";
}

std::string inputName(const std::string& path)
{
    return isStandardInput(path) ? "standard input" : odds::printable(path, 255);
}

std::string inputText(const std::string& path)
{
    constexpr std::streamsize maxBytes = 1'000'000;
    std::ifstream file;
    if (!isStandardInput(path))
        file.open(path);
    std::istream& in = isStandardInput(path) ? std::cin : file;
    std::string text(maxBytes + 1, '\0');
    if (!in.good() || in.read(text.data(), maxBytes + 1).bad())
        fail(path);
    if (in.gcount() > maxBytes)
        throw odds::BadInput("the text is longer than 1 MB");
    text.resize(static_cast<std::size_t>(in.gcount()));
    decode(text);
    return text;
}

bool takeLine(std::istream& standardInput, std::string& line)
{
    constexpr std::size_t maxBytes = 4096;
    std::array<char, maxBytes + 1> text; // not cleared for each line
    standardInput.getline(text.data(), text.size());
    if (standardInput.bad())
        fail("-");
    if (standardInput.fail() && !standardInput.eof())
        throw odds::BadInput("the line is longer than 4096 bytes");
    const bool ended = !standardInput.eof(); // with an end of line, which gcount includes
    line.assign(text.data(), static_cast<std::size_t>(standardInput.gcount()) - (ended ? 1 : 0));
    decode(line);
    return !standardInput.fail();
}

} // namespace quillet::odds_program
