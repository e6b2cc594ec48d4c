#include "odds/suit_classes.h"

namespace quillet::odds
{

namespace
{

// The sets of ranks by how many ranks they hold, 0..5.
std::array<std::vector<unsigned>, 6> setsBySize()
{
    std::array<std::vector<unsigned>, 6> sets;
    for (unsigned set = 0; set < 1U << 13; ++set) {
        const auto size = static_cast<std::size_t>(std::popcount(set));
        if (size < sets.size())
            sets[size].push_back(set);
    }
    return sets;
}

// Visits one order of the suits for each class: no suit has more cards than the suit before it, and
// if it has as many, its set does not come earlier.
class ClassVisitor
{
public:
    explicit ClassVisitor(const std::function<void(SuitSets)>& visit) : m_visit(visit) {}

    void fill(std::size_t suit, std::size_t left, std::size_t largest, std::size_t first)
    {
        if (suit == m_sets.size()) {
            if (left == 0)
                m_visit(m_sets);
            return;
        }
        for (std::size_t size = std::min(left, largest) + 1; size-- > 0;) {
            const std::vector<unsigned>& choices = m_choices[size];
            for (std::size_t i = size == largest ? first : 0; i < choices.size(); ++i) {
                m_sets[suit] = choices[i];
                fill(suit + 1, left - size, size, i);
            }
        }
    }

private:
    const std::function<void(SuitSets)>& m_visit;
    std::array<std::vector<unsigned>, 6> m_choices = setsBySize();
    SuitSets m_sets{};
};

} // namespace

void forEachClass(int size, const std::function<void(SuitSets)>& visit)
{
    const auto cards = static_cast<std::size_t>(size);
    ClassVisitor(visit).fill(0, cards, cards, 0);
}

int classSize(const SuitSets& sets)
{
    // How many of the 24 orders of the suits differ, by the number of pairs of suits with the same
    // ranks. Three suits alike are three pairs, four are six.
    constexpr std::array<int, 7> ordersByEqualPairs{24, 12, 6, 4, 0, 0, 1};
    std::size_t equalPairs = 0;
    for (std::size_t i = 0; i < sets.size(); ++i) {
        for (std::size_t j = i + 1; j < sets.size(); ++j)
            equalPairs += sets[i] == sets[j] ? 1 : 0;
    }
    return ordersByEqualPairs[equalPairs];
}

} // namespace quillet::odds
