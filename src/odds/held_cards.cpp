#include "odds/held_cards.h"

#include <algorithm>
#include <functional>

namespace quillet::odds
{

namespace
{

std::uint32_t combinationOf(std::span<const DeckPlace> ascending)
{
    std::uint32_t combination = 0;
    std::size_t nth = 0;
    for (const DeckPlace place : ascending)
        combination += choose[++nth][place];
    return combination;
}

} // namespace

HeldCards::HeldCards(const Pays& pays) : m_pays(pays), m_classOf(firstOfSize[5])
{
    m_counts.resize(classCount);
    numberClasses();
    countHandsOfFours();
    countHandsOf<3>();
    countHandsOf<2>();
    countHandsOf<1>();
    countHandsOf<0>();
    m_pay.reserve(classCount);
    for (const OutcomeCounts& counts : m_counts) {
        std::int64_t pay = 0;
        for (std::size_t outcome = 1; outcome < outcomeCount; ++outcome)
            pay += counts[outcome] * pays[outcome];
        m_pay.push_back(pay);
    }
}

HeldCards::ClassId HeldCards::classOf(std::span<const DeckPlace> ascending) const
{
    return classOf(ascending.size(), combinationOf(ascending));
}

void HeldCards::numberClasses()
{
    ClassId id = 0;
    for (std::size_t size = 0; size <= 4; ++size) {
        forEachClass(static_cast<int>(size), [&](const SuitSets& sets) {
            forEachMember(sets, [&](const SuitSets& member) {
                const auto places = placesOf<5>(member);
                m_classOf[firstOfSize[size] + combinationOf(std::span(places).first(size))] = id;
            });
            ++id;
        });
    }
}

void HeldCards::countHandsOfFours()
{
    forEachClass(5, [&](const SuitSets& sets) {
        const auto hand = placesOf<5>(sets);
        const std::size_t outcome = outcomeOf(cardsAt(hand));
        const std::int32_t hands = classSize(sets);
        std::array<DeckPlace, 4> four{hand[1], hand[2], hand[3], hand[4]};
        for (std::size_t without = 0; without < hand.size(); ++without) {
            m_counts[classOf(four)][outcome] += hands;
            if (without < four.size())
                four[without] = hand[without];
        }
    });
    // Each class now counts the hands of all its members, which have equally many.
    forEachClass(4, [this](const SuitSets& sets) {
        for (std::int32_t& count : m_counts[classOf(placesOf<4>(sets))])
            count /= classSize(sets);
    });
}

// From the sets with one card more, which count each hand once for each of its cards outside the
// set.
template <std::size_t Size>
void HeldCards::countHandsOf()
{
    forEachClass(static_cast<int>(Size), [this](const SuitSets& sets) {
        const auto places = placesOf<Size>(sets);
        OutcomeCounts& counts = m_counts[classOf(places)];
        for (DeckPlace other = 0; other < 52; ++other) {
            if (std::ranges::find(places, other) != places.end())
                continue;
            std::array<DeckPlace, Size + 1> larger{};
            *std::ranges::copy(places, larger.begin()).out = other;
            std::ranges::sort(larger);
            const OutcomeCounts& more = m_counts[classOf(larger)];
            std::ranges::transform(counts, more, counts.begin(), std::plus());
        }
        for (std::int32_t& count : counts)
            count /= static_cast<std::int32_t>(5 - Size);
    });
}

} // namespace quillet::odds
