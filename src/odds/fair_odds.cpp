#include "odds/fair_odds.h"

#include "engine/pay_table.h"

#include <bit>
#include <cassert>
#include <vector>

namespace quillet::odds
{

namespace
{

// Every number of accepted holds divides it, so that each gets a whole share.
constexpr std::int64_t shares = 60;
constexpr std::int64_t unit = DealtHand::worthUnit * shares;

using PerStrategy = std::array<std::int64_t, strategies>;

constexpr std::size_t at(Strategy strategy)
{
    return static_cast<std::size_t>(strategy);
}

// How a deal is played: which holds, and how many shares of it each strategy gives to each.
struct Plays {
    std::vector<Hold> accepted;
    Hold chartBest = 0;
    Hold chartWorst = 0;

    void find(const DealtHand& hand)
    {
        accepted.clear();
        for (std::uint32_t left = hand.accepted; left != 0; left &= left - 1)
            accepted.push_back(static_cast<Hold>(std::countr_zero(left)));
        chartBest = hand.bestAccepted();
        chartWorst = hand.worstOf(hand.accepted);
    }

    [[nodiscard]] PerStrategy sharesOf(Hold hold, const DealtHand& hand) const
    {
        const auto each = shares / static_cast<std::int64_t>(accepted.size());
        return {hold == hand.bestHold ? shares : 0, hold == chartBest ? shares : 0,
                hand.isAccepted(hold) ? each : 0, hold == chartWorst ? shares : 0};
    }
};

// Adds up all deals. The outcomes of a deal are sums over classes of held cards, so it is enough
// to add up how often each class is asked for; the classes' own counts come in once at the end.
class Totals
{
public:
    explicit Totals(const HeldCards& heldCards)
        : m_heldCards(heldCards), m_timesAsked(heldCards.classes())
    {
    }

    void add(const DealtHand& hand, std::int64_t members)
    {
        m_plays.find(hand);
        for (const Hold hold : m_plays.accepted)
            addPlay(hand, hold, members);
        if (!hand.isAccepted(hand.bestHold))
            addPlay(hand, hand.bestHold, members);
        addToRow(hand, members);
    }

    [[nodiscard]] FairOdds result();

private:
    void addPlay(const DealtHand& hand, Hold hold, std::int64_t members)
    {
        PerStrategy amount = m_plays.sharesOf(hold, hand);
        for (std::int64_t& each : amount)
            each *= members * DealtHand::unitsPerDraw[cardsIn[hold]];
        forEachLargerHold(hold, [&](Hold larger, int sign) {
            PerStrategy& sum = larger == holdAll ? m_asDealt[hand.dealtOutcome]
                                                 : m_timesAsked[hand.classOfHold[larger]];
            for (std::size_t i = 0; i < strategies; ++i)
                sum[i] += sign * amount[i];
        });
    }

    void addToRow(const DealtHand& hand, std::int64_t members);

    const HeldCards& m_heldCards;
    std::vector<PerStrategy> m_timesAsked;
    std::array<PerStrategy, outcomes> m_asDealt{};
    std::array<std::array<Int128, strategies>, playCodes> m_loss{};
    std::array<std::int64_t, playCodes> m_costliest{};
    Plays m_plays;
    FairOdds m_odds;
};

void Totals::addToRow(const DealtHand& hand, std::int64_t members)
{
    const auto row = static_cast<std::size_t>(hand.chartCode - 1);
    const std::int64_t best = hand.worth[hand.bestHold];
    const std::int64_t cost = best - hand.worth[m_plays.chartBest];
    std::int64_t average = best * shares;
    for (const Hold hold : m_plays.accepted)
        average -= hand.worth[hold] * (shares / std::ssize(m_plays.accepted));
    assert(shares % std::ssize(m_plays.accepted) == 0);

    m_odds.rows[row].deals += members;
    m_odds.dealsWithAChoice += m_plays.accepted.size() > 1 ? members : 0;
    m_odds.dealsPlayedPerfectly += cost == 0 ? members : 0;
    m_loss[row][at(Strategy::chartBest)] += Int128{members} * cost * shares;
    m_loss[row][at(Strategy::chartAverage)] += Int128{members} * average;
    m_loss[row][at(Strategy::chartWorst)] +=
        Int128{members} * (best - hand.worth[m_plays.chartWorst]) * shares;
    if (cost > m_costliest[row]) {
        m_costliest[row] = cost;
        m_odds.rows[row].example = hand.places;
    }
}

FairOdds Totals::result()
{
    constexpr Int128 allDeals = Int128{FairOdds::deals} * unit;
    for (std::size_t strategy = 0; strategy < strategies; ++strategy) {
        Int128 credits = 0;
        for (std::size_t outcome = 0; outcome < outcomes; ++outcome) {
            Int128 total = m_asDealt[outcome][strategy];
            for (std::size_t id = 0; id < m_timesAsked.size(); ++id)
                total += Int128{m_timesAsked[id][strategy]} *
                         m_heldCards.counts(static_cast<HeldCards::ClassId>(id))[outcome];
            m_odds.chances[strategy][outcome] = {total, allDeals};
            credits += total * m_heldCards.pays()[outcome];
        }
        m_odds.returned[strategy] = {credits, allDeals * wager};
        for (std::size_t row = 0; row < m_odds.rows.size(); ++row)
            m_odds.rows[row].loss[strategy] = {m_loss[row][strategy], allDeals * wager};
    }
    for (std::size_t row = 0; row < m_odds.rows.size(); ++row)
        m_odds.rows[row].costliest = {m_costliest[row], DealtHand::worthUnit};
    return m_odds;
}

} // namespace

FairOdds fairOdds(const HeldCards& heldCards)
{
    Totals totals(heldCards);
    forEachClass(5, [&](const SuitSets& sets) {
        totals.add(DealtHand(heldCards, placesOf<5>(sets)), classSize(sets));
    });
    return totals.result();
}

} // namespace quillet::odds
