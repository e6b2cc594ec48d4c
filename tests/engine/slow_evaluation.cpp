#include "tests/engine/slow_evaluation.h"

#include <algorithm>
#include <set>
#include <vector>

namespace quillet::test
{

namespace
{

using Ranks = std::vector<int>; // ascending

bool isFace(int rank)
{
    return rank == 11 || rank == 12 || rank == 13;
}
bool isHigh(int rank)
{
    return rank == 1 || isFace(rank);
}
bool isRoyal(int rank)
{
    return rank == 10 || isHigh(rank);
}

bool consecutive(const Ranks& ranks, std::size_t first, std::size_t last)
{
    for (std::size_t i = first; i <= last; ++i) {
        if (ranks[i] - ranks[first] != static_cast<int>(i - first))
            return false;
    }
    return true;
}

// The rows that a hand contains, by play code, whichever stands first.
struct Rows {
    std::array<bool, 22> contained{};

    explicit Rows(const std::array<Card, 5>& cards)
    {
        Ranks all;
        std::set<int> suits;
        for (const Card& card : cards) {
            all.push_back(card.rank);
            suits.insert(card.suit);
        }
        std::ranges::sort(all);
        fromRanks(all);
        for (const int suit : suits) {
            Ranks suited;
            for (const Card& card : cards) {
                if (card.suit == suit)
                    suited.push_back(card.rank);
            }
            std::ranges::sort(suited);
            fromSuit(suited, suit >= 0 && suit <= 3);
        }
        contained[1] = contained[6] && all == Ranks{1, 10, 11, 12, 13};
    }

    void fromRanks(const Ranks& all)
    {
        int pairs = 0;
        for (auto rank = all.begin(); rank != all.end();
             rank = std::upper_bound(rank, all.end(), *rank)) {
            const auto times = std::count(rank, all.end(), *rank);
            pairs += times == 2;
            contained[3] |= times == 4 && *rank >= 1 && *rank <= 13;
            contained[8] |= times == 3;
            contained[11] |= times == 2 && isHigh(*rank);
            contained[14] |= times == 2 && *rank >= 1 && *rank <= 10;
        }
        contained[4] = contained[8] && pairs == 1;
        contained[10] = pairs == 2;
        contained[7] = consecutive(all, 0, 4) || all == Ranks{1, 10, 11, 12, 13};
        contained[15] = (all[0] != 1 && consecutive(all, 0, 3)) || consecutive(all, 1, 4);
        const auto high = std::ranges::count_if(all, isHigh);
        contained[18] = high >= 2;
        contained[20] = high >= 1;
        contained[21] = true;
    }

    void fromSuit(const Ranks& suited, bool realSuit)
    {
        const std::size_t cards = suited.size();
        const bool run = consecutive(suited, 0, cards - 1);
        const auto royals = std::ranges::count_if(suited, isRoyal);
        contained[2] |= cards == 5 && run;
        contained[5] |= royals >= 4;
        contained[6] |= cards == 5;
        contained[9] |= cards == 4 && run;
        contained[12] |= royals >= 3;
        contained[13] |= cards == 4 && realSuit;
        contained[16] |= std::ranges::count_if(suited, isHigh) >= 2 && realSuit;
        contained[17] |= cards == 3 && run;
        contained[19] |=
            std::ranges::count(suited, 10) > 0 && std::ranges::count_if(suited, isFace) > 0;
    }
};

} // namespace

PlayCodes slowPlayCodes(const std::array<Card, 5>& cards)
{
    auto contained = Rows(cards).contained;
    const auto first = [&contained] {
        return static_cast<std::int16_t>(std::ranges::find(contained, true) - contained.begin());
    };
    PlayCodes codes;
    codes.dealt = first();
    contained[5] = contained[9] = false;
    codes.final = first();
    return codes;
}

} // namespace quillet::test
