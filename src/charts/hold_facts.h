#pragma once

#include "engine/card.h"

#include <span>
#include <vector>

namespace quillet::charts
{

// Ranks as a set of bits, bit 0 for the ace and bit 12 for the king.
using RankSet = unsigned;

inline constexpr RankSet ace = 1;
inline constexpr RankSet ten = 1U << 9;
inline constexpr RankSet jack = 1U << 10;
inline constexpr RankSet queen = 1U << 11;
inline constexpr RankSet king = 1U << 12;
inline constexpr RankSet faces = jack | queen | king;
inline constexpr RankSet highRanks = faces | ace;
inline constexpr RankSet royalRanks = highRanks | ten;

// What the rows of a chart look at in a set of held cards.
struct HoldFacts {
    explicit HoldFacts(std::span<const Card> held);

    int cards = 0;
    RankSet ranks = 0;
    int alike = 0;            // the highest number of cards of one rank
    int pairs = 0;            // ranks of which there are two
    bool highPair = false;    // a pair of aces or faces
    int high = 0;             // aces and faces
    bool suited = true;       // all of one suit
    bool consecutive = false; // different ranks without a gap, the ace low
    int straights = 0;        // how many of the ten straights have all these ranks; 0 with a pair
};

// The facts of every class of held cards, by HeldCards::ClassId; computed once.
[[nodiscard]] const std::vector<HoldFacts>& factsByClass();

// The other ranks that lie in a straight with all of these.
[[nodiscard]] RankSet straightPartners(RankSet ranks);

} // namespace quillet::charts
