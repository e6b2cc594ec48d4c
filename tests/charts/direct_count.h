#pragma once

#include "odds/dealt_hand.h"

#include <functional>
#include <span>
#include <vector>

// Deals and draws counted once more without any table of the program's.
namespace quillet::charts::test
{

using Cards5 = std::array<Card, 5>;

[[nodiscard]] std::vector<Card> heldOf(const Cards5& cards, Hold hold);

// The draws from what is left to a hold by what they come to, one draw after the other.
[[nodiscard]] OutcomeCounts drawsOneByOne(const std::vector<Card>& held,
                                          std::span<const Card> left);

// Ranks, with how many cards there are of each.
struct Ranks {
    explicit Ranks(std::span<const Card> cards = {});

    void add(int rank);

    bool operator==(const Ranks&) const = default;

    std::array<unsigned, 4> ofAtLeast{}; // one card, two ...
};

// The draws to all holds of a deal by what they come to. They are counted by their ranks, as many
// at once as differ in suits alone, and those that end in one suit apart. Deals of the same ranks
// that come one after the other share the first.
class DirectCount
{
public:
    [[nodiscard]] std::array<OutcomeCounts, holds> draws(const Cards5& cards);

private:
    Ranks m_dealt;
    std::array<OutcomeCounts, holds> m_byRanks{};
};

// Calls visit for one deal of each class, its cards in the order of their ranks, and with the
// number of deals in the class; the deals of the same ranks one after the other.
void forEachDirectDeal(const std::function<void(const Cards5&, int members)>& visit);

} // namespace quillet::charts::test
