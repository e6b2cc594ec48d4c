#include "literature.h"

#include "odds/break_even.h"
#include "odds/hand_text.h"
#include "odds/ruin.h"
#include "odds/sitting.h"
#include "odds_program/report.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace quillet::odds;
using quillet::odds_program::decimals;

namespace
{

constexpr std::string_view shackleford = "[1]";
constexpr std::string_view ethier = "[2]";
constexpr std::string_view unknown = "not known";

void writeRow(std::ostream& out, std::string_view figure, std::string_view published,
              const std::string& ours, std::string_view source)
{
    out << "| " << figure << " | " << published << " | " << ours << " | " << source << " |\n";
}

void writeValues(std::ostream& out, const HeldCards& heldCards)
{
    std::set<std::int64_t> values;
    std::set<std::int64_t> ofFiveNewCards;
    forEachDeal(heldCards, [&](const DealtHand& hand, int) {
        const std::int64_t worth = hand.worth[hand.bestHold];
        values.insert(worth);
        if (hand.bestHold == 0)
            ofFiveNewCards.insert(worth);
    });
    writeRow(out, "different values of the best hold, over all deals", "1153",
             std::to_string(values.size()), ethier);
    writeRow(out, "of them for drawing five cards", "766", std::to_string(ofFiveNewCards.size()),
             ethier);
}

void writeSessions(std::ostream& out, const FairOdds& perfect)
{
    constexpr std::int64_t endless = std::numeric_limits<std::int64_t>::max();
    const Round one = roundOf(perfect.chances, trainersPays());
    const Sitting sitting(one, 600);
    const auto percent = [](double chance) { return decimals(100 * chance, 2); };
    writeRow(out, "behind; ahead; even after 600 hands, in %", "62; 37; under 1",
             percent(sitting.chanceOf(-endless, -1)) + "; " +
                 percent(sitting.chanceOf(1, endless)) + "; " + percent(sitting.chanceOf(0, 0)),
             unknown);
    writeRow(out, "ruin of 160 bets within 1600 hands, in %", "8",
             percent(Ruin(one, 1600).chance(800)), unknown);
}

// The royals at which the queen and the jack, suited, are worth as much as all four high cards.
std::string equalRoyals(const HeldCards& heldCards)
{
    std::vector<Fraction> royals;
    for (const char suit : {'c', 's'}) {
        for (char rank = '2'; rank <= '9'; ++rank) {
            const auto places =
                heldDeal(parseHand(std::string("AdKhQcJc") + rank + suit), 0).places;
            const auto best = bestHolds(heldCards, {heldCards, places});
            for (std::size_t i = 1; i < best.size(); ++i)
                if (holdText(places, best[i].hold) == "Jc Qc" && cardsIn[best[i - 1].hold] == 4)
                    royals.push_back(best[i].royal);
        }
    }
    std::sort(royals.begin(), royals.end());
    royals.erase(std::unique(royals.begin(), royals.end()), royals.end());
    std::string text;
    for (const Fraction& royal : royals)
        text += (text.empty() ? "" : "; ") + royal.decimals(2);
    return text;
}

} // namespace

void writeLiterature(std::ostream& out, const HeldCards& heldCards, const FairOdds& perfect)
{
    out << "\n## Agreement with the literature\n\n"
           "Published figures beside ours, for perfect play and, unless another is named, the\n"
           "trainer's pay table. Ours are computed when this page is written, and a test compares\n"
           "the two columns.\n\n"
           "| figure | published | ours | source |\n"
           "|---|---|---|---|\n";
    const Fraction& royal = perfect.chances[1];
    writeRow(out, "return in %", "99.5439", (perfect.returned * 100).decimals(6), shackleford);
    writeRow(out, "hands for each royal", "40391",
             Fraction(royal.denominator(), royal.numerator()).decimals(2), shackleford);
    writeValues(out, heldCards);
    writeSessions(out, perfect);
    for (const auto& [pays, published] : {std::pair{"9/6", "4880"}, {"8/5", "8666"}})
        writeRow(out, "royal for a return of 100 % at " + std::string(pays) + ", rounded up",
                 published, perfectBreakEven(HeldCards(parsePays(pays)))->royal.decimals(2),
                 unknown);
    writeRow(out,
             "royals at which queen and jack, suited, are worth as much as ace, king, queen and "
             "jack, by the discards",
             "3624; 3945; 4185; 4975", equalRoyals(heldCards), unknown);
    out << "\nOne published figure, 3624, is not equal to ours: with such a royal the four high\n"
           "cards are still worth a little more.\n\n"
           "1. Michael Shackleford: The Wizard of Odds, a web site; year not known\n"
           "2. S. N. Ethier, John Jungtae Kim, Jiyeon Lee: Optimal conditional expectation at the\n"
           "   video poker game Jacks or Better, UNLV Gaming Research & Review Journal 23, 2019\n";
}
