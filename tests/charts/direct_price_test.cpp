#include "charts/chart_price.h"
#include "odds/fair_odds.h"
#include "odds/hand_text.h"
#include "tests/charts/direct_count.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <fstream>
#include <numeric>
#include <random>

namespace quillet::charts::test
{

namespace
{

using Worths = std::array<std::int64_t, holds>;

constexpr std::int64_t unit = 7669695; // every number of draws divides it
constexpr std::int64_t shares = 2520;  // every number of fitting holds divides it

// The worth of each hold, in units.
Worths worthsOf(const std::array<OutcomeCounts, holds>& draws, const Pays& pays)
{
    Worths worths{};
    for (Hold hold = 0; hold < holds; ++hold) {
        const OutcomeCounts& paths = draws[hold];
        const std::int64_t all = std::accumulate(paths.begin(), paths.end(), std::int64_t{0});
        worths[hold] =
            unit / all *
            std::inner_product(paths.begin(), paths.end(), pays.begin(), std::int64_t{0});
    }
    return worths;
}

// What every hold of a deal keeps and throws away.
struct SeenDeal {
    explicit SeenDeal(const Cards5& cards)
    {
        for (Hold hold = 0; hold < holds; ++hold) {
            const std::vector<Card> held = heldOf(cards, hold);
            kept.emplace_back(held);
            thrown.emplace_back(held, heldOf(cards, holdAll & ~hold));
        }
    }

    [[nodiscard]] bool fits(const Row& row, Hold hold) const
    {
        const RowKind& kind = rowKinds()[row.kind];
        return kind.fits(kept[hold]) &&
               (kind.allows == nullptr || kind.allows(kept[hold], kept[holdAll & ~hold])) &&
               fitAll(row.discards, thrown[hold]);
    }

    std::vector<HoldFacts> kept;
    std::vector<DiscardFacts> thrown;
};

Play playedBy(const Chart& chart, const SeenDeal& deal)
{
    Play play;
    for (const Row& row : chart) {
        for (Hold hold = 0; hold < holds; ++hold)
            play.fitting |= deal.fits(row, hold) ? 1U << hold : 0;
        if (play.fitting != 0)
            break;
        ++play.row;
    }
    return play;
}

// Losses in shares of a unit: with the best of the holds that fit, any of them and the worst.
std::array<std::int64_t, waysToTake> lossesOf(const Play& play, const Worths& worths)
{
    const std::int64_t perfect = std::ranges::max(worths);
    std::array<std::int64_t, waysToTake> losses{perfect * shares, 0, 0};
    for (Hold hold = 0; hold < holds; ++hold) {
        if ((play.fitting >> hold & 1U) == 0)
            continue;
        const std::int64_t loss = (perfect - worths[hold]) * shares;
        losses[0] = std::min(losses[0], loss);
        losses[1] += loss / std::popcount(play.fitting);
        losses[2] = std::max(losses[2], loss);
    }
    return losses;
}

Cards5 cardsAt(const std::array<DeckPlace, 5>& places)
{
    Cards5 cards{};
    std::ranges::transform(places, cards.begin(), cardAt);
    return cards;
}

Fraction perCreditPaid(Int128 sum)
{
    return {sum, Int128{FairOdds::deals} * 5 * unit * shares};
}

// What is printed of a chart, added up deal by deal.
class DirectPrice
{
public:
    DirectPrice(const Chart& chart, const Pays& pays)
        : m_chart(chart), m_pays(pays), m_rows(chart.size())
    {
    }

    void add(const SeenDeal& deal, const std::array<OutcomeCounts, holds>& draws, int members)
    {
        const Worths worths = worthsOf(draws, m_pays);
        const Play play = playedBy(m_chart, deal);
        const auto losses = lossesOf(play, worths);
        Row& row = m_rows[play.row];
        row.deals += members;
        for (std::size_t way = 0; way < waysToTake; ++way)
            row.losses[way] += Int128{losses[way]} * members;
        row.costliest = std::max(row.costliest, losses[2]);
        m_perfect += Int128{std::ranges::max(worths)} * shares * members;
    }

    void expectPrinted() const
    {
        const ChartPrice price = priceChart(HeldCards(m_pays), m_chart);
        EXPECT_EQ(price.perfect, perCreditPaid(m_perfect));
        std::array<Int128, waysToTake> lost{};
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            expectRow(i, price.rows[i]);
            for (std::size_t way = 0; way < waysToTake; ++way)
                lost[way] += m_rows[i].losses[way];
        }
        for (std::size_t way = 0; way < waysToTake; ++way)
            EXPECT_EQ(price.returned[way].text(), perCreditPaid(m_perfect - lost[way]).text());
    }

private:
    struct Row {
        std::int64_t deals = 0;
        std::array<Int128, waysToTake> losses{};
        std::int64_t costliest = 0;
    };

    void expectRow(std::size_t i, const RowPrice& told) const
    {
        const Row& row = m_rows[i];
        const std::string name = rowText(m_chart[i]);
        EXPECT_EQ(told.deals, row.deals) << name;
        EXPECT_EQ(told.costliest, Fraction(row.costliest, unit * shares)) << name;
        for (std::size_t way = 0; way < waysToTake; ++way)
            EXPECT_EQ(told.loss[way].text(), perCreditPaid(row.losses[way]).text()) << name;
        if (row.deals == 0)
            return;
        const Cards5 example = cardsAt(told.example);
        const Play play = playedBy(m_chart, SeenDeal(example));
        EXPECT_EQ(play.row, i) << name;
        EXPECT_EQ(lossesOf(play, worthsOf(DirectCount().draws(example), m_pays))[2], row.costliest)
            << name;
    }

    Chart m_chart;
    Pays m_pays;
    std::vector<Row> m_rows;
    Int128 m_perfect = 0;
};

// The chart that docs/odds.md shows.
Chart documentedChart()
{
    std::ifstream document(QUILLET_DOCUMENT);
    std::string rows;
    for (std::string line; std::getline(document, line);) {
        if (line.starts_with("1. "))
            rows += line.substr(3) + '\n';
    }
    return parseChart(rows);
}

} // namespace

TEST(DirectCount, isThatOfTheDrawsOneByOneAndOfTheTables)
{
    const HeldCards heldCards;
    std::mt19937 random(15);
    for (int deal = 0; deal < 40; ++deal) {
        std::array<DeckPlace, 52> deck{};
        std::iota(deck.begin(), deck.end(), DeckPlace{0});
        // Every other deal is one of clubs and low diamonds, for flushes and straights.
        std::shuffle(deck.begin(), deck.begin() + (deal % 2 == 0 ? 52 : 18), random);
        std::sort(deck.begin(), deck.begin() + 5);
        std::array<DeckPlace, 5> places{};
        std::copy_n(deck.begin(), 5, places.begin());
        std::vector<Card> cards(deck.size());
        std::ranges::transform(deck, cards.begin(), cardAt);
        Cards5 dealt{};
        std::copy_n(cards.begin(), 5, dealt.begin());

        const DealtHand hand(heldCards, places);
        const auto draws = DirectCount().draws(dealt);
        // Few deals with the many draws to no card or one.
        for (Hold hold = 0; hold < holds; ++hold) {
            if (std::popcount(hold) < std::min(deal, 2))
                continue;
            const OutcomeCounts oneByOne =
                drawsOneByOne(heldOf(dealt, hold), std::span(cards).subspan(5));
            EXPECT_EQ(draws[hold], oneByOne) << holdText(places, hold);
            EXPECT_EQ(hand.drawOutcomes(heldCards, hold), oneByOne) << holdText(places, hold);
        }
    }
}

TEST(ChartPrice, isThatOfAllDealsAndTheirDraws)
{
    // Many rows in no order, each but every third asking something.
    std::mt19937 random(3);
    Chart mixed;
    for (RowKindId kind = 30; kind < nothingRow(); ++kind)
        mixed.push_back(
            {kind, kind % 3 == 0 ? 0 : DiscardSet{1} << random() % discardKinds().size()});
    std::shuffle(mixed.begin(), mixed.end(), random);
    mixed.resize(45);
    mixed.push_back({nothingRow()});
    std::vector<DirectPrice> prices{{trainersChart(), trainersPays()},
                                    {documentedChart(), trainersPays()},
                                    {mixed, parsePays("8/5")}};
    DirectCount count;
    forEachDirectDeal([&](const Cards5& cards, int members) {
        const auto draws = count.draws(cards);
        const SeenDeal deal(cards);
        for (DirectPrice& price : prices)
            price.add(deal, draws, members);
    });
    for (const DirectPrice& price : prices)
        price.expectPrinted();
}

} // namespace quillet::charts::test
