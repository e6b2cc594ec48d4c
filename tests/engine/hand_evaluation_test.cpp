#include "engine/hand_evaluation.h"
#include "tests/kit/cards.h"

#include <gtest/gtest.h>

#include <algorithm>
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

using Counts = std::array<int, 21>; // by play code, 1 first

void count(Counts& counts, std::int16_t code)
{
    ++counts.at(static_cast<std::size_t>(code - 1));
}

struct Row {
    const char* cards;
    int dealt, final;
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

// Every deal must have a hold that the coach accepts, or the player could never draw.
TEST(EvaluatePokerHand, everyHandOfTheDeckIsClassedAndCanBePlayed)
{
    Counts dealt{};
    Counts final{};
    bool playable = true;
    forEachChoice(5, [&](const std::vector<Card>& cards) {
        const Hand five = overFillers(cards);
        const auto code = EvaluatePokerHand(five, false);
        playable = playable && acceptedHold(five, code);
        count(dealt, code);
        count(final, EvaluatePokerHand(five, true));
    });
    EXPECT_TRUE(playable);
    // Textbooks have the numbers of paying hands.
    EXPECT_EQ(final, (Counts{4,     36,     624,    3744,   0,     5108,   10200,
                             54912, 0,      123552, 337920, 29448, 89760,  733392,
                             59040, 177372, 9420,   418668, 33840, 416760, 95160}));
    EXPECT_EQ(dealt, (Counts{4,     36,     624,    3744,   936,   4952,   10128,
                             54912, 1200,   123552, 337680, 28824, 88716,  733392,
                             59040, 177372, 9420,   418668, 33840, 416760, 95160}));
    // Four of the five royal cards and any fifth but the royal's own, or the nine that makes a
    // straight flush.
    EXPECT_EQ(dealt[4], 4 * (5 * 47 - 1));
}

TEST(EvaluatePokerHand, everyHoldIsClassedOverFillers)
{
    Counts held{};
    for (std::size_t cards = 0; cards <= 4; ++cards)
        forEachChoice(cards, [&](const std::vector<Card>& hold) {
            count(held, EvaluatePokerHand(overFillers(hold), false));
        });
    EXPECT_EQ(held, (Counts{0,    0,    13,    0,    20,    0,   0,     2548, 36,    2808, 26520,
                            1628, 2488, 59598, 2208, 18456, 936, 47364, 5300, 88440, 35841}));
}

TEST(EvaluatePokerHand, cardsOfNoDeckAreClassedByTheLetter)
{
    const auto code = [](const Hand& cards) { return EvaluatePokerHand(cards, false); };
    EXPECT_EQ(code(hand("9c 9c 2d 4h 7s")), 14) << "twins are a pair";
    EXPECT_EQ(code({{{-1, 9, 0}, {-1, 4, 1}, {-1, 2, 2}, {-1, 7, 3}, {-1, 9, 164}}}), 14);
    const Card low{-1, 0, 0};
    EXPECT_EQ(code({low, {-1, 1, 1}, {-1, 2, 2}, {-1, 3, 3}, {-1, 300, 0}}), 15);
    EXPECT_EQ(code({{{-1, 12, 0}, {-1, 13, 0}, {-1, 14, 0}, {-1, 15, 0}, {-1, 16, 0}}}), 2);
    EXPECT_EQ(code({{{-1, 10, 0}, {-1, 10, 1}, {-1, 2, 9}, {-1, 5, 9}, {-1, 18, 9}}}), 14);
    EXPECT_EQ(code({{{-1, 1, 9}, {-1, 11, 9}, {-1, 2, 0}, {-1, 5, 1}, {-1, 8, 2}}}), 18);
    EXPECT_EQ(code({{{-1, 99, 0}, {-1, 99, 1}, {-1, 99, 2}, {-1, 99, 3}, {-1, 7, 4}}}), 21);
    EXPECT_EQ(code({{{-1, 2, 164}, {-1, 5, 164}, {-1, 8, 164}, {-1, 6, 164}, {-1, 10, 1}}}), 21);
}

} // namespace quillet::test
