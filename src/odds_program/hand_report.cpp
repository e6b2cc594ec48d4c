#include "engine/hand_evaluation.h"
#include "odds/hand_text.h"
#include "odds_program/reports.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace quillet::odds_program
{

namespace
{

constexpr std::size_t shownByDefault = 6;

std::int64_t asNumber(bool truth)
{
    return truth ? 1 : 0;
}

// "royal in 1, flush in 8".
std::string waysText(const odds::OutcomeCounts& counts)
{
    std::string text;
    for (std::size_t outcome = 1; outcome < odds::outcomes; ++outcome) {
        if (counts[outcome] > 0)
            text += (text.empty() ? "" : ", ") + std::string(odds::outcomeName(outcome)) + " in " +
                    std::to_string(counts[outcome]);
    }
    return text.empty() ? "nothing that pays" : text;
}

// The discards that the hold misses, and how much.
std::string penaltiesText(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                          odds::Hold hold)
{
    std::string text;
    for (std::size_t card = 0; hold != 0 && card < hand.places.size(); ++card) {
        if ((hold >> card & 1U) != 0)
            continue;
        const double penalty = hand.penaltyOf(heldCards, hold, card);
        if (penalty > 0)
            text += (text.empty() ? "" : ", ") + odds::cardText(hand.places[card]) + " " +
                    decimals(penalty, 4);
    }
    return text;
}

std::string marks(const odds::DealtHand& hand, odds::HoldSet fitting, odds::Hold hold)
{
    std::string text = hand.worth[hold] == hand.worth[hand.bestHold] ? "best" : "";
    if (!text.empty() && odds::contains(fitting, hold))
        text += ", ";
    if (odds::contains(fitting, hold))
        text += hold == hand.bestOf(fitting) ? "the chart's" : "accepted too";
    return text;
}

std::string why(const odds::HeldCards& heldCards, const odds::DealtHand& hand, odds::Hold hold)
{
    const odds::OutcomeCounts counts = hand.drawOutcomes(heldCards, hold);
    const int draws = std::accumulate(counts.begin(), counts.end(), 0);
    std::string text = "Of " + std::to_string(draws) + (draws == 1 ? " draw, " : " draws, ") +
                       (hold == 0 ? "five new cards" : odds::holdText(hand.places, hold)) +
                       (hold == 0 ? " make " : " makes ") + waysText(counts) + ".";
    const std::string penalties = penaltiesText(heldCards, hand, hold);
    if (!penalties.empty())
        text += " If a discard were still in the deck, the hold would be worth this much more: " +
                penalties + ".";
    return wrapped(text);
}

} // namespace

Report handReport(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                  const charts::Play& play, bool all)
{
    Table table{"holds",
                odds::holdText(hand.places, odds::holdAll) + ": row " +
                    std::to_string(play.row + 1) + " of the chart, " +
                    std::string(playName(static_cast<std::int16_t>(play.row + 1))) + "\n\n",
                {{"number", "No."},
                 {"hold", "Hold"},
                 {"expected", "Expected"},
                 {"cost", "Costs"},
                 {"marks", "Is"},
                 {"best", ""},
                 {"chart", ""},
                 {"accepted", ""},
                 {"draws", ""}},
                {},
                {}};
    for (std::size_t outcome = 1; outcome < odds::outcomes; ++outcome)
        table.columns.push_back({std::string(odds::outcomeName(outcome)), ""});
    table.columns.push_back({"missed discards", ""});

    std::array<odds::Hold, odds::holds> order{};
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::stable_sort(order, std::greater(),
                             [&](odds::Hold hold) { return hand.worth[hold]; });
    const odds::Hold charts = hand.bestOf(play.fitting);
    const odds::Fraction best = hand.expectedCredits(hand.bestHold);
    std::int64_t number = 0;
    for (const odds::Hold hold : order) {
        ++number;
        if (!all && number > static_cast<std::int64_t>(shownByDefault) && hold != charts)
            continue;
        const odds::OutcomeCounts counts = hand.drawOutcomes(heldCards, hold);
        std::vector<Cell> row{number,
                              Cards{hand.places, hold},
                              Exact{hand.expectedCredits(hold), 8},
                              Exact{best - hand.expectedCredits(hold), 8},
                              marks(hand, play.fitting, hold),
                              asNumber(hand.worth[hold] == hand.worth[hand.bestHold]),
                              asNumber(hold == charts),
                              asNumber(odds::contains(play.fitting, hold)),
                              std::int64_t{std::accumulate(counts.begin(), counts.end(), 0)}};
        for (std::size_t outcome = 1; outcome < odds::outcomes; ++outcome)
            row.emplace_back(std::int64_t{counts[outcome]});
        row.emplace_back(penaltiesText(heldCards, hand, hold));
        table.rows.push_back(std::move(row));
    }
    table.outro = std::string{"\n"} + why(heldCards, hand, hand.bestHold);
    if (charts != hand.bestHold)
        table.outro += why(heldCards, hand, charts);
    return {table};
}

} // namespace quillet::odds_program
