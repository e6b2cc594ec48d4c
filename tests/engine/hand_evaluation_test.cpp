#include "engine/hand_evaluation.h"
#include "tests/engine/card_text.h"
#include "tests/engine/slow_evaluation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <random>
#include <vector>

namespace quillet::test
{

namespace
{

using Hand = std::array<Card, 5>;

Hand overFillers(std::span<const Card> held)
{
    Hand cards;
    for (int place = 0; place < 5; ++place)
        cards[static_cast<std::size_t>(place)] = fillerCard(place);
    std::ranges::copy(held, cards.begin());
    return cards;
}

// Calls visit for every choice of so many cards of the deck, in ascending order.
template <typename Visit>
void forEachChoice(std::vector<Card>& chosen, std::size_t count, const Visit& visit,
                   std::int16_t from = 0)
{
    if (chosen.size() == count) {
        visit(chosen);
        return;
    }
    for (std::int16_t cardId = from; cardId < 52; ++cardId) {
        chosen.push_back(makeCard(cardId));
        forEachChoice(chosen, count, visit, static_cast<std::int16_t>(cardId + 1));
        chosen.pop_back();
    }
}

bool agreesWithTheLongWay(const Hand& cards)
{
    const PlayCodes codes{EvaluatePokerHand(cards, false), EvaluatePokerHand(cards, true)};
    const PlayCodes expected = slowPlayCodes(cards);
    for (const Card& card : codes == expected ? std::span<const Card>() : cards)
        ADD_FAILURE() << "in one hand: rank " << card.rank << ", suit " << card.suit;
    return codes == expected;
}

// The coach takes a hold whose code is the dealt hand's and which keeps as many cards as that
// code does.
bool hasAnAcceptedHold(const Hand& cards, std::int16_t code)
{
    for (unsigned hold = 0; hold < 32; ++hold) {
        if (std::popcount(hold) != CardsToHand(code))
            continue;
        std::vector<Card> held;
        for (unsigned slot = 0; slot < 5; ++slot) {
            if ((hold >> slot & 1U) != 0)
                held.push_back(cards[slot]);
        }
        if (EvaluatePokerHand(overFillers(held), false) == code)
            return true;
    }
    return false;
}

struct Row {
    const char* cards;
    int dealt;
    int final;
};

} // namespace

TEST(EvaluatePokerHand, neighbouringRowsAreToldApart)
{
    const std::vector<Row> rows{
        {"Th Jh Qh Kh Ah", 1, 1},   {"As 2s 3s 4s 5s", 2, 2},   {"9d Td Jd Qd Kd", 2, 2},
        {"7c 7d 7h 7s 2c", 3, 3},   {"5c 5d 5h 9s 9c", 4, 4},   {"Jc Qc Kc Ac 9c", 5, 6},
        {"Jc Qc Kc Ac 9d", 5, 12},  {"9d Tc Jc Qc Kc", 5, 7},   {"5c 6c 7c 8c Kc", 6, 6},
        {"Tc Jd Qh Ks Ac", 7, 7},   {"2c Jd Qh Ks Ac", 18, 18}, {"5c 6c 7c 8c 9d", 7, 7},
        {"8c 8d 8h 9c Tc", 8, 8},   {"9s Ts Js Qs Jh", 9, 11},  {"Ah 2h 3h 4h 9c", 9, 13},
        {"5c 6c 8c 9c 2d", 13, 13}, {"3c 3d 9h 9s Kc", 10, 10}, {"Kc Kd Tc Jc 5s", 11, 11},
        {"Th Jh Qh 4c 4d", 12, 12}, {"2h 5h 8h Jh Jc", 11, 11}, {"2h 5h 8h Th Tc", 13, 13},
        {"Ts 7d 8c 9h Tc", 14, 14}, {"9c Td Jh Qs Ad", 15, 15}, {"Ac 2d 3h 4s 9c", 20, 20},
        {"5c 6c 7c 8d Ks", 15, 15}, {"5c 6c 7c Kd Qd", 16, 16}, {"5h 6h 7h Qc Kd", 17, 17},
        {"Ac 2c 3c 9d Kh", 17, 17}, {"Jh Qs Tc 4d Th", 14, 14}, {"Jh Qs Th 4d 2c", 18, 18},
        {"Td Kd 2c 5h 7s", 19, 19}, {"Td Ad 2c 5h 7s", 20, 20}, {"2h 4s 6c 8d Th", 21, 21},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(EvaluatePokerHand(hand(row.cards), false), row.dealt) << row.cards;
        EXPECT_EQ(EvaluatePokerHand(hand(row.cards), true), row.final) << row.cards;
    }
}

// Every deal must have a hold that the coach takes, or the player could never draw.
TEST(EvaluatePokerHand, everyHandOfTheDeckIsClassedAndCanBePlayed)
{
    std::array<int, 22> dealt{};
    std::array<int, 22> final{};
    bool same = true;
    bool playable = true;
    std::vector<Card> chosen;
    forEachChoice(chosen, 5, [&](const std::vector<Card>& cards) {
        const Hand five = overFillers(cards);
        const auto code = EvaluatePokerHand(five, false);
        same = same && agreesWithTheLongWay(five);
        playable = playable && hasAnAcceptedHold(five, code);
        ++dealt.at(static_cast<std::size_t>(code));
        ++final.at(static_cast<std::size_t>(EvaluatePokerHand(five, true)));
    });
    ASSERT_TRUE(same && playable);

    // Codes 0 to 11, as the textbooks count them.
    const std::vector<int> textbook{0, 4, 36, 624, 3744, 0, 5108, 10200, 54912, 0, 123552, 337920};
    EXPECT_EQ(std::vector<int>(final.begin(), final.begin() + 12), textbook);
    // Four of the five royal cards and any fifth but the royal's own, or the nine that makes a
    // straight flush; with one of the suit's other eight the hand would else be a flush.
    EXPECT_EQ(dealt[5], 4 * (5 * 47 - 1));
    EXPECT_EQ(final[6] - dealt[6], 4 * (5 * 8 - 1));
}

TEST(EvaluatePokerHand, everyHoldIsClassedOverFillers)
{
    bool same = true;
    std::vector<Card> chosen;
    for (std::size_t count = 0; count <= 4; ++count) {
        forEachChoice(chosen, count, [&](const std::vector<Card>& cards) {
            same = same && agreesWithTheLongWay(overFillers(cards));
        });
    }
    EXPECT_TRUE(same);
}

// Ranks and suits that no deck has, drawn from few values so that they meet, in any order.
TEST(EvaluatePokerHand, oddCardsAreClassedByTheLetter)
{
    const std::vector<std::int16_t> ranks{0,  1,  2,  3,  4,   9,   10,  11, 12,
                                          13, 14, 15, 99, 100, 101, 299, 300};
    const std::vector<std::int16_t> suits{-32768, -4, -1,  0,   1,   2,   3,    4,
                                          7,      64, 152, 155, 164, 256, 32767};
    std::mt19937 random(7);
    bool same = true;
    for (int round = 0; same && round < 300000; ++round) {
        const auto someRanks = 2 + random() % 16, firstRank = random() % ranks.size();
        const auto someSuits = 1 + random() % 4, firstSuit = random() % suits.size();
        Hand cards;
        for (Card& card : cards)
            card = {-1, ranks[(firstRank + random() % someRanks) % ranks.size()],
                    suits[(firstSuit + random() % someSuits) % suits.size()]};
        same = agreesWithTheLongWay(cards);
    }
    EXPECT_TRUE(same);
}

TEST(CardsToHand, keepsTheCardsOfThePattern)
{
    const std::vector<int> kept{5, 5, 4, 5, 4, 5, 5, 3, 4, 4, 2, 3, 4, 2, 4, 2, 3, 2, 2, 1, 0};
    for (std::size_t row = 0; row < kept.size(); ++row)
        EXPECT_EQ(CardsToHand(static_cast<std::int16_t>(row + 1)), kept[row]) << row + 1;
    for (const int outside : {-32768, -1, 0, 22, 32767})
        EXPECT_EQ(CardsToHand(static_cast<std::int16_t>(outside)), 0) << outside;
}

} // namespace quillet::test
