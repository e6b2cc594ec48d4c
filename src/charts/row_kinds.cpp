#include "charts/row_kinds.h"

#include "charts/names.h"

#include <array>
#include <vector>

namespace quillet::charts
{

namespace
{

using H = const HoldFacts&;

constexpr RankSet seven = 1U << 6;

constexpr bool has(H h, RankSet ranks)
{
    return (h.ranks & ranks) != 0;
}

// Cards of different ranks, all of them among these and, if asked for, at least one among those.
template <RankSet Ranks, RankSet With = 0>
bool among(H h)
{
    return h.alike == 1 && !has(h, ~Ranks) && (With == 0 || has(h, With));
}

template <RankSet Ranks, RankSet With = 0>
bool suitedAmong(H h)
{
    return h.suited && among<Ranks, With>(h);
}

bool suited(H h)
{
    return h.suited;
}

// Straights lost to gaps: three cards in a row lie in three straights, four in two, five in one.
constexpr int gaps(H h)
{
    return 6 - h.cards - h.straights;
}
constexpr int open = 0, inside = 1, doubleInside = 2;

template <int MinGaps, int MaxGaps>
bool straight(H h)
{
    return h.straights > 0 && gaps(h) >= MinGaps && gaps(h) <= MaxGaps;
}

template <int MinGaps, int MaxGaps>
bool straightFlush(H h)
{
    return h.suited && straight<MinGaps, MaxGaps>(h);
}

// A row, and the same with 1 to maxHigh high cards: "4 to a flush, 1 high" and so on.
struct Family {
    std::string_view name;
    int cards;
    bool (*matches)(H);
    std::string_view meaning;
    int maxHigh = 0;
    DiscardSet discards = 0;
};

constexpr std::array<Family, 73> families{{
    {"royal", 5, suitedAmong<royalRanks>, "Ten to ace of one suit."},
    {"straight flush", 5, straightFlush<open, open>,
     "Five cards of one suit whose ranks follow each other, a royal too."},
    {"4 of a kind", 4, [](H h) { return h.alike == 4; },
     "Four cards of one rank, without the fifth card."},
    {"full house", 5, [](H h) { return h.alike == 3 && h.pairs == 1; },
     "Three cards of one rank and two of another."},
    {"flush", 5, suited, "Five cards of one suit."},
    {"straight", 5, straight<open, open>,
     "Five cards whose ranks follow each other, the ace low or high."},
    {"straight or better, dealt", 5,
     [](H h) { return h.straights == 1 || h.suited || (h.alike == 3 && h.pairs == 1); },
     "All five cards of a straight, a flush, a full house, a straight flush or a royal."},
    {"4 to a royal", 4, suitedAmong<royalRanks>, "Four cards of a royal."},
    {"4 to a straight flush", 4, straightFlush<open, inside>,
     "Four cards of one suit that one or two cards make a straight flush."},
    {"4 to a straight flush, no gap", 4, [](H h) { return h.suited && h.consecutive; },
     "Four cards of one suit whose ranks follow each other, the ace low."},
    {"4 to a straight flush, open", 4, straightFlush<open, open>,
     "Four cards of one suit that a card at either end makes a straight flush."},
    {"4 to a straight flush, inside", 4, straightFlush<inside, inside>,
     "Four cards of one suit that only one card makes a straight flush."},
    {"3 of a kind", 3, [](H h) { return h.alike == 3; },
     "Three cards of one rank, no pair beside them.", 0, noPair},
    {"2 pair", 4, [](H h) { return h.pairs == 2; }, "Two pairs."},
    {"pair", 2, [](H h) { return h.pairs == 1; }, "Two cards of one rank."},
    {"high pair", 2, [](H h) { return h.highPair; }, "A pair of aces, kings, queens or jacks."},
    {"low pair", 2, [](H h) { return h.pairs == 1 && !h.highPair; }, "A pair of tens or lower."},
    {"3 to a royal", 3, suitedAmong<royalRanks>, "Three cards of a royal."},
    {"3 to a royal, no ace", 3, suitedAmong<faces | ten>,
     "Three cards of a royal, the ace not among them."},
    {"3 to a royal, with an ace", 3, suitedAmong<royalRanks, ace>,
     "Three cards of a royal, the ace among them."},
    {"3 to a royal, no 10", 3, suitedAmong<highRanks>,
     "Three cards of a royal, the ten not among them."},
    {"3 to a royal, with a 10", 3, suitedAmong<royalRanks, ten>,
     "Three cards of a royal, the ten among them."},
    {"3 to a royal, no ace and no 10", 3, suitedAmong<faces>, "Jack, queen and king of one suit."},
    {"3 to a royal, with an ace, no 10", 3, suitedAmong<highRanks, ace>,
     "Three cards of a royal, the ace among them and not the ten."},
    {"4 to a flush", 4, suited, "Four cards of one suit.", 3},
    {"4 to an outside straight", 4, straight<open, open>,
     "Four cards in a row with room at both ends.", 3},
    {"4 to an inside straight", 4, straight<inside, inside>,
     "Four cards that only one rank makes a straight.", 4},
    {"3 to a straight flush", 3, straightFlush<open, doubleInside>,
     "Three cards of one suit that lie in a straight flush.", 2},
    {"3 to a straight flush, no gap", 3, [](H h) { return h.suited && h.consecutive; },
     "Three cards of one suit whose ranks follow each other, the ace low."},
    {"3 to a straight flush, open", 3, straightFlush<open, open>,
     "Three cards of one suit that lie in three straight flushes.", 2},
    {"3 to a straight flush, inside", 3, straightFlush<inside, inside>,
     "Three cards of one suit that lie in two straight flushes.", 2},
    {"3 to a straight flush, double inside", 3, straightFlush<doubleInside, doubleInside>,
     "Three cards of one suit that lie in only one straight flush.", 2},
    {"3 to a straight flush, 7 to jack", 3,
     [](H h) {
         return straightFlush<doubleInside, doubleInside>(h) && has(h, seven) && has(h, jack);
     },
     "Seven, jack and a card between them, all of one suit."},
    {"3 to a straight flush, open or inside", 3, straightFlush<open, inside>,
     "Three cards of one suit that lie in two or three straight flushes.", 2},
    {"3 to a straight flush, high for each gap", 3,
     [](H h) { return straightFlush<open, doubleInside>(h) && gaps(h) <= h.high; },
     "Three cards of one suit: open, inside with a high card, or double inside with two."},
    {"3 to a straight flush, high for each gap but one", 3,
     [](H h) { return straightFlush<open, doubleInside>(h) && gaps(h) <= h.high + 1; },
     "Three cards of one suit: open, inside, or double inside with a high card."},
    {"3 to a flush", 3, suited, "Three cards of one suit.", 3},
    {"4 high", 4, among<highRanks>, "Ace, king, queen and jack."},
    {"3 high", 3, among<highRanks>, "Three high cards of different ranks."},
    {"3 high, no ace", 3, among<faces>, "King, queen and jack."},
    {"3 high, with an ace", 3, among<highRanks, ace>, "An ace and two of king, queen and jack."},
    {"2 high, suited", 2, suitedAmong<highRanks>, "Two high cards of one suit."},
    {"2 high, suited, no ace", 2, suitedAmong<faces>, "Two faces of one suit."},
    {"2 high, suited, with an ace", 2, suitedAmong<highRanks, ace>,
     "An ace and a face of one suit."},
    {"jack and queen, suited", 2, suitedAmong<jack | queen>, "Jack and queen of one suit."},
    {"jack and king, suited", 2, suitedAmong<jack | king>, "Jack and king of one suit."},
    {"queen and king, suited", 2, suitedAmong<queen | king>, "Queen and king of one suit."},
    {"jack and ace, suited", 2, suitedAmong<jack | ace>, "Jack and ace of one suit."},
    {"queen and ace, suited", 2, suitedAmong<queen | ace>, "Queen and ace of one suit."},
    {"king and ace, suited", 2, suitedAmong<king | ace>, "King and ace of one suit."},
    {"10 and face, suited", 2, suitedAmong<ten | faces, ten>, "A ten and a face of one suit."},
    {"10 and jack, suited", 2, suitedAmong<ten | jack>, "Ten and jack of one suit."},
    {"10 and queen, suited", 2, suitedAmong<ten | queen>, "Ten and queen of one suit."},
    {"10 and king, suited", 2, suitedAmong<ten | king>, "Ten and king of one suit."},
    {"10 and jack or queen, suited", 2, suitedAmong<ten | jack | queen, ten>,
     "A ten and a jack or queen of one suit."},
    {"10 and ace, suited", 2, suitedAmong<ten | ace>, "Ten and ace of one suit."},
    {"2 high", 2, among<highRanks>, "Two high cards of different ranks."},
    {"2 high, no ace", 2, among<faces>, "Two faces of different ranks."},
    {"2 high, with an ace", 2, among<highRanks, ace>, "An ace and a face."},
    {"2 high, lowest", 2, among<highRanks>,
     "Of the hand's high cards the two lowest; the ace is the highest.", 0, noLowerHigh},
    {"jack and queen", 2, among<jack | queen>, "Jack and queen."},
    {"jack and king", 2, among<jack | king>, "Jack and king."},
    {"queen and king", 2, among<queen | king>, "Queen and king."},
    {"jack and ace", 2, among<jack | ace>, "Jack and ace."},
    {"queen and ace", 2, among<queen | ace>, "Queen and ace."},
    {"king and ace", 2, among<king | ace>, "King and ace."},
    {"1 high", 1, among<highRanks>, "One high card."},
    {"1 face", 1, among<faces>, "One jack, queen or king."},
    {"jack", 1, among<jack>, "One jack."},
    {"queen", 1, among<queen>, "One queen."},
    {"king", 1, among<king>, "One king."},
    {"ace", 1, among<ace>, "One ace."},
    {"nothing", 0, [](H) { return true; }, "No card."},
}};

RowKind memberOf(const Family& family, int high)
{
    std::string name(family.name);
    std::string meaning(family.meaning);
    if (high > 0) {
        constexpr std::array<const char*, 4> atLeast{"", ", at least one", ", at least two",
                                                     ", at least three"};
        name += ", " + std::to_string(high) + " high";
        meaning.pop_back(); // the full stop
        meaning += high == family.cards ? ", all" : atLeast.at(static_cast<std::size_t>(high));
        meaning += " of them high.";
    }
    return {name, family.cards, high, family.matches, meaning, family.discards};
}

} // namespace

std::span<const RowKind> rowKinds()
{
    static const std::vector<RowKind> kinds = [] {
        std::vector<RowKind> all;
        for (const Family& family : families)
            for (int high = 0; high <= family.maxHigh; ++high)
                all.push_back(memberOf(family, high));
        return all;
    }();
    return kinds;
}

RowKindId nothingRow()
{
    return rowKinds().size() - 1;
}

std::optional<RowKindId> findRowKind(std::string_view name)
{
    return findNamed(rowKinds(), name);
}

} // namespace quillet::charts
