#include "practice/reason.h"

#include "charts/chart_player.h"
#include "charts/plain_kinds.h"
#include "odds/hand_text.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <functional>
#include <numeric>
#include <vector>

namespace quillet::practice
{

namespace
{

constexpr std::size_t shownParts = 4;
constexpr double smallestShare = 0.05; // of the largest part

constexpr std::array<std::string_view, odds::outcomes> finalHands{
    "losing hands", "royals",    "straight flushes", "fours of a kind", "full houses",
    "flushes",      "straights", "threes of a kind", "two pairs",       "high pairs"};

struct Part {
    std::string_view hands;
    double credits; // by which the better hold earns more with them
};

std::array<double, odds::outcomes> creditsByOutcome(const odds::HeldCards& heldCards,
                                                    const odds::DealtHand& hand, odds::Hold hold)
{
    const odds::OutcomeCounts counts = hand.drawOutcomes(heldCards, hold);
    const double draws = std::accumulate(counts.begin(), counts.end(), 0);
    std::array<double, odds::outcomes> credits{};
    for (std::size_t outcome = 1; outcome < odds::outcomes; ++outcome)
        credits[outcome] = counts[outcome] * static_cast<double>(heldCards.pays()[outcome]) / draws;
    return credits;
}

// The largest ones, the largest first.
std::vector<Part> partsOf(const odds::HeldCards& heldCards, const odds::DealtHand& hand,
                          odds::Hold better, odds::Hold worse)
{
    const auto more = creditsByOutcome(heldCards, hand, better);
    const auto less = creditsByOutcome(heldCards, hand, worse);
    std::vector<Part> parts;
    for (std::size_t outcome = 1; outcome < odds::outcomes; ++outcome)
        parts.push_back({finalHands[outcome], more[outcome] - less[outcome]});
    const auto size = [](const Part& part) { return std::abs(part.credits); };
    std::ranges::stable_sort(parts, std::greater(), size);
    const double least = std::max(size(parts.front()) * smallestShare, 0.005);
    std::erase_if(parts, [&](const Part& part) { return size(part) < least; });
    parts.resize(std::min(parts.size(), shownParts));
    return parts;
}

std::string rounded(double credits, int places)
{
    const double scale = std::pow(10, places);
    return odds::Fraction(std::llround(credits * scale), std::llround(scale)).decimals(places);
}

// "flushes bring 5.1 more and straights 1.3 more"
std::string listed(const std::vector<Part>& parts, bool gains, std::string_view verb, int places)
{
    std::vector<std::string> items;
    for (const Part& part : parts) {
        if ((part.credits > 0) != gains)
            continue;
        std::string item(part.hands);
        item.append(items.empty() ? verb : "").append(" ");
        items.push_back(
            item.append(rounded(std::abs(part.credits), places)).append(gains ? " more" : " less"));
    }
    std::string text;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool last = i + 1 == items.size();
        text.append(i == 0 ? "" : last ? " and " : ", ").append(items[i]);
    }
    return text;
}

std::array<std::string, 2> namesOf(const odds::DealtHand& hand, odds::Hold better, odds::Hold worse)
{
    const auto kind = [&](odds::Hold hold) {
        return charts::plainKindOf(charts::factsOf(hand, hold));
    };
    const auto name = [&](odds::Hold hold) {
        const bool plain = kind(better) != kind(worse) && kind(hold) != charts::otherCards;
        return plain ? std::string(charts::plainKindName(kind(hold)))
                     : odds::holdText(hand.places, hold);
    };
    return {name(better), name(worse)};
}

} // namespace

std::string reason(const odds::HeldCards& heldCards, const odds::DealtHand& hand, odds::Hold better,
                   odds::Hold worse)
{
    auto [name, otherName] = namesOf(hand, better, worse);
    name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
    std::string text =
        name + " is worth " + hand.expectedCredits(better).decimals(2) + " credits, ";
    if (hand.worth[better] == hand.worth[worse])
        return text + otherName + " as much.";
    text += otherName + ' ' + hand.expectedCredits(worse).decimals(2) + ": ";
    const std::vector<Part> parts = partsOf(heldCards, hand, better, worse);
    const int places = std::abs(parts.front().credits) < 1 ? 2 : 1;
    const std::string gains = listed(parts, true, " bring", places);
    const std::string losses = listed(parts, false, gains.empty() ? " bring" : "", places);
    return text + gains + (gains.empty() || losses.empty() ? "" : ", ") + losses + '.';
}

} // namespace quillet::practice
