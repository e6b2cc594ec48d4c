#include "coach/hold_judgement.h"
#include "odds/dealt_hand.h"
#include "odds/hand_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace quillet::test
{

namespace
{

const HeldCards& heldCards()
{
    static const HeldCards theHeldCards;
    return theHeldCards;
}

std::array<DeckPlace, 5> randomPlaces(std::mt19937& random)
{
    std::array<DeckPlace, 52> deck{};
    std::iota(deck.begin(), deck.end(), DeckPlace{0});
    std::ranges::shuffle(deck, random);
    std::array<DeckPlace, 5> places{};
    std::copy_n(deck.begin(), 5, places.begin());
    std::ranges::sort(places);
    return places;
}

} // namespace

TEST(DealtHand, acceptedHoldsAreThoseOfTheCoach)
{
    std::mt19937 random(12);
    for (int deal = 0; deal < 20000; ++deal) {
        const DealtHand hand(heldCards(), randomPlaces(random));
        std::array<Card, 5> cards;
        std::ranges::transform(hand.places, cards.begin(), cardAt);
        for (Hold hold = 0; hold < holds; ++hold) {
            std::array<bool, 5> holdFlags{};
            for (std::size_t i = 0; i < holdFlags.size(); ++i)
                holdFlags[i] = (hold >> i & 1U) != 0;
            ASSERT_EQ(judgeHold(cards, holdFlags, hand.chartCode).correct, hand.isAccepted(hold))
                << holdText(hand.places, holdAll) << " holding " << holdText(hand.places, hold);
        }
    }
}

} // namespace quillet::test
