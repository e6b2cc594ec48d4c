#include "odds/draws.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace quillet::odds
{

namespace
{

// Draws with the same outcomes have the same key. A key is a sum over classes of held cards, as the
// outcomes are, so only one draw of each kind has to be counted.
class DrawKeys
{
public:
    explicit DrawKeys(const HeldCards& heldCards)
    {
        for (std::size_t outcome = 1; outcome < outcomeCount; ++outcome)
            m_ofOutcome[outcome] = m_ofOutcome[outcome - 1] * 0x9e3779b97f4a7c15U; // any large one
        for (HeldCards::ClassId id = 0; id < HeldCards::classCount; ++id)
            for (std::size_t outcome = 0; outcome < outcomeCount; ++outcome)
                m_ofClass[id] += m_ofOutcome[outcome] *
                                 static_cast<std::uint64_t>(heldCards.counts(id)[outcome]);
    }

    [[nodiscard]] std::uint64_t of(const DealtHand& hand, Hold hold) const
    {
        std::uint64_t sum = 0;
        forEachLargerHold(hold, [&](Hold larger, int sign) {
            sum += static_cast<std::uint64_t>(sign) * (larger == holdAll
                                                           ? m_ofOutcome[hand.dealtOutcome]
                                                           : m_ofClass[hand.classOfHold[larger]]);
        });
        return sum;
    }

private:
    std::array<std::uint64_t, outcomeCount> m_ofOutcome{1};
    std::vector<std::uint64_t> m_ofClass = std::vector<std::uint64_t>(HeldCards::classCount);
};

} // namespace

std::vector<Draws> drawsOf(const HeldCards& heldCards, const std::vector<Player>& players)
{
    const DrawKeys keys(heldCards);
    std::vector<std::unordered_map<std::uint64_t, Draw>> byKey(players.size());
    forEachDeal(heldCards, [&](const DealtHand& hand, int members) {
        for (std::size_t i = 0; i < players.size(); ++i) {
            const Hold hold = players[i](hand);
            Draw& draw = byKey[i][keys.of(hand, hold)];
            if (draw.deals == 0)
                std::ranges::transform(hand.drawOutcomes(heldCards, hold), draw.chances.begin(),
                                       [hold](std::int64_t count) {
                                           return Fraction(count, choose[5 - cardsIn[hold]][47]);
                                       });
            draw.deals += members;
        }
    });
    std::vector<Draws> draws(players.size());
    for (std::size_t i = 0; i < players.size(); ++i)
        for (const auto& [key, draw] : byKey[i])
            draws[i].push_back(draw);
    return draws;
}

double chanceOfAtLeastOne(const Draws& draws, std::size_t outcome, std::int64_t lines,
                          std::int64_t rounds)
{
    double inOneRound = 0;
    for (const Draw& draw : draws)
        inOneRound -= draw.share() * std::expm1(static_cast<double>(lines) *
                                                std::log1p(-draw.chances[outcome].value()));
    return -std::expm1(static_cast<double>(rounds) * std::log1p(-inOneRound));
}

} // namespace quillet::odds
