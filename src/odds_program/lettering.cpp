#include "odds_program/lettering.h"

#include "shapes/letters.h"
#include "shapes/path_text.h"

#include <array>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <numbers>

namespace quillet::odds_program
{

namespace
{

char capital(char letter)
{
    return static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
}

LetterPoint inside(double x, double y)
{
    return penAt(x, y, printWeight);
}

LetterPoint pointOf(const PathCommand& arc, double degrees)
{
    const auto& [x, y, rx, ry, start, sweep] = arc.numbers;
    const double angle = degrees * std::numbers::pi / 180;
    return inside(x + rx * std::cos(angle), y - ry * std::sin(angle));
}

// Two arcs, because one cannot be a whole ellipse.
std::string svgArc(const PathCommand& arc, bool startsStroke)
{
    const auto& [x, y, rx, ry, start, part] = arc.numbers;
    const double sweep = arc.letter == 'E' ? 360 : part;
    const LetterPoint from = pointOf(arc, start);
    std::string path = startsStroke ? svgCommand('M', std::array{from.x, from.y}) : "";
    for (const double share : {0.5, 1.0}) {
        const LetterPoint to = pointOf(arc, start + share * sweep);
        path += svgCommand('A', std::array{rx, ry * (1 - printWeight), 0.0, 0.0,
                                           sweep < 0 ? 1.0 : 0.0, to.x, to.y});
    }
    return path;
}

std::string svgSlant(const PathCommand& slant)
{
    std::string path;
    for (const LetterPoint& corner : slantCorners(slant, printWeight))
        path += svgCommand(path.empty() ? 'M' : 'L', std::array{corner.x, corner.y});
    return path + 'Z';
}

// What the pen draws, and the outlines of slanted strokes.
struct LetterPaths {
    std::string pen;
    std::string slants;
};

LetterPaths pathsOf(const char* strokes)
{
    LetterPaths paths;
    bool penDown = false;
    for (PathCommand command : pathCommands(strokes)) {
        if (command.letter == 'D') {
            paths.slants += svgSlant(command);
        } else if (command.letter == 'A' || command.letter == 'E') {
            paths.pen += svgArc(command, command.letter == 'E' || !penDown);
        } else {
            for (std::size_t i = 0; i < command.count; i += 2) {
                const LetterPoint point = inside(command.numbers[i], command.numbers[i + 1]);
                command.numbers[i] = point.x;
                command.numbers[i + 1] = point.y;
            }
            paths.pen += svgCommand(command.letter, command.used());
        }
        penDown = command.letter != 'E' && command.letter != 'D';
    }
    return paths;
}

// Names of definitions may contain only letters and digits.
std::string idOf(char sign)
{
    return std::string{"l"} + std::to_string(static_cast<int>(sign));
}

// Calls visit for each letter with the position of its outline's origin. Returns the line's width.
template <typename Visit>
double layOut(const Lettering& line, const Visit& visit)
{
    double x = 0;
    for (const char letter : line.text) {
        if (letter == ' ') {
            x += blankBetweenWords + line.tracking;
            continue;
        }
        const char sign = capital(letter);
        const Letter& found = letterOf(sign);
        visit(sign, x + found.left + line.tracking / 2);
        x += found.advance + line.tracking;
    }
    return x;
}

} // namespace

double widthOf(const Lettering& line)
{
    return line.height * layOut(line, [](char, double) {});
}

std::string drawn(const Lettering& line, double x, double y, std::string_view colour)
{
    std::string text = "<g fill=\"" + std::string(colour) + "\" stroke=\"" + std::string(colour) +
                       "\" transform=\"translate(" + svgNumber(x) + ' ' +
                       svgNumber(y - line.height) + ") scale(" + svgNumber(line.height) + ")\">";
    layOut(line, [&text](char sign, double at) {
        text += "<use href=\"#" + idOf(sign) + "\" x=\"" + svgNumber(at) + "\"/>";
    });
    return text + "</g>\n";
}

std::string letterDefinitions()
{
    std::string text;
    for (const Letter& letter : letters()) {
        const LetterPaths paths = pathsOf(letter.strokes);
        text += "<g id=\"" + idOf(letter.sign) + "\" stroke-width=\"" + svgNumber(printWeight) +
                "\"><path fill=\"none\" d=\"" + paths.pen + "\"/><path stroke=\"none\" d=\"" +
                paths.slants + "\"/></g>\n";
    }
    return text;
}

std::string svgNumber(double value)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.3f", value);
    std::string number = text.data();
    number.erase(number.find_last_not_of('0') + 1);
    if (number.ends_with('.'))
        number.pop_back();
    return number == "-0" ? "0" : number;
}

std::string svgCommand(char letter, std::span<const double> numbers)
{
    std::string text(1, letter);
    for (const double number : numbers)
        text += svgNumber(number) + ' ';
    return text;
}

} // namespace quillet::odds_program
