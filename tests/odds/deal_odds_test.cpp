#include "coach/hold_judgement.h"
#include "engine/hand_evaluation.h"
#include "odds/dealt_hand.h"
#include "odds/hand_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

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

// Deals every possible draw, one after the other.
class DirectCount
{
public:
    DirectCount(const DealtHand& hand, Hold hold)
    {
        for (DeckPlace place = 0; place < 52; ++place) {
            const auto found = std::ranges::find(hand.places, place);
            if (found == hand.places.end())
                m_left.push_back(place);
            else if ((hold >> (found - hand.places.begin()) & 1U) != 0)
                m_cards.push_back(cardAt(place));
        }
        draw(0);
    }

    OutcomeCounts counts{};

private:
    void draw(std::size_t from)
    {
        if (m_cards.size() == 5) {
            ++counts[outcomeOf(EvaluatePokerHand(std::span<const Card, 5>(m_cards), true))];
            return;
        }
        for (std::size_t i = from; i < m_left.size(); ++i) {
            m_cards.push_back(cardAt(m_left[i]));
            draw(i + 1);
            m_cards.pop_back();
        }
    }

    std::vector<DeckPlace> m_left;
    std::vector<Card> m_cards;
};

void expectDirectCount(const DealtHand& hand, Hold hold)
{
    const OutcomeCounts direct = DirectCount(hand, hold).counts;
    EXPECT_EQ(hand.drawOutcomes(heldCards(), hold), direct)
        << holdText(hand.places, holdAll) << " holding " << holdText(hand.places, hold);
}

} // namespace

TEST(DealtHand, drawsAreThoseOfADirectCount)
{
    std::mt19937 random(11);
    for (int deal = 0; deal < 12; ++deal) {
        const DealtHand hand(heldCards(), randomPlaces(random));
        for (Hold hold = 0; hold < holds; ++hold) {
            if (cardsIn[hold] >= 3 || (cardsIn[hold] == 2 && deal < 3))
                expectDirectCount(hand, hold);
        }
    }
    const DealtHand hand(heldCards(), randomPlaces(random));
    expectDirectCount(hand, 0);
    expectDirectCount(hand, 4);
}

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
