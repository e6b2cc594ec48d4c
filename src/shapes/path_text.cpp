#include "shapes/path_text.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <span>

namespace quillet
{

namespace
{

void skipBlanks(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \n"), text.size()));
}

std::size_t numberCount(char letter)
{
    switch (letter) {
    case 'M':
    case 'L':
        return 2;
    case 'O':
        return 3;
    case 'C':
    case 'A':
        return 6;
    case 'Z':
        return 0;
    default:
        assert(std::string_view("QERD").find(letter) != std::string_view::npos);
        return 4;
    }
}

} // namespace

std::vector<PathCommand> pathCommands(std::string_view text)
{
    std::vector<PathCommand> commands;
    for (skipBlanks(text); !text.empty(); skipBlanks(text)) {
        PathCommand& command =
            commands.emplace_back(PathCommand{text.front(), numberCount(text.front()), {}});
        text.remove_prefix(1);
        for (double& number : std::span(command.numbers).first(command.count))
            number = takeNumber(text);
    }
    return commands;
}

double takeNumber(std::string_view& text)
{
    skipBlanks(text);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    assert(result.ec == std::errc());
    text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
    return value;
}

} // namespace quillet
