#include "coach/hold_judgement.h"
#include "engine/hand_evaluation.h"
#include "tests/kit/card_text.h"

#include <gtest/gtest.h>

namespace quillet::test
{

TEST(HoldJudgement, holdsAreJudgedByPlayAndNumberOfCards)
{
    struct Row {
        const char* dealt;
        const char* held;
        bool correct;
    };
    const Row rows[] = {
        {"2h 4s 6c 8d Th", "", true}, // all trash keeps nothing
        {"2h 4s 6c 8d Th", "1", false},
        {"7c 7d 7h 7s 2c", "1234", true}, // the kicker changes nothing, yet is refused
        {"7c 7d 7h 7s 2c", "12345", false},
        {"Jc Jd 4h 7s 9c", "12", true},
        {"Jc Jd 4h 7s 9c", "123", false},
        {"Jc Jd 4h 7s 9c", "1", false},
        {"Td Jd Qd Kd 3d", "1234", true}, // four to a royal before the made flush
        {"Td Jd Qd Kd 3d", "12345", false},
        {"Jc Qd Kh 4s 3c", "12", true}, // any two of three unsuited high cards
        {"Jc Qd Kh 4s 3c", "23", true},
        {"Jc Qd Kh 4s 3c", "123", false},
        {"Ac Kc Qd Jd 2s", "12", true}, // either of two suited pairs
        {"Ac Kc Qd Jd 2s", "34", true},
        {"Ac Kc Qd Jd 2s", "13", false},
    };
    for (const Row& row : rows) {
        const auto cards = hand(row.dealt);
        std::array<bool, 5> held{};
        for (const char* digit = row.held; *digit != '\0'; ++digit)
            held.at(static_cast<std::size_t>(*digit - '1')) = true;
        const std::int16_t best = EvaluatePokerHand(cards, false);
        EXPECT_EQ(judgeHold(cards, held, best).correct, row.correct) << row.dealt << row.held;
    }
}

} // namespace quillet::test
