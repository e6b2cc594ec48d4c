#include "practice/estimate.h"
#include "tests/kit/practice_players.h"

#include <gmock/gmock.h>

namespace quillet::practice::test
{

namespace
{

// The number of intervals that contain the exact return. Fails if the half width of one, in
// percentage points, is larger.
int insideOf(const Player& player, std::size_t answers, int sessions, double halfWidth)
{
    int inside = 0;
    for (int seed = 1; seed <= sessions; ++seed) {
        Session session(player, static_cast<std::uint64_t>(seed));
        session.answerUntil(answers);
        const Estimate told = estimateReturn(decisions(), session.answers);
        EXPECT_NEAR(told.returned + told.closeLoss + told.slipLoss, decisions().perfectReturn(),
                    1e-12);
        const double exact = player.returned;
        inside += exact >= told.low - 1e-12 && exact <= told.high + 1e-12 ? 1 : 0;
        EXPECT_LE(50 * (told.high - told.low), halfWidth);
    }
    return inside;
}

} // namespace

// The benchmark does the same for many more sessions.
TEST(Estimate, holdsTheExactReturnOfPlayersWhoseReturnIsKnown)
{
    const auto& chart = charts::trainersChart();
    for (const Player& player : {Player({}), Player(chart)}) {
        EXPECT_GE(insideOf(player, 200, 10, 0.5), 9);
        EXPECT_GE(insideOf(player, 1000, 2, 0.2), 2);
        EXPECT_EQ(insideOf(player, 10'000, 1, 0.1), 1);
    }
    const Player twelveRows(charts::parseChart(bestOf12));
    EXPECT_GE(insideOf(twelveRows, 200, 10, 0.9), 9);
    EXPECT_GE(insideOf(twelveRows, 1000, 2, 0.25), 1);
    EXPECT_GE(insideOf(Player(chart, 20), 200, 10, 3), 9);
    EXPECT_GE(insideOf(Player(chart, 20), 1000, 2, 1.3), 1);
}

// Someone who keeps a kicker with each low pair does not hold blindly.
TEST(Estimate, doesNotTakeAHabitForSlips)
{
    const DecisionId habit = decisions().find("low pair over 1 high").value();
    Questions questions(decisions(), 1);
    Record record(decisions());
    std::vector<Answer> answers;
    while (answers.size() < 200) {
        const DecisionId id = questions.next(record).decision;
        answers.push_back({id, id == habit ? 0.75 : 0.0, Mistake::wild});
        record.add(id, id != habit);
    }
    const Estimate told = estimateReturn(decisions(), answers);
    EXPECT_NEAR(told.closeLoss, decisions()[habit].probability() * 0.75 / 5, 0.005);
    EXPECT_LT(told.slipLoss, 0.005);
    EXPECT_EQ(told.low, estimateReturn(decisions(), answers).low) << "no chance in it";
    EXPECT_LT(estimateReturn(decisions(), {}).low, 0.97) << "no answers yet";
}

} // namespace quillet::practice::test
