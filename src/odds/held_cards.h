#pragma once

#include "odds/pays.h"
#include "odds/suit_classes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quillet::odds
{

using OutcomeCounts = std::array<std::int32_t, outcomeCount>;

// choose[n][m]: the ways to choose n of m cards.
inline constexpr auto choose = [] {
    std::array<std::array<std::uint32_t, 53>, 6> table{};
    table[0].fill(1);
    for (std::size_t n = 1; n < table.size(); ++n) {
        for (std::size_t m = 1; m < table[n].size(); ++m)
            table[n][m] = table[n][m - 1] + table[n - 1][m - 1];
    }
    return table;
}();

// For every set of up to four cards, the outcomes of all hands of five that contain it, and the sum
// of what these pay. The outcomes of a draw follow by inclusion and exclusion, without a loop over
// all draws.
class HeldCards
{
public:
    using ClassId = std::uint16_t;

    explicit HeldCards(const Pays& pays = trainersPays());

    [[nodiscard]] const Pays& pays() const { return m_pays; }

    // Of sets of up to four cards, numbered by size and then in the order of forEachClass.
    static constexpr std::size_t classCount = 1 + 13 + 169 + 1755 + 16432;

    // The class of a set by its size and its number in the combinatorial number system: the sum
    // of choose[n][place] over its places in ascending order, n from 1.
    [[nodiscard]] ClassId classOf(std::size_t size, std::uint32_t combination) const
    {
        return m_classOf[firstOfSize[size] + combination];
    }
    [[nodiscard]] ClassId classOf(std::span<const DeckPlace> ascending) const;

    // Over all hands that contain the set.
    [[nodiscard]] const OutcomeCounts& counts(ClassId id) const { return m_counts[id]; }
    [[nodiscard]] std::int64_t pay(ClassId id) const { return m_pay[id]; }

private:
    static constexpr std::array<std::uint32_t, 6> firstOfSize{0, 1, 53, 1379, 23479, 294204};

    void numberClasses();
    void countHandsOfFours();
    template <std::size_t Size>
    void countHandsOf();

    Pays m_pays;
    std::vector<ClassId> m_classOf;
    std::vector<OutcomeCounts> m_counts;
    std::vector<std::int64_t> m_pay;
};

} // namespace quillet::odds
