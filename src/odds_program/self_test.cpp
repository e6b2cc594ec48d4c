#include "engine/pay_table.h"
#include "engine/play_rules.h"
#include "odds/hand_text.h"
#include "odds/sitting.h"
#include "odds/tail_bound.h"
#include "odds_program/progress_bar.h"
#include "odds_program/reports.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <stdexcept>

namespace quillet::odds_program
{

namespace
{

// A check returns a difference that it found, or nothing.
std::string differs(const std::string& what, const std::string& found, const std::string& expected)
{
    return found == expected ? "" : what + ": " + found + ", not " + expected;
}

// Of all hands, and of the draws to the holds of a deal. Every hand is also the result of a draw:
// to the hold that it has in common with the deal.
std::array<std::string, 2> checkHands(const odds::DealtHand& deal)
{
    std::string rows;
    std::array<std::int64_t, odds::holds> paid{};
    std::int64_t hands = 0;
    const auto visit = [&](const odds::SuitSets& sets) {
        const auto places = odds::placesOf<5>(sets);
        const auto cards = odds::cardsAt(places);
        const rules::HandFacts facts(rules::sortedByRank(cards));
        for (const bool final : {false, true})
            if (EvaluatePokerHand(cards, final) != rules::playCode(facts, final))
                rows = odds::holdText(places, odds::holdAll);
        const Payout* payout = payoutFor(rules::playCode(facts, true));
        odds::Hold hold = 0;
        for (std::size_t card = 0; card < places.size(); ++card)
            hold |= std::ranges::binary_search(places, deal.places[card]) ? 1U << card : 0U;
        paid[hold] += payout == nullptr ? 0 : payout->pays;
        ++hands;
    };
    ProgressBar bar;
    odds::forEachClass(5, [&](const odds::SuitSets& sets) {
        odds::forEachMember(sets, visit);
        bar(static_cast<double>(hands) / static_cast<double>(odds::FairOdds::deals));
    });
    std::string draws;
    for (odds::Hold hold = 0; hold < odds::holds && draws.empty(); ++hold)
        draws =
            differs(odds::holdText(deal.places, hold), deal.expectedCredits(hold).text(),
                    odds::Fraction(paid[hold], odds::choose[5 - odds::cardsIn[hold]][47]).text());
    return {hands == odds::FairOdds::deals ? rows : std::to_string(hands) + " hands", draws};
}

std::string checkReturns()
{
    constexpr std::array<const char*, odds::commonPays.size()> known{
        "1653526326983/1661102543100", "408838064311/415275635775", "38009381393/38630291700",
        "1616226757427/1661102543100", "24570826799/25555423740",   "1577983249081/1661102543100"};
    std::string fault;
    for (std::size_t i = 0; i < known.size() && fault.empty(); ++i) {
        const odds::HeldCards heldCards(odds::parsePays(odds::commonPays[i]));
        fault = differs(std::string(odds::commonPays[i]), odds::fairOdds(heldCards).returned.text(),
                        known[i]);
    }
    return fault;
}

// Winnings only grow, so the chances of results up to even need no larger ones.
std::string checkSession(const odds::Round& round)
{
    constexpr std::int64_t hands = 600;
    std::vector<double> chances(hands + 1); // of each number of wagers won
    chances[0] = 1;
    for (std::int64_t hand = 0; hand < hands; ++hand)
        for (std::size_t won = chances.size(); won-- > 0;) {
            double chance = 0;
            for (const auto& [credits, share] : round.wins) {
                const auto pays = static_cast<std::size_t>(credits / wager);
                chance += pays <= won ? share * chances[won - pays] : 0;
            }
            chances[won] = chance;
        }
    const odds::Sitting sitting(round, hands);
    for (std::int64_t net = -hands * wager; const double chance : chances) {
        const double found = sitting.chanceOf(net, net);
        if (std::abs(found - chance) > odds::sittingBound)
            return differs(std::to_string(net), decimals(found, 12), decimals(chance, 12));
        net += wager;
    }
    return {};
}

std::string checkChart(const odds::HeldCards& heldCards, const charts::ChartPrice& price)
{
    const charts::Chart& chart = charts::trainersChart();
    std::string fault = differs("return", price.played[charts::Taken::best].returned.text(),
                                "149999803741/151009322100");
    charts::forEachPlayedDeal(heldCards, chart, [&](const charts::PlayedDeal& deal) {
        const auto code = rules::playCode(odds::cardsAt(deal.hand.places), false);
        if (fault.empty())
            fault = differs(odds::holdText(deal.hand.places, odds::holdAll),
                            charts::rowText(chart[deal.play.row]), std::string(playName(code)));
    });
    return fault;
}

} // namespace

void selfTest(std::ostream& out)
{
    int failed = 0;
    const auto print = [&](const char* compared, const std::string& fault) {
        out << (fault.empty() ? "passed  " : "FAILED  ") << compared << "\n" << std::flush;
        if (!fault.empty())
            out << "        " << fault << "\n";
        failed += fault.empty() ? 0 : 1;
    };
    const odds::HeldCards heldCards;
    const auto [rows, draws] = checkHands({heldCards, {8, 9, 10, 12, 13}}); // 9c Tc Jc Kc Ad
    print("the rows of all 2,598,960 hands, dealt and final: by tables and by rules", rows);
    print("the 32 holds of a deal: by tables, and draw by draw by rules", draws);
    print("the return of perfect play at six pay tables: as known, exactly", checkReturns());
    const charts::ChartPrice price = charts::priceChart(heldCards, charts::trainersChart());
    print("the results of 600 hands: by Fourier transform, and hand by hand",
          checkSession(odds::roundOf(price.perfect.chances, heldCards.pays())));
    print("the trainer's chart: its row for each deal by rules, and the return",
          checkChart(heldCards, price));
    if (failed > 0)
        throw std::runtime_error("the self-test failed: " + std::to_string(failed) +
                                 " of 5 checks");
}

} // namespace quillet::odds_program
