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

constexpr std::array<std::string_view, odds::outcomeCount> finalHands{
    "losing hands", "royals",    "straight flushes", "fours of a kind", "full houses",
    "flushes",      "straights", "threes of a kind", "two pairs",       "high pairs"};

// Figures are counted in units of the last decimal that is printed.
struct Part {
    std::string_view hands;
    double units; // by which the better hold earns more with them
};

std::array<double, odds::outcomeCount>
creditsByOutcome(const odds::HeldCards& heldCards, const odds::DealtHand& hand, odds::Hold hold)
{
    const odds::OutcomeCounts counts = hand.drawOutcomes(heldCards, hold);
    const double draws = std::accumulate(counts.begin(), counts.end(), 0);
    std::array<double, odds::outcomeCount> credits{};
    for (std::size_t outcome = 1; outcome < odds::outcomeCount; ++outcome)
        credits[outcome] = counts[outcome] * static_cast<double>(heldCards.pays()[outcome]) / draws;
    return credits;
}

// The largest parts, the largest first, and the sum of the others. Each is rounded; the largest one
// takes what is then missing from the total.
std::vector<Part> partsOf(const std::array<double, odds::outcomeCount>& more,
                          const std::array<double, odds::outcomeCount>& less, double unitsPerCredit,
                          double total)
{
    std::vector<Part> parts;
    for (std::size_t outcome = 1; outcome < odds::outcomeCount; ++outcome)
        parts.push_back({finalHands[outcome], (more[outcome] - less[outcome]) * unitsPerCredit});
    const auto size = [](const Part& part) { return std::abs(part.units); };
    std::ranges::stable_sort(parts, std::greater(), size);
    const double least = std::max(size(parts.front()) * smallestShare, 0.5);
    std::size_t shown = 1;
    while (shown < shownParts && size(parts[shown]) >= least)
        ++shown;
    Part others{"other hands", 0};
    for (std::size_t i = shown; i < parts.size(); ++i)
        others.units += parts[i].units;
    parts.resize(shown);
    parts.push_back(others);
    for (Part& part : parts) {
        part.units = std::round(part.units);
        total -= part.units;
    }
    parts.front().units += total;
    std::erase_if(parts, [](const Part& part) { return part.units == 0; });
    return parts;
}

// "flushes bring 5.10 more and straights 1.30 more"
std::string listed(const std::vector<Part>& parts, bool gains, std::string_view verb, int places)
{
    std::vector<std::string> items;
    for (const Part& part : parts) {
        if ((part.units > 0) != gains)
            continue;
        const odds::Fraction credits(std::llround(std::abs(part.units)),
                                     std::llround(std::pow(10, places)));
        std::string item(part.hands);
        item.append(items.empty() ? verb : "").append(" ");
        items.push_back(item.append(credits.decimals(places)).append(gains ? " more" : " less"));
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
    const odds::Fraction worth = hand.expectedCredits(better);
    const odds::Fraction otherWorth = hand.expectedCredits(worse);
    if (worth == otherWorth)
        return name + " is worth " + worth.decimals(2) + " credits, " + otherName + " as much.";
    int places = 2;
    while (worth.decimals(places) == otherWorth.decimals(places))
        ++places;
    std::string text = name + " is worth " + worth.decimals(places) + " credits, " + otherName +
                       ' ' + otherWorth.decimals(places) + ": ";
    const double unitsPerCredit = std::pow(10, places);
    const double total = std::round(worth.value() * unitsPerCredit) -
                         std::round(otherWorth.value() * unitsPerCredit);
    const std::vector<Part> parts =
        partsOf(creditsByOutcome(heldCards, hand, better), creditsByOutcome(heldCards, hand, worse),
                unitsPerCredit, total);
    const std::string gains = listed(parts, true, " bring", places);
    const std::string losses = listed(parts, false, gains.empty() ? " bring" : "", places);
    return text + gains + (gains.empty() || losses.empty() ? "" : ", ") + losses + '.';
}

} // namespace quillet::practice
