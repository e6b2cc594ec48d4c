#pragma once

#include "practice/journal.h"
#include "practice/record.h"

#include <cstdint>
#include <random>
#include <unordered_set>

namespace quillet::practice
{

struct Question {
    std::array<odds::DeckPlace, 5> cards{}; // left to right
    DecisionId decision = 0;
    Chosen chosen = Chosen::random;
};

// A deal for the time before the decisions are known: any, at random. Its decision is not set.
[[nodiscard]] Question firstQuestion(std::uint64_t seed);

// Chooses the deals of one session. The same seed and the same records give the same questions.
class Questions
{
public:
    // The decisions outlive this.
    Questions(const Decisions& decisions, std::uint64_t seed);

    // Keeps the deal from being asked again.
    void hasBeenAsked(const Question& question);

    // Only these decisions come up; none stands for all.
    void practise(const std::vector<DecisionId>& ticked);

    // One in ten is a random deal. For the others each decision is owed its part of the questions,
    // by probability times lead times doubt, and is drawn the sooner the more it is owed: over time
    // as often as a draw by these weights, but none waits much longer than its turn.
    [[nodiscard]] Question next(const Record& record);

    // A deal as the real game deals it.
    [[nodiscard]] Question nextOfExam();

private:
    [[nodiscard]] double chance(); // in [0, 1)
    [[nodiscard]] std::size_t below(std::size_t count);
    [[nodiscard]] DecisionId draw(const std::vector<double>& weights);
    [[nodiscard]] DecisionId drawInTurn(const std::vector<double>& weights);
    [[nodiscard]] Question dealOf(DecisionId id, Chosen chosen);
    [[nodiscard]] std::vector<double> sharesOfGame();
    void forgetDeals();

    const Decisions& m_decisions;
    std::mt19937_64 m_random;
    std::vector<double> m_owed; // questions, by decision
    std::vector<bool> m_allowed;
    std::vector<std::int64_t> m_dealsLeft;
    std::unordered_set<std::uint64_t> m_asked; // bit p is set for the card in place p
};

} // namespace quillet::practice
