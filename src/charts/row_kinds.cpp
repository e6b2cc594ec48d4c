#include "charts/row_kinds.h"

#include "charts/names.h"

#include <array>

namespace quillet::charts
{

namespace
{

constexpr bool has(const HoldFacts& h, RankSet ranks)
{
    return (h.ranks & ranks) != 0;
}

constexpr bool isPair(const HoldFacts& h)
{
    return h.cards == 2 && h.alike == 2;
}

bool toRoyal(const HoldFacts& h)
{
    return h.suitedRun(3) && !has(h, ~royalRanks);
}

bool toStraightFlush(const HoldFacts& h)
{
    return h.suitedRun(3);
}

// How many straights fewer than the three that are possible have these three cards.
constexpr int missed(const HoldFacts& h)
{
    return 3 - h.straights;
}

constexpr bool isFlushDraw(const HoldFacts& h, int cards, int leastHigh)
{
    return h.cards == cards && h.suited && h.high >= leastHigh;
}

constexpr bool isStraightDraw(const HoldFacts& h, int straights, int leastHigh)
{
    return h.cards == 4 && h.straights == straights && h.high >= leastHigh;
}

constexpr bool allHigh(const HoldFacts& h, int cards)
{
    return h.cards == cards && h.high == cards && h.alike == 1;
}

constexpr bool tenWith(const HoldFacts& h, RankSet others)
{
    return h.cards == 2 && h.suited && has(h, ten) && has(h, others);
}

// High ranks in their order, the ace highest.
constexpr RankSet inOrder(RankSet ranks)
{
    return (ranks & faces) | ((ranks & ace) != 0 ? king << 1 : 0);
}

bool areLowest(const HoldFacts& held, const HoldFacts& discarded)
{
    const RankSet thrown = inOrder(discarded.ranks);
    const RankSet lowestThrown = thrown & (~thrown + 1);
    return thrown == 0 || inOrder(held.ranks) < lowestThrown;
}

using H = const HoldFacts&;

constexpr std::array<RowKind, 95> kinds{{
    {"royal", "Ten to ace of one suit.",
     [](H h) { return h.suited && h.cards == 5 && h.ranks == royalRanks; }},
    {"straight flush", "Five cards of one suit whose ranks follow each other, a royal too.",
     [](H h) { return h.suitedRun(5); }},
    {"4 of a kind", "Four cards of one rank, without the fifth card.",
     [](H h) { return h.cards == 4 && h.alike == 4; }},
    {"full house", "Three cards of one rank and two of another.",
     [](H h) { return h.cards == 5 && h.alike == 3 && h.pairs == 1; }},
    {"flush", "Five cards of one suit.", [](H h) { return h.cards == 5 && h.suited; }},
    {"straight", "Five cards whose ranks follow each other, the ace low or high.",
     [](H h) { return h.run(5); }},
    {"straight or better, dealt",
     "All five cards of a straight, a flush, a full house, a straight flush or a royal.",
     [](H h) {
         return h.run(5) || (h.cards == 5 && (h.suited || (h.alike == 3 && h.pairs == 1)));
     }},
    {"4 to a royal", "Four cards of a royal.",
     [](H h) { return h.suitedRun(4) && (h.ranks & ~royalRanks) == 0; }},
    {"4 to a straight flush", "Four cards of one suit that one or two cards make a straight flush.",
     [](H h) { return h.suitedRun(4); }},
    {"4 to a straight flush, no gap",
     "Four cards of one suit whose ranks follow each other, the ace low.",
     [](H h) { return h.cards == 4 && h.suited && h.follow; }},
    {"4 to a straight flush, open",
     "Four cards of one suit that a card at either end makes a straight flush.",
     [](H h) { return h.suitedRun(4) && h.straights == 2; }},
    {"4 to a straight flush, inside",
     "Four cards of one suit that only one card makes a straight flush.",
     [](H h) { return h.suitedRun(4) && h.straights == 1; }},
    {"3 of a kind", "Three cards of one rank.", [](H h) { return h.cards == 3 && h.alike == 3; }},
    {"2 pair", "Two pairs.", [](H h) { return h.cards == 4 && h.pairs == 2; }},
    {"pair", "Two cards of one rank.", [](H h) { return isPair(h); }},
    {"high pair", "A pair of aces, kings, queens or jacks.",
     [](H h) { return isPair(h) && h.highPair; }},
    {"low pair", "A pair of tens or lower.", [](H h) { return isPair(h) && !h.highPair; }},
    {"3 to a royal", "Three cards of a royal.", [](H h) { return toRoyal(h); }},
    {"3 to a royal, no ace", "Three cards of a royal, the ace not among them.",
     [](H h) { return toRoyal(h) && !has(h, ace); }},
    {"3 to a royal, with an ace", "Three cards of a royal, the ace among them.",
     [](H h) { return toRoyal(h) && has(h, ace); }},
    {"3 to a royal, no 10", "Three cards of a royal, the ten not among them.",
     [](H h) { return toRoyal(h) && !has(h, ten); }},
    {"3 to a royal, with a 10", "Three cards of a royal, the ten among them.",
     [](H h) { return toRoyal(h) && has(h, ten); }},
    {"3 to a royal, no ace and no 10", "Jack, queen and king of one suit.",
     [](H h) { return toRoyal(h) && h.ranks == faces; }},
    {"3 to a royal, with an ace, no 10",
     "Three cards of a royal, the ace among them and not the ten.",
     [](H h) { return toRoyal(h) && has(h, ace) && !has(h, ten); }},
    {"4 to a flush", "Four cards of one suit.", [](H h) { return isFlushDraw(h, 4, 0); }},
    {"4 to a flush, 1 high", "Four cards of one suit, at least one of them high.",
     [](H h) { return isFlushDraw(h, 4, 1); }},
    {"4 to a flush, 2 high", "Four cards of one suit, at least two of them high.",
     [](H h) { return isFlushDraw(h, 4, 2); }},
    {"4 to a flush, 3 high", "Four cards of one suit, at least three of them high.",
     [](H h) { return isFlushDraw(h, 4, 3); }},
    {"4 to an outside straight", "Four cards in a row with room at both ends.",
     [](H h) { return isStraightDraw(h, 2, 0); }},
    {"4 to an outside straight, 1 high",
     "Four cards in a row with room at both ends, at least one of them high.",
     [](H h) { return isStraightDraw(h, 2, 1); }},
    {"4 to an outside straight, 2 high",
     "Four cards in a row with room at both ends, at least two of them high.",
     [](H h) { return isStraightDraw(h, 2, 2); }},
    {"4 to an outside straight, 3 high",
     "Four cards in a row with room at both ends, at least three of them high.",
     [](H h) { return isStraightDraw(h, 2, 3); }},
    {"4 to an inside straight", "Four cards that only one rank makes a straight.",
     [](H h) { return isStraightDraw(h, 1, 0); }},
    {"4 to an inside straight, 1 high",
     "Four cards that only one rank makes a straight, at least one of them high.",
     [](H h) { return isStraightDraw(h, 1, 1); }},
    {"4 to an inside straight, 2 high",
     "Four cards that only one rank makes a straight, at least two of them high.",
     [](H h) { return isStraightDraw(h, 1, 2); }},
    {"4 to an inside straight, 3 high",
     "Four cards that only one rank makes a straight, at least three of them high.",
     [](H h) { return isStraightDraw(h, 1, 3); }},
    {"4 to an inside straight, 4 high",
     "Four cards that only one rank makes a straight, all of them high.",
     [](H h) { return isStraightDraw(h, 1, 4); }},
    {"3 to a straight flush", "Three cards of one suit that lie in a straight flush.",
     [](H h) { return toStraightFlush(h); }},
    {"3 to a straight flush, 1 high",
     "Three cards of one suit that lie in a straight flush, at least one of them high.",
     [](H h) { return toStraightFlush(h) && h.high >= 1; }},
    {"3 to a straight flush, 2 high",
     "Three cards of one suit that lie in a straight flush, at least two of them high.",
     [](H h) { return toStraightFlush(h) && h.high >= 2; }},
    {"3 to a straight flush, no gap",
     "Three cards of one suit whose ranks follow each other, the ace low.",
     [](H h) { return h.cards == 3 && h.suited && h.follow; }},
    {"3 to a straight flush, open", "Three cards of one suit that lie in three straight flushes.",
     [](H h) { return toStraightFlush(h) && h.straights == 3; }},
    {"3 to a straight flush, open, 1 high",
     "Three cards of one suit that lie in three straight flushes, at least one of them high.",
     [](H h) { return toStraightFlush(h) && h.straights == 3 && h.high >= 1; }},
    {"3 to a straight flush, open, 2 high",
     "Three cards of one suit that lie in three straight flushes, at least two of them high.",
     [](H h) { return toStraightFlush(h) && h.straights == 3 && h.high >= 2; }},
    {"3 to a straight flush, inside", "Three cards of one suit that lie in two straight flushes.",
     [](H h) { return toStraightFlush(h) && h.straights == 2; }},
    {"3 to a straight flush, inside, 1 high",
     "Three cards of one suit that lie in two straight flushes, at least one of them high.",
     [](H h) { return toStraightFlush(h) && h.straights == 2 && h.high >= 1; }},
    {"3 to a straight flush, inside, 2 high",
     "Three cards of one suit that lie in two straight flushes, at least two of them high.",
     [](H h) { return toStraightFlush(h) && h.straights == 2 && h.high >= 2; }},
    {"3 to a straight flush, double inside",
     "Three cards of one suit that lie in only one straight flush.",
     [](H h) { return toStraightFlush(h) && h.straights == 1; }},
    {"3 to a straight flush, double inside, 1 high",
     "Three cards of one suit that lie in only one straight flush, at least one of them high.",
     [](H h) { return toStraightFlush(h) && h.straights == 1 && h.high >= 1; }},
    {"3 to a straight flush, double inside, 2 high",
     "Three cards of one suit that lie in only one straight flush, at least two of them high.",
     [](H h) { return toStraightFlush(h) && h.straights == 1 && h.high >= 2; }},
    {"3 to a straight flush, open or inside",
     "Three cards of one suit that lie in two or three straight flushes.",
     [](H h) { return toStraightFlush(h) && h.straights >= 2; }},
    {"3 to a straight flush, open or inside, 1 high",
     "Three cards of one suit that lie in two or three straight flushes, at least one of them "
     "high.",
     [](H h) { return toStraightFlush(h) && h.straights >= 2 && h.high >= 1; }},
    {"3 to a straight flush, open or inside, 2 high",
     "Three cards of one suit that lie in two or three straight flushes, at least two of them "
     "high.",
     [](H h) { return toStraightFlush(h) && h.straights >= 2 && h.high >= 2; }},
    {"3 to a straight flush, high for each gap",
     "Three cards of one suit: open, inside with a high card, or double inside with two.",
     [](H h) { return toStraightFlush(h) && missed(h) <= h.high; }},
    {"3 to a straight flush, high for each gap but one",
     "Three cards of one suit: open, inside, or double inside with a high card.",
     [](H h) { return toStraightFlush(h) && missed(h) <= h.high + 1; }},
    {"3 to a flush", "Three cards of one suit.", [](H h) { return isFlushDraw(h, 3, 0); }},
    {"3 to a flush, 1 high", "Three cards of one suit, at least one of them high.",
     [](H h) { return isFlushDraw(h, 3, 1); }},
    {"3 to a flush, 2 high", "Three cards of one suit, at least two of them high.",
     [](H h) { return isFlushDraw(h, 3, 2); }},
    {"3 to a flush, 3 high", "Three cards of one suit, all of them high.",
     [](H h) { return isFlushDraw(h, 3, 3); }},
    {"4 high", "Ace, king, queen and jack.", [](H h) { return allHigh(h, 4); }},
    {"3 high", "Three high cards of different ranks.", [](H h) { return allHigh(h, 3); }},
    {"3 high, no ace", "King, queen and jack.", [](H h) { return allHigh(h, 3) && !has(h, ace); }},
    {"3 high, with an ace", "An ace and two of king, queen and jack.",
     [](H h) { return allHigh(h, 3) && has(h, ace); }},
    {"2 high, suited", "Two high cards of one suit.",
     [](H h) { return allHigh(h, 2) && h.suited; }},
    {"2 high, suited, no ace", "Two faces of one suit.",
     [](H h) { return allHigh(h, 2) && h.suited && !has(h, ace); }},
    {"2 high, suited, with an ace", "An ace and a face of one suit.",
     [](H h) { return allHigh(h, 2) && h.suited && has(h, ace); }},
    {"jack and queen, suited", "Jack and queen of one suit.",
     [](H h) { return h.cards == 2 && h.suited && h.ranks == (jack | queen); }},
    {"jack and king, suited", "Jack and king of one suit.",
     [](H h) { return h.cards == 2 && h.suited && h.ranks == (jack | king); }},
    {"queen and king, suited", "Queen and king of one suit.",
     [](H h) { return h.cards == 2 && h.suited && h.ranks == (queen | king); }},
    {"jack and ace, suited", "Jack and ace of one suit.",
     [](H h) { return h.cards == 2 && h.suited && h.ranks == (jack | ace); }},
    {"queen and ace, suited", "Queen and ace of one suit.",
     [](H h) { return h.cards == 2 && h.suited && h.ranks == (queen | ace); }},
    {"king and ace, suited", "King and ace of one suit.",
     [](H h) { return h.cards == 2 && h.suited && h.ranks == (king | ace); }},
    {"10 and face, suited", "A ten and a face of one suit.", [](H h) { return tenWith(h, faces); }},
    {"10 and jack, suited", "Ten and jack of one suit.", [](H h) { return tenWith(h, jack); }},
    {"10 and queen, suited", "Ten and queen of one suit.", [](H h) { return tenWith(h, queen); }},
    {"10 and king, suited", "Ten and king of one suit.", [](H h) { return tenWith(h, king); }},
    {"10 and jack or queen, suited", "A ten and a jack or queen of one suit.",
     [](H h) { return tenWith(h, jack | queen); }},
    {"10 and ace, suited", "Ten and ace of one suit.", [](H h) { return tenWith(h, ace); }},
    {"2 high", "Two high cards of different ranks.", [](H h) { return allHigh(h, 2); }},
    {"2 high, no ace", "Two faces of different ranks.",
     [](H h) { return allHigh(h, 2) && !has(h, ace); }},
    {"2 high, with an ace", "An ace and a face.", [](H h) { return allHigh(h, 2) && has(h, ace); }},
    {"2 high, lowest", "Of the hand's high cards the two lowest; the ace is the highest.",
     [](H h) { return allHigh(h, 2); }, areLowest},
    {"jack and queen", "Jack and queen.",
     [](H h) { return h.cards == 2 && h.ranks == (jack | queen); }},
    {"jack and king", "Jack and king.",
     [](H h) { return h.cards == 2 && h.ranks == (jack | king); }},
    {"queen and king", "Queen and king.",
     [](H h) { return h.cards == 2 && h.ranks == (queen | king); }},
    {"jack and ace", "Jack and ace.", [](H h) { return h.cards == 2 && h.ranks == (jack | ace); }},
    {"queen and ace", "Queen and ace.",
     [](H h) { return h.cards == 2 && h.ranks == (queen | ace); }},
    {"king and ace", "King and ace.", [](H h) { return h.cards == 2 && h.ranks == (king | ace); }},
    {"1 high", "One high card.", [](H h) { return h.cards == 1 && h.high == 1; }},
    {"1 face", "One jack, queen or king.",
     [](H h) { return h.cards == 1 && (h.ranks & faces) != 0; }},
    {"jack", "One jack.", [](H h) { return h.cards == 1 && h.ranks == jack; }},
    {"queen", "One queen.", [](H h) { return h.cards == 1 && h.ranks == queen; }},
    {"king", "One king.", [](H h) { return h.cards == 1 && h.ranks == king; }},
    {"ace", "One ace.", [](H h) { return h.cards == 1 && h.ranks == ace; }},
    {"nothing", "No card.", [](H h) { return h.cards == 0; }},
}};

} // namespace

std::span<const RowKind> rowKinds()
{
    return kinds;
}

RowKindId nothingRow()
{
    return kinds.size() - 1;
}

std::optional<RowKindId> findRowKind(std::string_view name)
{
    return findNamed(kinds, name);
}

} // namespace quillet::charts
