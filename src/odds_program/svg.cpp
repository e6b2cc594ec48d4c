#include "odds_program/svg.h"

#include "shapes/letters.h"
#include "shapes/path_text.h"
#include "shapes/rank_marks.h"
#include "shapes/suit_marks.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <numbers>
#include <span>

namespace quillet::odds_program
{

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

std::string svg(std::string_view pattern, std::initializer_list<SvgValue> values)
{
    std::string text;
    for (const SvgValue& value : values) {
        const std::size_t at = pattern.find('@');
        text.append(pattern.substr(0, at)).append(value.text);
        pattern.remove_prefix(at + 1);
    }
    return text.append(pattern);
}

namespace
{

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

// Two arcs, because a single one cannot be a full ellipse.
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

// The strokes drawn with a pen, and the outlines of slanted strokes.
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

// Names of definitions can have only letters and digits, so a letter is named by its code.
std::string codeOf(char sign)
{
    return std::to_string(static_cast<int>(sign));
}

// SVG paths have no circles and rectangles.
std::string svgPath(std::string_view outline)
{
    std::string path;
    for (const PathCommand& command : pathCommands(outline)) {
        const auto [x, y, width, height, unused, unusedToo] = command.numbers;
        if (command.letter == 'O') {
            const double r = width;
            path += svgCommand('M', std::array{x - r, y});
            path += svgCommand(
                'a', std::array{r, r, 0.0, 1.0, 1.0, 2 * r, 0.0, r, r, 0.0, 1.0, 1.0, -2 * r, 0.0});
            path += 'Z';
        } else if (command.letter == 'R') {
            path += svgCommand('M', std::array{x, y});
            path += svgCommand('l', std::array{width, 0.0, 0.0, height, -width, 0.0});
            path += 'Z';
        } else {
            path += svgCommand(command.letter, command.used());
        }
    }
    return path;
}

std::string use(char kind, int number, double x, double y, double scale, std::string_view fill)
{
    return svg("<use href=\"#@@\" fill=\"@\" stroke=\"@\" transform=\"translate(@ @) scale(@)\"/>",
               {std::string(1, kind), std::to_string(number), fill, fill, x, y, scale});
}

std::string letterDefinitions()
{
    std::string text;
    for (const Letter& letter : letters()) {
        const LetterPaths paths = pathsOf(letter.strokes);
        text += svg("<g id=\"l@\" stroke-width=\"@\"><path fill=\"none\" d=\"@\"/>"
                    "<path stroke=\"none\" d=\"@\"/></g>\n",
                    {codeOf(letter.sign), printWeight, paths.pen, paths.slants});
    }
    return text;
}

std::string cardMarkDefinitions()
{
    std::string text;
    int rank = 0;
    for (const RankMark& mark : rankMarks()) {
        std::string strokes;
        for (const PenStroke& stroke : mark.strokes)
            strokes += svg(R"(<path fill="none" stroke-linejoin="round" stroke-width="@" d="@"/>)",
                           {stroke.width, svgPath(stroke.path)});
        text += svg("<g id=\"r@\"><g transform=\"rotate(@ @ @)\"><path stroke=\"none\" d=\"@\"/>@"
                    "</g></g>\n",
                    {std::to_string(++rank), mark.turned ? 180.0 : 0.0, mark.width / 2,
                     rankMarkHeight / 2, svgPath(mark.pieces), strokes});
    }
    int suit = 0;
    for (const SuitMark& mark : suitMarks) {
        // The outline of each covers the seam between the half and its reflection.
        const std::string half = svgPath(mark.half) + 'Z';
        text += svg("<g id=\"s@\" stroke-width=\".4\"><path d=\"@\"/><path d=\"@\"/>"
                    "<path transform=\"scale(-1 1)\" d=\"@\"/></g>\n",
                    {std::to_string(suit++), svgPath(mark.whole), half, half});
    }
    return text;
}

} // namespace

std::string drawnLine(const Lettering& line, double x, double y, double space, double align)
{
    std::string letters;
    double width = 0; // of a line one unit high
    for (const char letter : line.text) {
        if (letter == ' ') {
            width += blankBetweenWords + line.tracking;
            continue;
        }
        const Letter& found =
            letterOf(static_cast<char>(std::toupper(static_cast<unsigned char>(letter))));
        letters += svg(R"(<use href="#l@" x="@"/>)",
                       {codeOf(found.sign), width + found.left + line.tracking / 2});
        width += found.advance + line.tracking;
    }
    const double height = std::min(line.height, space / width);
    const double left = x + align * (space - height * width);
    return svg("<g fill=\"@\" stroke=\"@\" transform=\"translate(@ @) scale(@)\">@</g>\n",
               {line.colour, line.colour, left, y - height, height, letters});
}

std::string drawnCard(odds::DeckPlace place, bool kept, const Box& box)
{
    const Card card = odds::cardAt(place);
    const bool red = card.suit == 1 || card.suit == 2;
    const std::string_view fill = red ? "#c8102e" : "#17161b";
    const double size = std::min(box.height, 0.65 * box.width);
    const double rankScale = 0.66 * size / rankMarkHeight;
    const double suitScale = 0.58 * size / suitMarkHeight;
    const double rankWidth = rankMarks()[static_cast<std::size_t>(card.rank - 1)].width;
    const double middle = box.y + box.height / 2;
    const std::string marks =
        use('r', card.rank, box.x + 0.29 * box.width - rankWidth / 2 * rankScale,
            middle - rankMarkHeight / 2 * rankScale, rankScale, fill) +
        use('s', card.suit, box.x + 0.7 * box.width, middle, suitScale, fill);
    return svg("<g class=\"@\" opacity=\"@\"><rect x=\"@\" y=\"@\" width=\"@\" height=\"@\" "
               "rx=\".8\" fill=\"#ffffff\" stroke=\"@\" stroke-width=\"@\"/>@</g>\n",
               {kept ? "kept" : "thrown", kept ? "1" : ".35", box.x, box.y, box.width, box.height,
                kept ? "#6b3a1c" : "#808080", kept ? ".4" : ".2", marks});
}

std::string svgDefinitions()
{
    return letterDefinitions() + cardMarkDefinitions();
}

} // namespace quillet::odds_program
