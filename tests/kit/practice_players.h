#pragma once

#include "charts/chart_price.h"
#include "practice/questions.h"
#include "tests/kit/practice_game.h"

#include <optional>
#include <random>
#include <string>
#include <vector>

namespace quillet::practice::test
{

// The best chart known of 12 rows.
inline constexpr std::string_view bestOf12 =
    "4 of a kind\nstraight or better, dealt\n3 of a kind\n2 pair\n4 to a flush\npair\n"
    "4 to an outside straight\n3 to a straight flush, high for each gap but one\n2 high, suited\n"
    "2 high, lowest\n1 high\nnothing";

// A player whose return is known exactly: perfect play, or the best hold that a chart allows. In
// one hand of `slipsOneIn`, any of the 32 holds.
class Player
{
public:
    Player(const std::optional<charts::Chart>& chart, int slipsOneIn = 0) : m_slipsOneIn(slipsOneIn)
    {
        returned = decisions().perfectReturn();
        if (chart) {
            m_chart.emplace(*chart);
            returned = charts::priceChart(game().heldCards, *chart)
                           .played[charts::Taken::best]
                           .returned.value();
        }
        if (slipsOneIn == 0)
            return;
        double blind = 0; // loses so much
        for (const Decision& decision : decisions().all())
            blind += decision.probability() * decision.anyHoldCost() / 5;
        returned += (decisions().perfectReturn() - blind - returned) / slipsOneIn;
    }

    odds::Hold hold(const odds::DealtHand& hand, std::mt19937_64& chance) const
    {
        if (m_slipsOneIn > 0 && chance() % static_cast<unsigned>(m_slipsOneIn) == 0)
            return static_cast<odds::Hold>(chance() % odds::holds);
        return m_chart ? hand.bestOf(m_chart->play(hand).fitting) : hand.bestHold;
    }

    double returned = 0;

private:
    int m_slipsOneIn;
    std::optional<charts::ChartPlayer> m_chart;
};

// One player's session. The same seed gives the same session.
class Session
{
public:
    Session(const Player& player, std::uint64_t seed)
        : m_player(player), m_questions(decisions(), seed), m_chance(seed)
    {
    }

    void answerUntil(std::size_t count)
    {
        while (answers.size() < count) {
            asked.push_back(m_questions.next(record));
            const odds::DealtHand hand(game().heldCards,
                                       odds::heldDeal(asked.back().cards, 0).places);
            answers.push_back(answerTo(decisions(), hand, m_player.hold(hand, m_chance)));
            record.add(answers.back().decision, answers.back().isRight());
        }
    }

    Record record{decisions()};
    std::vector<Question> asked;
    std::vector<Answer> answers;

private:
    const Player& m_player;
    Questions m_questions;
    std::mt19937_64 m_chance;
};

} // namespace quillet::practice::test
