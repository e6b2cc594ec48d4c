#include "charts/row_examples.h"

#include "charts/chart_price.h"

#include <algorithm>
#include <random>

namespace quillet::charts
{

namespace
{

// Chooses one of the best deals for a row, each with the same chance.
struct Choice {
    int merit = -1;
    unsigned among = 0; // deals of that merit
    odds::HeldDeal example;
};

int meritOf(const PlayedDeal& deal)
{
    const std::int64_t best = deal.hand.worth[deal.hand.bestHold];
    return (deal.choices == 1 ? 2 : 0) + (deal.hand.worth[deal.worstHold] == best ? 1 : 0);
}

// Exchanges suits, since forEachClass orders them in the same way for all deals.
odds::HeldDeal withMixedSuits(const odds::HeldDeal& example, std::mt19937& random)
{
    constexpr unsigned orders = 24;
    std::array<unsigned, 4> suits{0, 1, 2, 3};
    for (auto left = static_cast<unsigned>(random() % orders); left > 0; --left)
        std::ranges::next_permutation(suits);
    std::array<odds::DeckPlace, 5> cards{};
    std::ranges::transform(example.places, cards.begin(), [&suits](odds::DeckPlace place) {
        return static_cast<odds::DeckPlace>(suits[place / 13U] * 13 + place % 13U);
    });
    return odds::heldDeal(cards, example.held);
}

} // namespace

RowExamples rowExamples(const odds::HeldCards& heldCards, const Chart& chart)
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
            choice.example = {deal.hand.places, static_cast<std::uint8_t>(deal.bestHold)};
    });
    RowExamples examples(chart.size());
    for (std::size_t row = 0; row < chart.size(); ++row) {
        if (choices[row].among > 0)
            examples[row] = withMixedSuits(choices[row].example, random);
    }
    return examples;
}

} // namespace quillet::charts
