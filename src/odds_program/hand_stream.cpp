#include "odds_program/hand_stream.h"

#include "odds/bad_input.h"
#include "odds/hand_text.h"
#include "odds_program/reports.h"

#include <algorithm>
#include <array>
#include <optional>
#include <ostream>

namespace quillet::odds_program
{

namespace
{

// Worth units as credits with eight decimals. A fraction would reduce first, and there are hundreds
// of thousands of hands a second.
std::string credits(std::int64_t worth)
{
    constexpr std::int64_t decimals = 100'000'000;
    const auto scaled = static_cast<std::int64_t>(
        (odds::Int128{2} * worth * decimals + odds::DealtHand::worthUnit) /
        (odds::Int128{2} * odds::DealtHand::worthUnit));
    const std::string digits = std::to_string(scaled % decimals);
    return std::to_string(scaled / decimals) + "." + std::string(8 - digits.size(), '0') + digits;
}

void writeLine(std::ostream& out, const odds::DealtHand& hand, Format format)
{
    const odds::Hold charts = hand.bestAccepted();
    const std::int64_t best = hand.worth[hand.bestHold];
    struct Field {
        std::string name;
        std::string value;
        bool isText;
    };
    const auto fields =
        std::to_array<Field>({{"hand", odds::holdText(hand.places, odds::holdAll), true},
                              {"row", std::to_string(hand.chartCode), false},
                              {"best", odds::holdText(hand.places, hand.bestHold), true},
                              {"expected", credits(best), false},
                              {"chart", odds::holdText(hand.places, charts), true},
                              {"chart expected", credits(hand.worth[charts]), false},
                              {"cost", credits(best - hand.worth[charts]), false}});
    std::string line;
    for (const auto& field : fields) {
        line += line.empty() ? (format == Format::json ? "{" : "")
                             : (format == Format::json ? ", " : ",");
        if (format == Format::json)
            line += "\"" + field.name + "\": ";
        line += format == Format::json && field.isText ? "\"" + field.value + "\"" : field.value;
    }
    out << line << (format == Format::json ? "}\n" : "\n");
}

// The cards of the next line that has any, in order; nothing at the end. Counts the lines.
std::optional<std::array<odds::DeckPlace, 5>> nextHand(TextInput& in, int& number)
{
    constexpr std::size_t maxBytes = 4096;
    try {
        for (std::string line; in.takeLine(line, maxBytes); ++number) {
            if (line.find_first_not_of(" \t\r") == line.find('#'))
                continue;
            auto places = odds::parseHand(line);
            std::ranges::sort(places);
            ++number;
            return places;
        }
    } catch (const odds::BadInput& error) {
        throw odds::BadInput("line " + std::to_string(number) + ": " + error.what());
    }
    return std::nullopt;
}

} // namespace

void answerHands(TextInput& in, std::ostream& out, const odds::HeldCards& heldCards, bool allHolds,
                 const Style& style)
{
    if (style.format == Format::csv)
        out << "hand,row,best,expected,chart,chart expected,cost\n";
    bool first = true;
    for (int number = 1; const auto places = nextHand(in, number);) {
        const odds::DealtHand hand(heldCards, *places);
        if (style.format != Format::text) {
            writeLine(out, hand, style.format);
            continue;
        }
        out << (first ? "" : "\n");
        first = false;
        writeReport(out, handReport(heldCards, hand, allHolds), style);
    }
}

} // namespace quillet::odds_program
