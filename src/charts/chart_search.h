#pragma once

#include "charts/chart.h"
#include "odds/dealt_hand.h"

#include <cstdint>
#include <functional>
#include <random>
#include <vector>

namespace quillet::charts
{

// Searches for the chart that loses least with a given number of rows, assuming that the player
// takes the worst of the holds that fit. The same pay table gives the same chart every time.
class ChartSearch
{
public:
    // Called with the share of the work done, 0 to 1, after each step.
    using Progress = std::function<void(double)>;

    explicit ChartSearch(const odds::HeldCards& heldCards);

    // The best chart found with at most `rows` rows, 1..maxRows, "nothing" included.
    [[nodiscard]] Chart best(std::size_t rows, const Progress& progress = {});

private:
    using Loss = std::int64_t; // in worth units, summed over the members of a class of deals

    struct Fit {
        std::uint32_t deal; // which class of deals
        Loss loss;          // with the worst of the holds that fit
    };

    // The row that plays a deal, and the runner-up that would if that row were removed.
    struct Decision {
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
        std::size_t before = 0; // position that it is inserted before
        Loss gain = 0;          // by how much the loss falls
    };

    struct Gains;
    struct Average {
        double sum = 0;
        double weight = 0;
    };

    void findFits(const odds::HeldCards& heldCards);
    void addFit(RowKindId kind, const odds::DealtHand& hand, odds::Hold hold, int members,
                Average& worth);
    void setChart(const Chart& chart);
    [[nodiscard]] std::vector<Loss> gainsOfRemoval() const;
    [[nodiscard]] Change bestRemoval() const;
    [[nodiscard]] Change bestInsertion() const;
    [[nodiscard]] Change bestInsertionOf(RowKindId kind) const;
    [[nodiscard]] Change bestReplacement() const;
    void apply(const Change& change);
    void improve();
    void shrinkTo(std::size_t rows);
    // Inserts and removes rows at random.
    void perturb(std::mt19937& random);

    std::vector<std::vector<Fit>> m_fits; // by kind
    std::vector<double> m_worth;          // by kind, of its holds on average
    std::size_t m_deals = 0;              // classes

    Chart m_chart; // the current one
    std::vector<Decision> m_decisions;
    Loss m_loss = 0;
};

} // namespace quillet::charts
