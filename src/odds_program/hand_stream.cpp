#include "odds_program/hand_stream.h"

#include "odds/bad_input.h"
#include "odds/hand_text.h"
#include "odds_program/data_output.h"
#include "odds_program/reports.h"
#include "odds_program/text_input.h"

#include <algorithm>
#include <array>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace quillet::odds_program
{

namespace
{

// Converts worth units to credits with eight decimals. Fractions would be too slow: this handles
// hundreds of thousands of hands a second.
std::string credits(std::int64_t worth)
{
    constexpr std::int64_t decimals = 100'000'000;
    const auto scaled = static_cast<std::int64_t>(
        (odds::Int128{2} * worth * decimals + odds::DealtHand::worthUnit) /
        (odds::Int128{2} * odds::DealtHand::worthUnit));
    const std::string digits = std::to_string(scaled % decimals);
    return std::to_string(scaled / decimals) + "." + std::string(8 - digits.size(), '0') + digits;
}

std::vector<Field> fieldsOf(const odds::DealtHand& hand, const charts::Play& play)
{
    const odds::Hold chart = hand.bestOf(play.fitting);
    const std::int64_t best = hand.worth[hand.bestHold];
    return {{"hand", odds::holdText(hand.places, odds::holdAll), true},
            {"row", std::to_string(play.row + 1)},
            {"best", odds::holdText(hand.places, hand.bestHold), true},
            {"expected", credits(best)},
            {"chart", odds::holdText(hand.places, chart), true},
            {"chart expected", credits(hand.worth[chart])},
            {"cost", credits(best - hand.worth[chart])}};
}

// Returns the sorted cards of the next hand, or nothing at the end. Counts lines in `number`.
std::optional<std::array<odds::DeckPlace, 5>> nextHand(std::istream& in, int& number)
{
    try {
        for (std::string line; takeLine(in, line); ++number) {
            if (line.find_first_not_of(" \t\r") == line.find('#'))
                continue;
            const auto places = odds::heldDeal(odds::parseHand(line), 0).places;
            ++number;
            return places;
        }
    } catch (const odds::BadInput& error) {
        throw odds::BadInput("line " + std::to_string(number) + ": " + error.what());
    }
    return std::nullopt;
}

} // namespace

void answerHands(std::istream& in, std::ostream& out, const odds::HeldCards& heldCards,
                 bool allHolds, const Style& style)
{
    if (style.format == Format::csv)
        out << "hand,row,best,expected,chart,chart expected,cost\n";
    const charts::ChartPlayer player(charts::trainersChart());
    const char* separator = "";
    for (int number = 1; const auto places = nextHand(in, number);) {
        const odds::DealtHand hand(heldCards, *places);
        switch (style.format) {
        case Format::text:
            out << std::exchange(separator, "\n");
            writeReport(out, handReport(heldCards, hand, player.play(hand), allHolds, style.format),
                        style);
            break;
        case Format::csv:
            writeCsvLine(out, fieldsOf(hand, player.play(hand)));
            break;
        case Format::json:
            writeJsonObject(out, fieldsOf(hand, player.play(hand)));
            out << '\n';
            break;
        }
        if (in.rdbuf()->in_avail() <= 0)
            out.flush();
    }
}

} // namespace quillet::odds_program
