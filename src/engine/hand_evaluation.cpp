#include "engine/hand_evaluation.h"

#include "engine/play_rules.h"
#include "engine/play_tables.h"

#include <algorithm>
#include <cassert>
#include <optional>

namespace quillet
{

namespace
{

using tables::lane;
using tables::SuitLanes;

// The cards as sets of ranks; nothing unless they are different cards of the deck. One check at the
// end takes less time than a check of each card.
std::optional<SuitLanes> lanesOf(std::span<const Card> cards)
{
    unsigned ranks = 0;
    unsigned suits = 0;
    SuitLanes lanes = 0;
    SuitLanes sum = 0;
    for (const Card& card : cards) {
        const auto rank = static_cast<unsigned>(card.rank - 1);
        const auto suit = static_cast<unsigned>(card.suit);
        const SuitLanes bit = tables::laneBit(rank, suit);
        ranks |= rank;
        suits |= suit;
        lanes |= bit;
        sum += bit;
    }
    // Ranks 14 to 16 are between the lanes; a card that occurs twice makes the sum differ.
    const bool realCards = ranks < tables::laneBits && suits < 4 && (lanes & tables::noRanks) == 0;
    return realCards && sum == lanes ? std::optional(lanes) : std::nullopt;
}

// The number of cards before the fillers.
std::size_t cardsBeforeFillers(std::span<const Card, 5> cards)
{
    std::size_t held = 5;
    for (; held > 0; --held) {
        const Card filler = fillerCard(static_cast<int>(held) - 1);
        if (cards[held - 1].rank != filler.rank || cards[held - 1].suit != filler.suit)
            break;
    }
    return held;
}

unsigned codeOf(SuitLanes lanes, bool finalHand)
{
    const unsigned clubs = lane(lanes, 0);
    const unsigned diamonds = lane(lanes, 1);
    const unsigned hearts = lane(lanes, 2);
    const unsigned spades = lane(lanes, 3);
    const unsigned black = clubs | spades;
    const unsigned red = diamonds | hearts;
    const unsigned bothBlack = clubs & spades;
    const unsigned bothRed = diamonds & hearts;
    const tables::Repeats repeats{bothBlack | bothRed | (black & red),
                                  (bothBlack & red) | (bothRed & black), bothBlack & bothRed};

    const tables::CodeOfRankSet& oneSuit = finalHand ? tables::oneSuitFinal : tables::oneSuitDealt;
    return std::min<unsigned>({oneSuit[clubs], oneSuit[diamonds], oneSuit[hearts], oneSuit[spades],
                               tables::ranksOnce[black | red],
                               tables::repeatedRanks[repeats.shape()]});
}

} // namespace

std::int16_t EvaluatePokerHand(std::span<const Card, 5> cards, bool finalHand)
{
    if (const auto lanes = lanesOf(cards))
        return static_cast<std::int16_t>(codeOf(*lanes, finalHand));
    if (const auto lanes = lanesOf(cards.first(cardsBeforeFillers(cards))))
        return static_cast<std::int16_t>(codeOf(*lanes, finalHand));

    assert(std::ranges::all_of(cards, [](const Card& c) { return c.rank >= 0 && c.rank <= 300; }));
    return rules::playCode(cards, finalHand);
}

std::int16_t CardsToHand(std::int16_t playCode)
{
    const auto row = static_cast<std::size_t>(playCode - 1);
    return playCode >= 1 && row < rules::chart.size() ? rules::chart[row].cardsKept : 0;
}

std::string_view playName(std::int16_t playCode)
{
    const auto row = static_cast<std::size_t>(playCode - 1);
    return playCode >= 1 && row < rules::chart.size() ? rules::chart[row].name : "";
}

} // namespace quillet
