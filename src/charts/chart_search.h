#pragma once

#include "charts/chart.h"
#include "odds/held_cards.h"

#include <cstdint>
#include <functional>
#include <random>
#include <vector>

namespace quillet::charts
{

// Looks for the chart that loses least with so many rows, when of holds that fit a row alike the
// worst is taken. The same pay table gives the same chart every time.
class ChartSearch
{
public:
    // Called with the share of the work done, 0 to 1, whenever something has been done.
    using Progress = std::function<void(double)>;

    explicit ChartSearch(const odds::HeldCards& heldCards);

    // The best chart found with at most so many rows, 1..mostRows, the row for nothing included.
    [[nodiscard]] Chart best(std::size_t rows, const Progress& progress = {});

    // Whether for a chart that asks nothing about discards no row taken out, none put in another's
    // place and none moved makes it lose less.
    [[nodiscard]] bool cannotBeImproved(const Chart& chart);

private:
    using Loss = std::int64_t; // in worth units, summed over the members of a class of deals

    struct Fit {
        std::uint32_t deal; // which class of deals
        Loss loss;          // with the worst of the holds that fit
    };

    // The row that plays a deal, and the one that would if that were taken out.
    struct Standing {
        std::uint8_t first = 0;
        std::uint8_t second = 0;
        Loss firstLoss = 0;
        Loss secondLoss = 0;
    };

    // One row comes in, one goes out, or both. Positions are those before the change.
    struct Change {
        static constexpr std::size_t none = static_cast<std::size_t>(-1);

        std::size_t out = none; // position
        RowKindId in = none;    // kind
        std::size_t before = 0; // position that it comes to stand before
        Loss gain = 0;          // by how much the loss falls
    };

    // For one kind of row: what the chart would gain if it played what it fits.
    struct Offer;

    void findFits(const odds::HeldCards& heldCards);
    void stand(const Chart& chart);
    [[nodiscard]] std::vector<Loss> gainsOfRemoval() const;
    [[nodiscard]] Change bestRemoval() const;
    [[nodiscard]] Change bestInsertion() const;
    [[nodiscard]] Change bestInsertionOf(RowKindId kind) const;
    [[nodiscard]] Change bestReplacement() const;
    void apply(const Change& change);
    void improve();
    void shrinkTo(std::size_t rows);
    // Puts rows in and takes rows out by chance.
    void kick(std::mt19937& chance);

    std::vector<std::vector<Fit>> m_fits; // by kind
    std::vector<double> m_worth;          // by kind, of its holds on average
    std::size_t m_deals = 0;              // classes

    Chart m_chart; // as it stands now
    std::vector<Standing> m_standing;
    Loss m_loss = 0;
};

} // namespace quillet::charts
