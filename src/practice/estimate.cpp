#include "practice/estimate.h"

#include "engine/pay_table.h"
#include "practice/prior.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>
#include <vector>

namespace quillet::practice
{

namespace
{

// The model. In each decision the player either knows what to do or errs in some share of its
// deals, any share being as likely as any other. Who errs has one of two habits: wild holds only,
// or none, and then the rival is as likely as all other holds together. At any deal a slip may come
// instead: a hold picked blindly, so seldom the rival. The draws below are those of a Gibbs sampler
// from what the answers leave possible.

constexpr int draws = 2000;
constexpr int drawsBefore = 50;
constexpr double inside = 0.96; // a little more than is claimed, for the roughness of the draws

// How the player stands to the chances of mistakes: knows all, errs seldom, errs as expected.
constexpr std::array<double, 3> levels{0, 0.3, 1};
constexpr std::array<double, 3> levelShares{0.1, 0.3, 0.6};

// Slips: some players make none, the others any rate, and few answers are enough to tell.
constexpr double carefulShare = 0.1;
constexpr double slipsExpected = 0.7; // in so many answers and this one
constexpr double slipAnswers = 10;

enum Habit : std::size_t { tame, wild, habits };
constexpr std::array<double, habits> habitShares{0.9, 0.1};
constexpr std::array<std::array<double, mistakes>, habits> mistakeShares{
    {{0.5, 0.5, 0}, {0, 0, 1}}};

constexpr std::size_t steps = 16; // of the error rate
constexpr double costSpread = 4;  // one over the variance of a mistake's cost relative to it

// Answers with one sort of mistake.
struct WrongHolds {
    double blindShare = 0; // of the 32 holds
    int count = 0;
    double cost = 0;
};

// What the answers say about one decision.
struct Evidence {
    explicit Evidence(const Decision& decision)
        : probability(decision.probability()), lead(decision.lead()),
          anyHoldCost(decision.anyHoldCost()), mistaken(chanceOfMistakes(decision))
    {
        constexpr double oneHold = 1.0 / odds::holds;
        wrong[0].blindShare = oneHold;
        wrong[1].blindShare = std::max(1 - 2 * oneHold - decision.wildShare(), 0.0);
        wrong[2].blindShare = decision.wildShare();
    }

    [[nodiscard]] bool hasErrors() const
    {
        return std::ranges::any_of(wrong, [](const WrongHolds& each) { return each.count > 0; });
    }

    double probability;
    double lead;
    double anyHoldCost;
    double mistaken; // the chance of it before any answer
    int right = 0;
    std::array<WrongHolds, mistakes> wrong; // by Mistake

    // How well the answers fit a player who knows the decision, and one who does not, up to a
    // factor.
    double fitKnown = 1;
    double fitMistaken = 1;
    std::array<double, habits * steps> fitOfRate{}; // the steps of each habit
};

// A way to err in a decision; the rate is 0 where the player knows it.
struct WayToErr {
    double rate = 0;
    std::size_t habit = tame;
};

struct Losses {
    double close = 0; // in credits a hand
    double clear = 0;
};

class Sampler
{
public:
    Sampler(const Decisions& decisions, std::span<const Answer> answers);

    [[nodiscard]] Losses draw();

private:
    void fit(Evidence& evidence) const;
    void drawLevel();
    [[nodiscard]] WayToErr drawWayToErr(const Evidence& evidence);
    [[nodiscard]] double drawCost(const Evidence& evidence, const WayToErr& way, int& slips);
    void drawSlipRate(int slips);

    double chance() { return std::uniform_real_distribution<double>()(m_random); }
    double gamma(double shape) { return std::gamma_distribution<double>(shape)(m_random); }
    double beta(double a, double b)
    {
        const double x = gamma(a);
        return x / (x + gamma(b));
    }

    std::vector<Evidence> m_evidence;
    double m_chancesToSlip = 0; // answers in which a slip would have been wrong
    double m_slipRate = 0.01;
    double m_level = 1;
    std::mt19937_64 m_random{1};
};

Sampler::Sampler(const Decisions& decisions, std::span<const Answer> answers)
    : m_chancesToSlip(static_cast<double>(answers.size()) * (1 - 1.0 / odds::holds))
{
    m_evidence.reserve(decisions.all().size());
    for (const Decision& decision : decisions.all())
        m_evidence.emplace_back(decision);
    for (const Answer& answer : answers) {
        Evidence& evidence = m_evidence[answer.decision];
        if (answer.isRight()) {
            ++evidence.right;
            continue;
        }
        WrongHolds& wrong = evidence.wrong[static_cast<std::size_t>(answer.mistake)];
        ++wrong.count;
        wrong.cost += answer.cost;
    }
    for (Evidence& evidence : m_evidence)
        evidence.fitMistaken = 1.0 / (evidence.right + 1);
}

Losses Sampler::draw()
{
    for (Evidence& evidence : m_evidence)
        fit(evidence);
    drawLevel();
    Losses losses;
    int slips = 0;
    for (const Evidence& evidence : m_evidence) {
        const WayToErr way = drawWayToErr(evidence);
        const double cost = way.rate * drawCost(evidence, way, slips);
        const double each = (1 - m_slipRate) * cost + m_slipRate * evidence.anyHoldCost;
        (evidence.lead < closeLead ? losses.close : losses.clear) += evidence.probability * each;
    }
    drawSlipRate(slips);
    return losses;
}

void Sampler::fit(Evidence& evidence) const
{
    if (!evidence.hasErrors())
        return;
    // Logarithms first: after thousands of answers the chances are too small for a double.
    const auto logOfFit = [&](double rate, std::size_t habit) {
        double log = evidence.right * std::log(1 - rate);
        for (std::size_t k = 0; k < mistakes; ++k) {
            const WrongHolds& wrong = evidence.wrong[k];
            const double mistake = (1 - m_slipRate) * rate * mistakeShares[habit][k];
            if (wrong.count > 0)
                log += wrong.count * std::log(m_slipRate * wrong.blindShare + mistake);
        }
        return log;
    };
    const double known = logOfFit(0, tame);
    double greatest = known;
    for (std::size_t i = 0; i < evidence.fitOfRate.size(); ++i) {
        const std::size_t habit = i / steps;
        const double rate = (static_cast<double>(i % steps) + 0.5) / steps;
        evidence.fitOfRate[i] = std::log(habitShares[habit] / steps) + logOfFit(rate, habit);
        greatest = std::max(greatest, evidence.fitOfRate[i]);
    }
    evidence.fitKnown = std::exp(known - greatest);
    evidence.fitMistaken = 0;
    for (double& fit : evidence.fitOfRate) {
        fit = std::exp(fit - greatest);
        evidence.fitMistaken += fit;
    }
}

void Sampler::drawLevel()
{
    std::array<double, levels.size()> weight{};
    for (std::size_t i = 0; i < levels.size(); ++i) {
        weight[i] = std::log(levelShares[i]);
        for (const Evidence& evidence : m_evidence) {
            const double mistaken = levels[i] * evidence.mistaken;
            weight[i] +=
                std::log((1 - mistaken) * evidence.fitKnown + mistaken * evidence.fitMistaken);
        }
    }
    const double greatest = *std::ranges::max_element(weight);
    for (double& each : weight)
        each = std::exp(each - greatest);
    m_level =
        levels[std::discrete_distribution<std::size_t>(weight.begin(), weight.end())(m_random)];
}

WayToErr Sampler::drawWayToErr(const Evidence& evidence)
{
    const double mistaken = m_level * evidence.mistaken * evidence.fitMistaken;
    const double known = (1 - m_level * evidence.mistaken) * evidence.fitKnown;
    if (chance() * (mistaken + known) >= mistaken)
        return {};
    if (!evidence.hasErrors())
        return {beta(1, evidence.right + 1)};
    double left = chance() * evidence.fitMistaken;
    std::size_t i = 0;
    while (i + 1 < evidence.fitOfRate.size() && (left -= evidence.fitOfRate[i]) >= 0)
        ++i;
    return {(static_cast<double>(i % steps) + chance()) / steps, i / steps};
}

// What a mistake costs on average. Counts those wrong answers that were slips.
double Sampler::drawCost(const Evidence& evidence, const WayToErr& way, int& slips)
{
    double weight = 1; // the lead counts as one answer
    double cost = evidence.lead;
    for (std::size_t k = 0; k < mistakes; ++k) {
        const WrongHolds& wrong = evidence.wrong[k];
        if (wrong.count == 0)
            continue;
        const double slip = m_slipRate * wrong.blindShare;
        const double mistake = (1 - m_slipRate) * way.rate * mistakeShares[way.habit][k];
        const double isSlip = slip / (slip + mistake);
        slips += std::binomial_distribution<int>(wrong.count, isSlip)(m_random);
        weight += (1 - isSlip) * wrong.count;
        cost += (1 - isSlip) * wrong.cost;
    }
    if (way.rate <= 0)
        return 0;
    const double shape = costSpread * weight;
    return cost / weight * gamma(shape) / shape;
}

void Sampler::drawSlipRate(int slips)
{
    const double others = slipAnswers + m_chancesToSlip - slips;
    m_slipRate = beta(slipsExpected + slips, others);
    if (slips > 0)
        return;
    const double fits =
        std::exp(std::lgamma(others) - std::lgamma(slipsExpected + others) +
                 std::lgamma(slipsExpected + slipAnswers) - std::lgamma(slipAnswers));
    if (chance() * (carefulShare + (1 - carefulShare) * fits) < carefulShare)
        m_slipRate = 0;
}

// The first of the shortest run of values that has this many of them.
std::size_t shortestRun(const std::vector<double>& ascending, std::size_t size)
{
    const auto length = [&](std::size_t i) { return ascending[i + size - 1] - ascending[i]; };
    std::size_t shortest = 0;
    for (std::size_t i = 1; i + size <= ascending.size(); ++i)
        shortest = length(i) < length(shortest) ? i : shortest;
    return shortest;
}

} // namespace

Estimate estimateReturn(const Decisions& decisions, std::span<const Answer> answers)
{
    const double perfectReturn = decisions.perfectReturn();
    Sampler sampler(decisions, answers);
    for (int i = 0; i < drawsBefore; ++i)
        static_cast<void>(sampler.draw());
    Estimate estimate;
    std::vector<double> losses;
    for (int i = 0; i < draws; ++i) {
        const Losses drawn = sampler.draw();
        estimate.closeLoss += drawn.close / wager / draws;
        estimate.slipLoss += drawn.clear / wager / draws;
        losses.push_back((drawn.close + drawn.clear) / wager);
    }
    std::ranges::sort(losses);
    const auto size = static_cast<std::size_t>(inside * draws);
    const std::size_t first = shortestRun(losses, size);
    estimate.returned = perfectReturn - estimate.closeLoss - estimate.slipLoss;
    estimate.low = perfectReturn - losses[first + size - 1];
    estimate.high = perfectReturn - losses[first];
    return estimate;
}

} // namespace quillet::practice
