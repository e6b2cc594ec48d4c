#include "charts/chart_player.h"

#include <bit>
#include <cassert>

namespace quillet::charts
{

namespace
{

// Those cards of a deal that a hold keeps.
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
    assert(!chart.empty() && chart.size() <= maxRows && chart.back() == Row{nothingRow()});
    for (std::size_t row = 0; row < chart.size(); ++row)
        m_rowsOfFive |= RowSet{rowKinds()[chart[row].kind].cards == 5} << row;
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
    for (; any != 0; any &= any - 1) {
        Play play{static_cast<std::size_t>(std::countr_zero(any)), 0};
        for (odds::Hold hold = 0; hold < odds::holds; ++hold) {
            if ((rows[hold] >> play.row & 1U) != 0 && allows(m_chart[play.row], hand, hold))
                play.fitting |= odds::HoldSet{1} << hold;
        }
        if (play.fitting != 0)
            return play;
    }
    assert(false); // the last row fits every deal
    return {};
}

} // namespace quillet::charts
