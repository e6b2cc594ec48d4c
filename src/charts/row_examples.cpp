#include "charts/row_examples.h"

#include "charts/chart_price.h"

#include <algorithm>
#include <bit>
#include <random>

namespace quillet::charts
{

namespace
{

// Chooses one of the best deals for a row, each with the same chance.
struct Choice {
    int merit = -1;
    unsigned among = 0; // deals of that merit
    RowExample example;
};

int meritOf(const PlayedDeal& deal)
{
    const std::int64_t best = deal.hand.worth[deal.hand.bestHold];
    return (std::popcount(deal.play.fitting) == 1 ? 2 : 0) +
           (deal.hand.worth[deal.worstHold] == best ? 1 : 0);
}

// Exchanges the suits, as forEachClass always orders them in the same way.
RowExample withMixedSuits(const RowExample& example, std::mt19937& random)
{
    constexpr unsigned orders = 24;
    std::array<unsigned, 4> suits{0, 1, 2, 3};
    for (auto left = static_cast<unsigned>(random() % orders); left > 0; --left)
        std::ranges::next_permutation(suits);
    struct Dealt {
        unsigned place;
        odds::Hold kept;
    };
    std::array<Dealt, 5> cards{};
    for (std::size_t i = 0; i < cards.size(); ++i)
        cards[i] = {suits[example.places[i] / 13U] * 13 + example.places[i] % 13U,
                    example.hold >> i & 1U};
    std::ranges::sort(cards, {}, &Dealt::place);
    RowExample mixed;
    for (std::size_t i = 0; i < cards.size(); ++i) {
        mixed.places[i] = static_cast<odds::DeckPlace>(cards[i].place);
        mixed.hold |= cards[i].kept << i;
    }
    return mixed;
}

} // namespace

std::vector<std::optional<RowExample>> rowExamples(const odds::HeldCards& heldCards,
                                                   const Chart& chart)
{
    std::vector<Choice> choices(chart.size());
    std::mt19937 random; // default seed: the same examples every time
    forEachPlayedDeal(heldCards, chart, [&](const PlayedDeal& deal) {
        Choice& choice = choices[deal.play.row];
        const int merit = meritOf(deal);
        if (merit < choice.merit)
            return;
        choice.among = merit == choice.merit ? choice.among + 1 : 1;
        choice.merit = merit;
        if (random() % choice.among == 0)
            choice.example = {deal.hand.places, deal.bestHold};
    });
    std::vector<std::optional<RowExample>> examples(chart.size());
    for (std::size_t row = 0; row < chart.size(); ++row) {
        if (choices[row].among > 0)
            examples[row] = withMixedSuits(choices[row].example, random);
    }
    return examples;
}

} // namespace quillet::charts
