#include "tests/kit/practice_players.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <set>

namespace quillet::practice::test
{

TEST(Questions, areTheSameForTheSameSeedAndAnswersAndNeverRepeatADeal)
{
    const Player player(charts::trainersChart());
    Session session(player, 7);
    Session again(player, 7);
    session.answerUntil(1000);
    again.answerUntil(1000);
    std::set<std::array<odds::DeckPlace, 5>> deals;
    int random = 0;
    int ascending = 0;
    for (std::size_t i = 0; i < session.asked.size(); ++i) {
        const Question& question = session.asked[i];
        EXPECT_EQ(question.cards, again.asked[i].cards);
        EXPECT_EQ(question.decision, session.answers[i].decision);
        EXPECT_TRUE(deals.insert(odds::heldDeal(question.cards, 0).places).second);
        random += question.chosen == Chosen::random ? 1 : 0;
        ascending += std::ranges::is_sorted(question.cards) ? 1 : 0;
    }
    EXPECT_NEAR(random, 100, 30);
    EXPECT_LT(ascending, 30) << "one in 120 by chance";
}

TEST(Questions, areAboutWhatIsCloseAndFindTheMistakesOfTheTrainersChart)
{
    const Player player(charts::trainersChart());
    int close = 0;
    int chosen = 0;
    double found = 0;
    double all = 0;
    for (std::uint64_t seed = 1; seed <= 10; ++seed) {
        Session session(player, seed);
        session.answerUntil(200);
        for (const Question& question : session.asked) {
            const bool isClose = decisions()[question.decision].lead() < 1;
            chosen += question.chosen == Chosen::weighted ? 1 : 0;
            close += question.chosen == Chosen::weighted && isClose ? 1 : 0;
        }
        for (DecisionId id = 0; id < decisions().all().size(); ++id) {
            const Decision& decision = decisions()[id];
            const bool shaky = session.record.state(id) == State::shaky;
            EXPECT_TRUE(!shaky || decision.chartErrors > 0) << decision.name();
            all += static_cast<double>(decision.chartCostSum);
            found += shaky ? static_cast<double>(decision.chartCostSum) : 0;
        }
    }
    EXPECT_GT(close, 0.9 * chosen);
    EXPECT_GT(found, 0.9 * all);
}

TEST(Questions, comeBackToTheOneDecisionThatAPlayerGetsWrong)
{
    std::vector<DecisionId> close;
    for (DecisionId id = 0; id < decisions().all().size(); ++id) {
        if (decisions()[id].lead() < closeLead)
            close.push_back(id);
    }
    std::ranges::sort(close, std::greater(), [](DecisionId id) {
        return decisions()[id].probability() * decisions()[id].lead();
    });
    close.resize(20);
    for (const DecisionId wrong : close) {
        for (std::uint64_t seed = 1; seed <= 20; ++seed) {
            Questions questions(decisions(), seed);
            Record record(decisions());
            int asked = 0;
            for (int i = 0; i < 100; ++i) {
                const DecisionId id = questions.next(record).decision;
                asked += id == wrong ? 1 : 0;
                record.add(id, id != wrong);
            }
            EXPECT_GE(asked, 10) << decisions()[wrong].name() << ", seed " << seed;
        }
    }
}

TEST(Questions, keepToTheTickedDecisionsAndBeginAgainWhenTheseAreUsedUp)
{
    const DecisionId royal = decisions().find("royal over 4 to a royal").value();
    Questions questions(decisions(), 1);
    for (int i = 0; i < 30; ++i)
        static_cast<void>(questions.next(Record(decisions())));
    questions.practise({royal});
    std::set<std::array<odds::DeckPlace, 5>> deals;
    for (std::size_t i = 1; i <= 8; ++i) {
        const Question question = questions.next(Record(decisions()));
        EXPECT_EQ(question.decision, royal);
        deals.insert(odds::heldDeal(question.cards, 0).places);
        EXPECT_EQ(deals.size(), std::min<std::size_t>(i, 4));
    }
}

TEST(Questions, ofAnExamComeAsInTheRealGame)
{
    Questions questions(decisions(), 3);
    std::vector<int> count(decisions().all().size());
    for (int i = 0; i < 10'000; ++i)
        ++count[questions.nextOfExam().decision];
    for (DecisionId id = 0; id < count.size(); ++id) {
        const double expected = 10'000 * decisions()[id].probability();
        EXPECT_NEAR(count[id], expected, 4 * std::sqrt(expected) + 2) << decisions()[id].name();
    }
}

TEST(Record, forgetsOldMistakes)
{
    Record record(decisions());
    EXPECT_EQ(record.state(0), State::unknown);
    for (int i = 0; i < 5; ++i)
        record.add(0, false);
    EXPECT_GT(record.doubt(0), 0.9);
    EXPECT_EQ(record.state(0), State::shaky);
    for (int i = 0; i < 60; ++i)
        record.add(0, true);
    EXPECT_LT(record.doubt(0), 0.02);
    EXPECT_EQ(record.state(0), State::firm);
}

} // namespace quillet::practice::test
