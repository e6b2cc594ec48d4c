#include "practice/questions.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace quillet::practice
{

namespace
{

constexpr std::size_t randomOneIn = 10;

// The larger, the more evenly decisions come up over time; 0 would be a draw without memory.
constexpr double owedPower = 4;

std::uint64_t setOf(const std::array<odds::DeckPlace, 5>& cards)
{
    std::uint64_t set = 0;
    for (const odds::DeckPlace card : cards)
        set |= std::uint64_t{1} << card;
    return set;
}

} // namespace

Question firstQuestion(std::uint64_t seed)
{
    std::mt19937_64 random(seed);
    std::array<odds::DeckPlace, 52> deck{};
    std::iota(deck.begin(), deck.end(), odds::DeckPlace{0});
    Question question;
    for (std::size_t i = 0; i < question.cards.size(); ++i) {
        const auto left = static_cast<double>(deck.size() - i);
        const double chance = static_cast<double>(random() >> 11U) * 0x1p-53;
        std::swap(deck[i], deck[i + static_cast<std::size_t>(chance * left)]);
        question.cards[i] = deck[i];
    }
    return question;
}

Questions::Questions(const Decisions& decisions, std::uint64_t seed)
    : m_decisions(decisions), m_random(seed)
{
    practise({});
    forgetDeals();
}

void Questions::hasBeenAsked(const Question& question)
{
    if (m_asked.insert(setOf(question.cards)).second)
        --m_dealsLeft[question.decision];
}

void Questions::practise(const std::vector<DecisionId>& ticked)
{
    m_allowed.assign(m_decisions.all().size(), ticked.empty());
    m_owed.assign(m_decisions.all().size(), 0);
    for (const DecisionId id : ticked)
        m_allowed[id] = true;
}

Question Questions::next(const Record& record)
{
    std::vector<double> weights = sharesOfGame();
    if (below(randomOneIn) == 0)
        return dealOf(draw(weights), Chosen::random);
    for (DecisionId id = 0; id < weights.size(); ++id)
        weights[id] *= m_decisions[id].lead() * record.doubt(id);
    return dealOf(drawInTurn(weights), Chosen::weighted);
}

Question Questions::nextOfExam()
{
    return dealOf(draw(sharesOfGame()), Chosen::exam);
}

std::vector<double> Questions::sharesOfGame()
{
    const auto isLeft = [this](DecisionId id) { return m_allowed[id] && m_dealsLeft[id] > 0; };
    std::vector<double> shares(m_dealsLeft.size());
    for (DecisionId id = 0; id < shares.size(); ++id)
        shares[id] = isLeft(id) ? m_decisions[id].probability() : 0;
    if (*std::ranges::max_element(shares) > 0)
        return shares;
    // All deals of the ticked decisions have been asked; they begin again.
    forgetDeals();
    return sharesOfGame();
}

void Questions::forgetDeals()
{
    m_asked.clear();
    m_dealsLeft.clear();
    for (const Decision& decision : m_decisions.all())
        m_dealsLeft.push_back(decision.deals);
}

double Questions::chance()
{
    return static_cast<double>(m_random() >> 11U) * 0x1p-53;
}

std::size_t Questions::below(std::size_t count)
{
    return static_cast<std::size_t>(chance() * static_cast<double>(count));
}

DecisionId Questions::draw(const std::vector<double>& weights)
{
    double left = chance() * std::accumulate(weights.begin(), weights.end(), 0.0);
    DecisionId last = 0;
    for (DecisionId id = 0; id < weights.size(); ++id) {
        if (weights[id] <= 0)
            continue;
        last = id;
        left -= weights[id];
        if (left < 0)
            break;
    }
    return last;
}

DecisionId Questions::drawInTurn(const std::vector<double>& weights)
{
    const double all = std::accumulate(weights.begin(), weights.end(), 0.0);
    std::vector<double> urgency(weights.size());
    for (DecisionId id = 0; id < weights.size(); ++id) {
        if (weights[id] <= 0)
            continue;
        m_owed[id] += weights[id] / all;
        urgency[id] = std::pow(std::max(m_owed[id], 0.0), owedPower);
    }
    // Nothing is owed where all that was has been used up.
    const bool isOwed = *std::ranges::max_element(urgency) > 0;
    const DecisionId id = draw(isOwed ? urgency : weights);
    m_owed[id] -= 1;
    return id;
}

Question Questions::dealOf(DecisionId id, Chosen chosen)
{
    const std::span<const DealClass> classes = m_decisions.deals(id);
    Question question{{}, id, chosen};
    do {
        auto left = static_cast<int>(below(static_cast<std::size_t>(m_decisions[id].deals)));
        auto deal = classes.begin();
        for (; left >= deal->members; ++deal)
            left -= deal->members;
        std::array<std::uint8_t, 4> suits{0, 1, 2, 3};
        for (std::size_t i = 4; i > 1; --i)
            std::swap(suits[i - 1], suits[below(i)]);
        std::ranges::transform(deal->places, question.cards.begin(), [&](odds::DeckPlace place) {
            return static_cast<odds::DeckPlace>(suits[place / 13U] * 13U + place % 13U);
        });
    } while (!m_asked.insert(setOf(question.cards)).second);
    --m_dealsLeft[id];
    for (std::size_t i = 5; i > 1; --i)
        std::swap(question.cards[i - 1], question.cards[below(i)]);
    return question;
}

} // namespace quillet::practice
