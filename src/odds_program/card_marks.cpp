#include "odds_program/card_marks.h"

#include "odds_program/lettering.h"
#include "shapes/rank_marks.h"
#include "shapes/suit_marks.h"

#include <algorithm>
#include <sstream>

namespace quillet::odds_program
{

namespace
{

// SVG knows the commands of an outline but for the circle and the rectangle.
std::string svgPath(const char* outline)
{
    std::istringstream text(outline);
    std::string path;
    char command = 0;
    while (text.get(command)) {
        if (command != 'O' && command != 'R') {
            path += command;
            continue;
        }
        double x = 0;
        double y = 0;
        double size = 0;
        text >> x >> y >> size;
        if (command == 'O') {
            const std::string r = svgNumber(size);
            const std::string width = svgNumber(2 * size);
            path += 'M' + svgNumber(x - size) + ' ' + svgNumber(y) + 'a' + r + ' ' + r + " 0 1 1 " +
                    width + " 0a" + r + ' ' + r + " 0 1 1 -" + width + " 0Z";
        } else {
            double height = 0;
            text >> height;
            path += 'M' + svgNumber(x) + ' ' + svgNumber(y) + 'h' + svgNumber(size) + 'v' +
                    svgNumber(height) + 'h' + svgNumber(-size) + 'Z';
        }
    }
    return path;
}

std::string used(const std::string& id, double x, double y, double scale, const std::string& fill)
{
    return "<use href=\"#" + id + "\" fill=\"" + fill + "\" stroke=\"" + fill +
           "\" transform=\"translate(" + svgNumber(x) + ' ' + svgNumber(y) + ") scale(" +
           svgNumber(scale) + ")\"/>";
}

} // namespace

std::string drawnCard(odds::DeckPlace place, bool kept, const Box& box)
{
    const Card card = odds::cardAt(place);
    const auto suit = static_cast<std::size_t>(card.suit);
    const auto rank = static_cast<std::size_t>(card.rank - 1);
    const bool red = suit == 1 || suit == 2;
    const std::string fill = red ? "#c8102e" : "#17161b";
    const double size = std::min(box.height, 0.65 * box.width);
    const double rankScale = 0.66 * size / rankMarkHeight;
    const double suitScale = 0.58 * size / suitMarkHeight;
    const double middle = box.y + box.height / 2;
    return std::string("<g class=\"") + (kept ? "kept" : "thrown") + "\"" +
           (kept ? "" : " opacity=\".35\"") + "><rect x=\"" + svgNumber(box.x) + "\" y=\"" +
           svgNumber(box.y) + "\" width=\"" + svgNumber(box.width) + "\" height=\"" +
           svgNumber(box.height) + "\" rx=\".8\" fill=\"#ffffff\" stroke=\"" +
           (kept ? "#6b3a1c" : "#808080") + "\" stroke-width=\"" + (kept ? ".4" : ".2") + "\"/>" +
           used(std::string{"r"} + std::to_string(card.rank),
                box.x + 0.29 * box.width - rankMarks()[rank].width / 2 * rankScale,
                middle - rankMarkHeight / 2 * rankScale, rankScale, fill) +
           used(std::string{"s"} + std::to_string(suit), box.x + 0.7 * box.width, middle, suitScale,
                fill) +
           "</g>\n";
}

std::string cardMarkDefinitions()
{
    std::string text;
    int rank = 0;
    for (const RankMark& mark : rankMarks()) {
        text += "<g id=\"r" + std::to_string(++rank) + "\"><g" +
                (mark.turned ? " transform=\"rotate(180 " + svgNumber(mark.width / 2) + ' ' +
                                   svgNumber(rankMarkHeight / 2) + ")\""
                             : "") +
                "><path stroke=\"none\" d=\"" + svgPath(mark.pieces) + "\"/>";
        for (const PenStroke& stroke : mark.strokes)
            text += "<path fill=\"none\" stroke-linejoin=\"round\" stroke-width=\"" +
                    svgNumber(stroke.width) + "\" d=\"" + svgPath(stroke.path) + "\"/>";
        text += "</g></g>\n";
    }
    int suit = 0;
    for (const SuitMark& mark : suitMarks) {
        // The line round each covers the seam between the half and its reflection.
        const std::string half = svgPath(mark.half) + 'Z';
        text += "<g id=\"s" + std::to_string(suit++) + "\" stroke-width=\".4\"><path d=\"" +
                svgPath(mark.whole) + "\"/><path d=\"" + half +
                "\"/><path transform=\"scale(-1 1)\" d=\"" + half + "\"/></g>\n";
    }
    return text;
}

} // namespace quillet::odds_program
