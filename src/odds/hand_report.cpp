#include "engine/hand_evaluation.h"
#include "engine/pay_table.h"
#include "odds/columns.h"
#include "odds/hand_text.h"
#include "odds/reports.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <ostream>

namespace quillet
{

namespace
{

// The holds from the best down, with what is to be said of each.
class RankedHolds
{
public:
    explicit RankedHolds(const DealtHand& hand) : m_hand(hand)
    {
        std::iota(order.begin(), order.end(), 0U);
        std::ranges::stable_sort(order, std::greater(),
                                 [&](Hold hold) { return hand.worth[hold]; });
        m_chartsHold =
            *std::ranges::find_if(order, [&](Hold hold) { return hand.isAccepted(hold); });
    }

    [[nodiscard]] bool isBest(Hold hold) const
    {
        return m_hand.worth[hold] == m_hand.worth[m_hand.bestHold];
    }
    [[nodiscard]] bool isCharts(Hold hold) const { return hold == m_chartsHold; }
    [[nodiscard]] Fraction cost(Hold hold) const
    {
        return m_hand.expectedCredits(m_hand.bestHold) - m_hand.expectedCredits(hold);
    }
    [[nodiscard]] std::string marks(Hold hold) const
    {
        std::string text = isBest(hold) ? "best" : "";
        if (!text.empty() && m_hand.isAccepted(hold))
            text += ", ";
        if (m_hand.isAccepted(hold))
            text += isCharts(hold) ? "the chart's hold" : "accepted too";
        return text;
    }

    std::array<Hold, holds> order{};

private:
    const DealtHand& m_hand;
    Hold m_chartsHold = 0; // the best of those that the coach accepts
};

void writeTable(std::ostream& out, const DealtHand& hand)
{
    const RankedHolds ranked(hand);
    out << holdText(hand.places, holdAll) << ": row " << hand.chartCode << " of the chart, "
        << playName(hand.chartCode) << "\n\n"
        << "    " << left("Hold", 16) << right("Expected", 14) << right("Costs", 14)
        << "  Expected, exactly\n";
    int number = 0;
    for (const Hold hold : ranked.order) {
        const Fraction expected = hand.expectedCredits(hold);
        const std::string marks = ranked.marks(hold);
        out << right(std::to_string(++number), 3) << " " << left(holdText(hand.places, hold), 16)
            << right(expected.decimals(8), 14) << right(ranked.cost(hold).decimals(8), 14) << "  "
            << left(expected.text(), marks.empty() ? 0 : 19) << marks << "\n";
    }
}

void writeCsv(std::ostream& out, const HeldCards& heldCards, const DealtHand& hand)
{
    out << "hold,expected,expected fraction,cost,cost fraction,best,chart,accepted,draws";
    for (const Payout& payout : payTable())
        out << "," << playName(payout.playCode);
    out << "\n";
    const RankedHolds ranked(hand);
    for (const Hold hold : ranked.order) {
        const Fraction expected = hand.expectedCredits(hold);
        const Fraction cost = ranked.cost(hold);
        const OutcomeCounts counts = hand.drawOutcomes(heldCards, hold);
        out << holdText(hand.places, hold) << "," << expected.decimals(8) << "," << expected.text()
            << "," << cost.decimals(8) << "," << cost.text() << "," << ranked.isBest(hold) << ","
            << ranked.isCharts(hold) << "," << hand.isAccepted(hold) << ","
            << std::accumulate(counts.begin(), counts.end(), 0);
        for (std::size_t outcome = 1; outcome < outcomes; ++outcome)
            out << "," << counts[outcome];
        out << "\n";
    }
}

} // namespace

void reportHand(std::ostream& out, const HeldCards& heldCards, const DealtHand& hand, Format format)
{
    if (format == Format::csv)
        writeCsv(out, heldCards, hand);
    else
        writeTable(out, hand);
}

} // namespace quillet
