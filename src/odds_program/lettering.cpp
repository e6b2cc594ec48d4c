#include "odds_program/lettering.h"

#include "shapes/letter_outlines.h"
#include "shapes/letters.h"

#include <array>
#include <cassert>
#include <cctype>
#include <cstdio>
#include <map>

namespace quillet::odds_program
{

namespace
{

struct Glyph {
    LetterOutlines outlines;
    double left; // white to leave before the outline's origin
    double advance;
};

Glyph cut(char sign, const char* code)
{
    const LetterOutlines outlines(code);
    const LetterEdges edges(outlines);
    const bool spaced = std::isalnum(static_cast<unsigned char>(sign)) != 0;
    const double left = whiteBetweenLetters / 2 -
                        (spaced ? shareOfOpenSides * edges.opennessOfLeft() : 0.06) -
                        edges.leftmost();
    const double right =
        whiteBetweenLetters / 2 - (spaced ? shareOfOpenSides * edges.opennessOfRight() : 0.02);
    return {outlines, left, left + edges.rightmost() + right};
}

const std::map<char, Glyph>& glyphs()
{
    static const auto table = [] {
        std::map<char, Glyph> all;
        for (const auto& [sign, code] : letterStrokes())
            all.emplace(sign, cut(sign, code));
        return all;
    }();
    return table;
}

char capital(char letter)
{
    return static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
}

std::string path(const LetterOutlines::Points& points)
{
    std::string text;
    for (const LetterOutlines::Point& point : points)
        text += (text.empty() ? 'M' : 'L') + svgNumber(point.x) + ' ' + svgNumber(point.y);
    return text;
}

// The names of definitions are letters and digits.
std::string idOf(char sign)
{
    return std::string{"l"} + std::to_string(static_cast<int>(sign));
}

// Calls visit for each letter with where its outline's origin stands; returns where the line ends.
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
        const auto glyph = glyphs().find(sign);
        assert(glyph != glyphs().end());
        visit(sign, x + glyph->second.left + line.tracking / 2);
        x += glyph->second.advance + line.tracking;
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
    for (const auto& [sign, glyph] : glyphs()) {
        text += "<g id=\"" + idOf(sign) + "\" stroke-width=\"" + svgNumber(LetterOutlines::weight) +
                "\"><path fill=\"none\" d=\"";
        for (const auto& stroke : glyph.outlines.strokes())
            text += path(stroke);
        text += "\"/><path stroke=\"none\" d=\"";
        for (const auto& slant : glyph.outlines.slants())
            text += path(slant) + 'Z';
        text += "\"/></g>\n";
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

} // namespace quillet::odds_program
