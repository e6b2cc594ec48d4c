#include "charts/chart_price.h"
#include "engine/hand_evaluation.h"
#include "odds/fair_odds.h"
#include "odds/hand_text.h"
#include "tests/kit/cards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <fstream>
#include <random>
#include <unordered_map>

// Deals, draws and prices once more without any table of the program's odds.
namespace quillet::charts::test
{

namespace
{

using quillet::test::forEachChoice;

using Cards5 = std::array<Card, 5>;
using Worths = std::array<std::int64_t, holds>;

constexpr std::int64_t unit = 7669695; // every number of draws divides it
constexpr std::int64_t shares = 2520;  // every number of fitting holds divides it

std::size_t outcomeOf(const Cards5& hand)
{
    // By the play code of a final hand.
    constexpr std::array<std::size_t, 22> outcome{0, 1, 2, 3, 4, 0, 5, 6, 7, 0, 8, 9};
    return outcome.at(static_cast<std::size_t>(EvaluatePokerHand(hand, true)));
}

void forEachHand(const std::function<void(const Cards5&)>& visit)
{
    forEachChoice(5, [&visit](const std::vector<Card>& chosen) {
        Cards5 hand;
        std::ranges::copy(chosen, hand.begin());
        visit(hand);
    });
}

// Calls visit for one deal of each class, and with the number of deals in the class.
void forEachClass(const std::function<void(const Cards5&, int members)>& visit)
{
    forEachHand([&visit](const Cards5& hand) {
        std::array<unsigned, 4> suits{};
        for (const Card& card : hand)
            suits.at(static_cast<std::size_t>(card.suit)) |= 1U << card.rank;
        if (!std::ranges::is_sorted(suits))
            return;
        int members = 1;
        while (std::ranges::next_permutation(suits).found)
            ++members;
        visit(hand, members);
    });
}

// What all hands pay together that contain the same cards.
class PaidHands
{
public:
    explicit PaidHands(const Pays& toPay) : pays(toPay)
    {
        forEachHand([&](const Cards5& hand) {
            const std::int64_t pay = pays[outcomeOf(hand)];
            for (Hold hold = 0; pay > 0 && hold < holds; ++hold)
                m_paid[setOf(hand, hold)] += pay;
        });
    }

    // The worth of each hold of a deal, in units: what the hands with the held cards pay, but for
    // those that contain a card thrown away.
    [[nodiscard]] Worths worthsOf(const Cards5& deal) const
    {
        constexpr std::array<std::int64_t, 6> draws{1533939, 178365, 16215, 1081, 47, 1};
        Worths worths{};
        for (Hold hold = 0; hold < holds; ++hold) {
            for (Hold more = hold; more < holds; more = (more + 1) | hold) {
                const auto paid = m_paid.find(setOf(deal, more));
                const int sign = std::popcount(more ^ hold) % 2 == 0 ? 1 : -1;
                worths[hold] += paid == m_paid.end() ? 0 : sign * paid->second;
            }
            worths[hold] *= unit / draws.at(static_cast<std::size_t>(std::popcount(hold)));
        }
        return worths;
    }

    const Pays pays;

private:
    using CardSet = std::uint64_t;

    static CardSet setOf(const Cards5& cards, Hold hold)
    {
        CardSet set = 0;
        for (const Card& card : cards) {
            set |= CardSet{hold & 1U} << card.cardId;
            hold >>= 1U;
        }
        return set;
    }

    std::unordered_map<CardSet, std::int64_t> m_paid;
};

std::vector<Card> heldOf(const Cards5& cards, Hold hold)
{
    std::vector<Card> held;
    for (std::size_t i = 0; i < cards.size(); ++i) {
        if ((hold >> i & 1U) != 0)
            held.push_back(cards[i]);
    }
    return held;
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

    [[nodiscard]] Play playedBy(const Chart& chart) const
    {
        Play play;
        for (const Row& row : chart) {
            for (Hold hold = 0; hold < holds; ++hold)
                play.fitting |= fits(row, hold) ? 1U << hold : 0;
            if (play.fitting != 0)
                break;
            ++play.row;
        }
        return play;
    }

    std::vector<HoldFacts> kept;
    std::vector<DiscardFacts> thrown;
};

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

Fraction perCreditPaid(Int128 sum)
{
    return {sum, Int128{FairOdds::deals} * 5 * unit * shares};
}

// What is printed of a chart, added up deal by deal.
class DirectPrice
{
public:
    DirectPrice(const Chart& chart, const PaidHands& paid)
        : m_chart(chart), m_paid(paid), m_rows(chart.size())
    {
    }

    void add(const SeenDeal& seen, const Cards5& deal, int members)
    {
        const Worths worths = m_paid.worthsOf(deal);
        const Play play = seen.playedBy(m_chart);
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
        const ChartPrice price = priceChart(HeldCards(m_paid.pays), m_chart);
        EXPECT_EQ(price.perfect, perCreditPaid(m_perfect));
        std::array<Int128, waysToTake> won{m_perfect, m_perfect, m_perfect};
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            SCOPED_TRACE(rowText(m_chart[i]));
            const Row& row = m_rows[i];
            const RowPrice& told = price.rows[i];
            EXPECT_EQ(told.deals, row.deals);
            EXPECT_EQ(told.costliest, Fraction(row.costliest, Int128{unit} * shares));
            for (std::size_t way = 0; way < waysToTake; ++way) {
                EXPECT_EQ(told.loss[way].text(), perCreditPaid(row.losses[way]).text());
                won[way] -= row.losses[way];
            }
            if (row.deals == 0)
                continue;
            Cards5 example;
            std::ranges::transform(told.example, example.begin(), cardAt);
            const Play play = SeenDeal(example).playedBy(m_chart);
            EXPECT_EQ(play.row, i);
            EXPECT_EQ(lossesOf(play, m_paid.worthsOf(example))[2], row.costliest);
        }
        for (std::size_t way = 0; way < waysToTake; ++way)
            EXPECT_EQ(price.returned[way].text(), perCreditPaid(won[way]).text());
    }

private:
    struct Row {
        std::int64_t deals = 0;
        std::array<Int128, waysToTake> losses{};
        std::int64_t costliest = 0;
    };

    Chart m_chart;
    const PaidHands& m_paid;
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

TEST(DealtHand, drawsAreTheHandsThatShareJustTheHeldCardsWithTheDeal)
{
    const HeldCards heldCards;
    for (const char* text :
         {"2d 3d 4d 5d 6d", "9c Tc Jc Kc Ad", "7c 7d 7s 8h 9s", "3c 3h 5d 8s Kh"}) {
        std::array<DeckPlace, 5> deal = parseHand(text);
        std::ranges::sort(deal);
        std::array<OutcomeCounts, holds> draws{};
        forEachHand([&](const Cards5& hand) {
            Hold held = 0;
            for (const Card& card : hand) {
                const auto found = std::ranges::find(deal, placeOf(card));
                held |= found == deal.end() ? 0 : 1U << (found - deal.begin());
            }
            ++draws[held][outcomeOf(hand)];
        });
        const DealtHand dealt(heldCards, deal);
        for (Hold hold = 0; hold < holds; ++hold)
            EXPECT_EQ(dealt.drawOutcomes(heldCards, hold), draws[hold]) << holdText(deal, hold);
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
    const PaidHands trainers(trainersPays());
    const PaidHands lower(parsePays("8/5"));
    std::vector<DirectPrice> prices{
        {trainersChart(), trainers}, {documentedChart(), trainers}, {mixed, lower}};
    forEachClass([&](const Cards5& deal, int members) {
        const SeenDeal seen(deal);
        for (DirectPrice& price : prices)
            price.add(seen, deal, members);
    });
    for (const DirectPrice& price : prices)
        price.expectPrinted();
}

} // namespace quillet::charts::test
