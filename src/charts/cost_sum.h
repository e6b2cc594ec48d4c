#pragma once

#include "engine/pay_table.h"
#include "odds/fair_odds.h"

#include <array>
#include <cstdint>

namespace quillet::charts
{

struct CostliestDeal {
    odds::Fraction cost;                     // in credits
    std::array<odds::DeckPlace, 5> places{}; // not set when no deal costs anything
};

// Adds up what deals cost against perfect play, and keeps the costliest of them.
class CostSum
{
public:
    // Divisible by the numbers of holds that can fit a line, 1 to 16, so that each gets a whole
    // share of a deal.
    static constexpr std::int64_t shares = 720720;

    // Takes the cost of one deal in shares of a worth unit, and how many such deals there are.
    // Returns whether it is the costliest so far.
    bool add(const odds::DealtHand& hand, std::int64_t cost, int deals)
    {
        m_sum += odds::Int128{cost} * deals;
        if (cost <= m_highest)
            return false;
        m_highest = cost;
        m_places = hand.places;
        return true;
    }

    // In credits per credit bet over all deals of the game.
    [[nodiscard]] odds::Fraction perCreditBet() const
    {
        return {m_sum, odds::Int128{odds::FairOdds::deals} * wager * unit};
    }

    [[nodiscard]] CostliestDeal costliest() const { return {{m_highest, unit}, m_places}; }

private:
    static constexpr odds::Int128 unit = odds::Int128{odds::DealtHand::worthUnit} * shares;

    odds::Int128 m_sum = 0;
    std::int64_t m_highest = 0;
    std::array<odds::DeckPlace, 5> m_places{};
};

} // namespace quillet::charts
