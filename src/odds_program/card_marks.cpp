#include "odds_program/card_marks.h"

#include "odds_program/lettering.h"
#include "shapes/path_text.h"
#include "shapes/rank_marks.h"
#include "shapes/suit_marks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace quillet::odds_program
{

namespace
{

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

std::string use(const std::string& id, double x, double y, double scale, const std::string& fill)
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
           use(std::string{"r"} + std::to_string(card.rank),
               box.x + 0.29 * box.width - rankMarks()[rank].width / 2 * rankScale,
               middle - rankMarkHeight / 2 * rankScale, rankScale, fill) +
           use(std::string{"s"} + std::to_string(suit), box.x + 0.7 * box.width, middle, suitScale,
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
        // The outline of each covers the seam between the half and its reflection.
        const std::string half = svgPath(mark.half) + 'Z';
        text += "<g id=\"s" + std::to_string(suit++) + "\" stroke-width=\".4\"><path d=\"" +
                svgPath(mark.whole) + "\"/><path d=\"" + half +
                "\"/><path transform=\"scale(-1 1)\" d=\"" + half + "\"/></g>\n";
    }
    return text;
}

} // namespace quillet::odds_program
