#include "charts/plain_kinds.h"
#include "odds/hand_text.h"
#include "odds_program/reports.h"
#include "practice/reason.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace quillet::odds_program
{

namespace
{

constexpr std::int64_t shownByDefault = 6;

// "royal in 1, flush in 8".
std::string waysText(const odds::OutcomeCounts& counts)
{
    std::string text;
    for (std::size_t outcome = 1; outcome < odds::outcomeCount; ++outcome) {
        if (counts[outcome] > 0)
            text += (text.empty() ? "" : ", ") + std::string(odds::outcomeName(outcome)) + " in " +
                    std::to_string(counts[outcome]);
    }
    return text.empty() ? "nothing that pays" : text;
}

// The discards that would make the hold worth more if they were still in the deck, with the gain.
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

std::string drawsText(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                      odds::Hold hold)
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

// The hold to compare the best one with: the chart's or, if that is as good, the best hold of
// another kind.
odds::Hold rivalOf(const odds::DealtHand& hand, odds::Hold charts)
{
    if (hand.worth[charts] < hand.worth[hand.bestHold])
        return charts;
    const auto kind = [&hand](odds::Hold hold) {
        return charts::plainKindOf(charts::factsOf(hand, hold));
    };
    odds::HoldSet others = 0;
    for (odds::Hold hold = 0; hold < odds::holds; ++hold)
        if (kind(hold) != kind(hand.bestHold))
            others |= 1U << hold;
    return hand.bestOf(others);
}

std::string explanation(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                        odds::Hold charts)
{
    const std::string reason =
        practice::reason(heldCards, hand, hand.bestHold, rivalOf(hand, charts));
    return std::string{"\n"} + wrapped(reason) + drawsText(heldCards, hand, hand.bestHold) +
           (charts == hand.bestHold ? "" : drawsText(heldCards, hand, charts));
}

std::vector<Column> columnsOf(Format format)
{
    std::vector<Column> columns{{"number", "No."},
                                {"hold", "Hold"},
                                {"expected", "Expected"},
                                {"cost", "Cost"},
                                {"marks", "Is"}};
    if (format == Format::text)
        return columns;
    for (const char* field : {"best", "chart", "accepted", "draws"})
        columns.push_back({field, ""});
    for (std::size_t outcome = 1; outcome < odds::outcomeCount; ++outcome)
        columns.push_back({std::string(odds::outcomeName(outcome)), ""});
    columns.push_back({"missed discards", ""});
    columns.push_back({"reason", ""});
    return columns;
}

std::vector<Cell> rowOf(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                        odds::HoldSet fitting, std::int64_t number, odds::Hold hold, Format format)
{
    const odds::Fraction expected = hand.expectedCredits(hold);
    const odds::Fraction cost = hand.expectedCredits(hand.bestHold) - expected;
    std::vector<Cell> row{number, cards(hand.places, hold), exact(expected, 8), exact(cost, 8),
                          marks(hand, fitting, hold)};
    if (format == Format::text)
        return row;
    const odds::OutcomeCounts counts = hand.drawOutcomes(heldCards, hold);
    row.emplace_back(hand.worth[hold] == hand.worth[hand.bestHold]);
    row.emplace_back(hold == hand.bestOf(fitting));
    row.emplace_back(odds::contains(fitting, hold));
    row.emplace_back(std::accumulate(counts.begin(), counts.end(), 0));
    row.insert(row.end(), counts.begin() + 1, counts.end());
    row.emplace_back(penaltiesText(heldCards, hand, hold));
    row.emplace_back(
        hold == hand.bestHold ? "" : practice::reason(heldCards, hand, hand.bestHold, hold));
    return row;
}

} // namespace

Report handReport(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                  const charts::Play& play, bool all, Format format)
{
    const odds::Hold charts = hand.bestOf(play.fitting);
    Table table{"holds",
                odds::holdText(hand.places, odds::holdAll) + ": row " +
                    std::to_string(play.row + 1) + " of the chart, " +
                    charts::rowText(charts::trainersChart()[play.row]) + "\n\n",
                columnsOf(format)};
    std::array<odds::Hold, odds::holds> order{};
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::stable_sort(order, std::greater(),
                             [&](odds::Hold hold) { return hand.worth[hold]; });
    std::int64_t number = 0;
    for (const odds::Hold hold : order)
        if (++number <= shownByDefault || all || hold == charts)
            table.rows.push_back(rowOf(heldCards, hand, play.fitting, number, hold, format));
    if (format == Format::text)
        table.outro = explanation(heldCards, hand, charts);
    return {table};
}

} // namespace quillet::odds_program
