#include "odds/bad_input.h"
#include "odds/break_even.h"
#include "odds/dealt_hand.h"
#include "odds/fair_odds.h"
#include "odds/hand_text.h"
#include "tests/kit/held_cards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace quillet::test
{

using namespace odds;

namespace
{

const FairOdds& odds()
{
    static const FairOdds theOdds = fairOdds(heldCards());
    return theOdds;
}

HeldCards withRoyal(std::string_view name, std::int64_t royal)
{
    Pays pays = parsePays(name);
    pays[1] = royal;
    return HeldCards(pays);
}

} // namespace

// Published figures.
TEST(FairOdds, perfectPlayComesOutAsPublished)
{
    for (const auto& [name, returned] : {std::pair{"9/6", "99.543904"},
                                         {"9/5", "98.449808"},
                                         {"8/6", "98.392685"},
                                         {"8/5", "97.298434"},
                                         {"7/5", "96.147209"},
                                         {"6/5", "94.996137"}}) {
        const FairOdds table = fairOdds(HeldCards(parsePays(name)));
        EXPECT_EQ((table.returned * 100).decimals(6), returned) << name;
    }
    EXPECT_EQ(odds().returned.text(), "1653526326983/1661102543100");
    const Fraction& royal = odds().chances[1];
    EXPECT_EQ(Fraction(royal.denominator(), royal.numerator()).decimals(2), "40390.55");
}

TEST(BreakEven, isWhereTheReturnWithAWholeRoyalPassesOne)
{
    for (const auto& [name, up] : {std::pair{"9/6", 4880}, {"8/5", 8666}}) {
        const Fraction below = fairOdds(withRoyal(name, up - 1)).returned;
        const Fraction rise = fairOdds(withRoyal(name, up)).returned - below;
        const Fraction missing = Fraction(1, 1) - below;
        EXPECT_TRUE(Fraction() < missing && !(rise < missing)) << name;
        // Perfect play is the same for both royals, so the return is a straight line between them.
        EXPECT_EQ(perfectBreakEven(HeldCards(parsePays(name)))->royal,
                  Fraction(up - 1, 1) + Fraction(missing.numerator() * rise.denominator(),
                                                 missing.denominator() * rise.numerator()));
    }
    EXPECT_FALSE(perfectBreakEven(HeldCards(parsePays("99/9")))) << "more without a royal";
    EXPECT_TRUE(perfectBreakEven(HeldCards(Pays{}))) << "royals alone pay";
}

TEST(BreakEven, bestHoldsAreThoseOfEachRoyal)
{
    for (const std::int64_t royal : {0, 250, 3600, 4000, 5000, 20000, 100000}) {
        const HeldCards paying = withRoyal("9/6", royal);
        for (const char* text : {"AcKdQhJh2s", "9cTcJcKcAd", "TcJcQcJdTh", "2c2d2h2s3d"}) {
            const auto deal = heldDeal(parseHand(text), 0).places;
            const DealtHand dealt(paying, deal);
            const auto best = bestHolds(heldCards(), DealtHand(heldCards(), deal));
            std::size_t i = best.size() - 1;
            while (Fraction(royal, 1) < best[i].royal)
                --i;
            EXPECT_EQ(dealt.worth[best[i].hold], dealt.worth[dealt.bestHold])
                << text << " at " << royal;
        }
    }
}

TEST(DealtHand, drawsPayWhatAHoldIsWorth)
{
    const Pays pays = trainersPays();
    for (const char* text : {"2d3d4d5d6d", "9cTcJcKcAd", "7c7d7s8h9s", "3c3h5d8sKh"}) {
        const auto deal = heldDeal(parseHand(text), 0).places;
        const DealtHand dealt(heldCards(), deal);
        for (Hold hold = 0; hold < holds; ++hold) {
            const OutcomeCounts counts = dealt.drawOutcomes(heldCards(), hold);
            const Int128 paid =
                std::inner_product(counts.begin(), counts.end(), pays.begin(), Int128{0});
            const Int128 draws = std::accumulate(counts.begin(), counts.end(), Int128{0});
            EXPECT_EQ(Fraction(paid, draws), dealt.expectedCredits(hold)) << holdText(deal, hold);
        }
    }
}

TEST(Pays, areReadAsAPersonWritesThem)
{
    EXPECT_EQ(parsePays("# my 8/5 or rather\r\n 9 / 6 \r\n"), trainersPays());
    EXPECT_EQ(parsePays("8/5"), (Pays{0, 4000, 250, 125, 40, 25, 20, 15, 10, 5}));
    EXPECT_EQ(
        parsePays(
            "Royal 4,000 # 5 coins\r\nStraight flush,250\n\n4 of a kind: 125\n45,30\n20 15 10 5"),
        trainersPays());
    const auto complaint = [](std::string_view text) -> std::string {
        try {
            (void)parsePays(text);
            return "none";
        } catch (const BadInput& error) {
            return error.what();
        }
    };
    EXPECT_EQ(complaint("4000 250\n125 4x5"),
              "pay table, line 2: '4x5' is not a number of credits, 0 to 100000");
    EXPECT_EQ(complaint("1 2 3 4 5 6 7 8 9 10"), "pay table, line 1: more than nine hands pay");
    EXPECT_EQ(complaint("4000 250 125\nFull house 45\nStraight 20\nFlush 30\n15 10 5"),
              "pay table, line 3: 'Straight 20' names straight, but flush is expected here");
    EXPECT_EQ(complaint("ROYAL FLUSH: 4000\nStraight-flush 250\nFour of a kind 125\nBoat 45\n"
                        "All flushes 30\nStraights 20\nThree  of a kind 15\nTwo pairs 10\n"
                        "High pair (jacks or better) 5"),
              "none");
    for (const char* text :
         {"Straight flush 4000\nRoyal flush 250\n125 45 30 20 15 10 5",
          "Royal 4000 Straight flush 250\n250 125 45 30 20 15 10 5",
          "4000 250\nTwo pair 125\n45 30 20 15 10 5", "", "9", "9/", " / 6", "9 0/6", "9/-6", "/",
          "100001 8 7 6 5 4 3 2 1", "99999/6", "Royal 40,00\n250 125 45 30 20 15 10 5",
          "4e3 250 125 45 30 20 15 10 5", "4,000 250 125 45 30 20 15 10",
          "5 10 15 20 30 45 125 250 4000"})
        EXPECT_NE(complaint(text), "none") << text;
}

} // namespace quillet::test
