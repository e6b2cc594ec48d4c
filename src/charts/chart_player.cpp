#include "charts/chart_player.h"

#include <bit>
#include <cassert>

namespace quillet::charts
{

namespace
{

// The cards that a hold keeps.
class KeptCards
{
public:
    KeptCards(const odds::DealtHand& hand, odds::Hold hold)
    {
        for (std::size_t i = 0; i < m_cards.size(); ++i) {
            if ((hold >> i & 1U) != 0)
                m_cards[m_count++] = odds::cardAt(hand.places[i]);
        }
    }

    [[nodiscard]] std::span<const Card> cards() const { return std::span(m_cards).first(m_count); }

private:
    std::array<Card, 5> m_cards;
    std::size_t m_count = 0;
};

} // namespace

HoldFacts factsOf(const odds::DealtHand& hand, odds::Hold hold)
{
    return hold == odds::holdAll ? HoldFacts(KeptCards(hand, hold).cards())
                                 : factsByClass()[hand.classOfHold[hold]];
}

bool allows(const Row& row, const odds::DealtHand& hand, odds::Hold hold)
{
    const DiscardSet conditions = row.discards | rowKinds()[row.kind].discards;
    return conditions == 0 ||
           fitAll(conditions, DiscardFacts(KeptCards(hand, hold).cards(),
                                           KeptCards(hand, odds::holdAll & ~hold).cards()));
}

ChartPlayer::ChartPlayer(const Chart& chart) : m_chart(chart)
{
    assert(!chart.empty() && chart.size() <= maxRows && chart.back().kind == nothingRow());
    for (std::size_t row = 0; row < chart.size(); ++row) {
        m_rowsOfFive |= RowSet{rowKinds()[chart[row].kind].cards == 5} << row;
        m_line[row] = row == 0 ? 0 : m_line[row - 1] + (chart[row].sharesLine ? 0 : 1);
    }
    m_rowsOfClass.reserve(factsByClass().size());
    for (const HoldFacts& held : factsByClass())
        m_rowsOfClass.push_back(rowsThatFit(held, ~RowSet{0} >> (64 - chart.size())));
}

ChartPlayer::RowSet ChartPlayer::rowsThatFit(const HoldFacts& held, RowSet candidates) const
{
    RowSet rows = 0;
    for (; candidates != 0; candidates &= candidates - 1) {
        const int row = std::countr_zero(candidates);
        if (rowKinds()[m_chart[static_cast<std::size_t>(row)].kind].fits(held))
            rows |= RowSet{1} << row;
    }
    return rows;
}

Play ChartPlayer::play(const odds::DealtHand& hand) const
{
    std::array<RowSet, odds::holds> rows{};
    RowSet any = 0;
    for (odds::Hold hold = 0; hold < odds::holdAll; ++hold) {
        rows[hold] = m_rowsOfClass[hand.classOfHold[hold]];
        any |= rows[hold];
    }
    rows[odds::holdAll] = rowsThatFit(factsOf(hand, odds::holdAll), m_rowsOfFive);
    any |= rows[odds::holdAll];
    Play play;
    for (; any != 0; any &= any - 1) {
        const auto row = static_cast<std::size_t>(std::countr_zero(any));
        if (play.fitting != 0 && m_line[row] != m_line[play.row])
            break;
        if (play.fitting == 0)
            play.row = row;
        for (odds::Hold hold = 0; hold < odds::holds; ++hold) {
            if ((rows[hold] >> row & 1U) != 0 && allows(m_chart[row], hand, hold))
                play.fitting |= odds::HoldSet{1} << hold;
        }
    }
    assert(play.fitting != 0); // the last row fits every deal
    return play;
}

} // namespace quillet::charts
