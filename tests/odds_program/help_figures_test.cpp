#include "charts/chart_price.h"
#include "charts/mistakes.h"
#include "coach/hold_coach.h"
#include "engine/hand_evaluation.h"
#include "engine/pay_table.h"
#include "odds/fair_odds.h"
#include "odds/hand_text.h"
#include "tests/kit/cards.h"
#include "tests/kit/file_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <numeric>
#include <regex>
#include <span>
#include <string>

namespace quillet::test
{

using namespace odds;
using charts::Taken;

namespace
{

// The help has each figure in an element of its class.
void expectFigures(const std::string& help, const std::map<std::string, std::string>& figures)
{
    for (const auto& [name, figure] : figures)
        EXPECT_NE(help.find("class=\"" + name + "\">" + figure + '<'), std::string::npos)
            << name << ": " << figure;
}

// A share in percent: "0.995439" is 99.5439.
std::string inHundred(const Fraction& share)
{
    const std::string digits = share.decimals(6);
    return digits.substr(2, 2) + "." + digits.substr(4);
}

std::string handsPerRoyal(const OutcomeChances& chances)
{
    return std::to_string(std::lround(1.0 / std::stod(chances[1].decimals(15))));
}

// For each card number, the chance of each place in the shuffled deck.
std::array<std::array<double, 52>, 52> placesAfterTheShuffle()
{
    std::array<std::array<double, 52>, 52> chances{};
    for (std::size_t number = 0; number < chances.size(); ++number) {
        std::array<double, 52>& place = chances[number];
        place[number] = 1.0;
        for (std::size_t i = 0; i < place.size(); ++i) {
            const double here = place[i];
            for (double& chance : place)
                chance = chance * 51 / 52 + here / 52;
            // The exchange brings a card from anywhere else, or the card stays.
            place[i] = 1.0 / 52;
        }
    }
    return chances;
}

std::string inPercent(double share)
{
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%.2f", share * 100);
    return text.data();
}

} // namespace

TEST(HelpFigures, theHelpTellsHowTheDeckIsShuffled)
{
    const std::string help = fileText(QUILLET_HELP_FILE);
    const auto chances = placesAfterTheShuffle();
    std::array<double, 52> dealt{};
    std::array<double, 52> drawn{};
    double least = 1, most = 0;
    double highCards = 0;
    for (std::size_t number = 0; number < 52; ++number) {
        const auto& place = chances[number];
        dealt[number] = std::accumulate(place.begin(), place.begin() + 5, 0.0);
        drawn[number] = std::accumulate(place.begin() + 5, place.begin() + 10, 0.0);
        least = std::min(least, *std::ranges::min_element(place));
        most = std::max(most, *std::ranges::max_element(place));
        highCards += number < 4 || number >= 40 ? dealt[number] : 0.0;
    }
    const auto moreOften = [](const std::array<double, 52>& chance, std::size_t rank) {
        const auto first = chance.begin() + static_cast<std::ptrdiff_t>(4 * (rank - 1));
        const double change = std::accumulate(first, first + 4, 0.0) / (4 * 5.0 / 52) - 1;
        return std::to_string(std::abs(std::lround(change * 100)));
    };
    const auto kingOfSpades = static_cast<std::size_t>(card("Ks").cardId);
    EXPECT_EQ(std::ranges::min_element(dealt) - dealt.begin(), card("Ks").cardId);
    EXPECT_EQ(std::ranges::max_element(dealt) - dealt.begin(), card("2d").cardId);
    EXPECT_EQ(std::ranges::max_element(drawn) - drawn.begin(), card("3h").cardId);
    expectFigures(help, {{"shuffle-least", inPercent(least)},
                         {"shuffle-most", inPercent(most)},
                         {"dealt-least", inPercent(dealt[kingOfSpades])},
                         {"dealt-most", inPercent(std::ranges::max(dealt))},
                         {"drawn-least", inPercent(drawn[kingOfSpades])},
                         {"drawn-most", inPercent(std::ranges::max(drawn))},
                         {"twos", moreOften(dealt, 2)},
                         {"kings", moreOften(dealt, 13)},
                         {"aces", moreOften(dealt, 1)},
                         {"drawn-aces", moreOften(drawn, 1)},
                         {"drawn-threes", moreOften(drawn, 3)},
                         {"drawn-kings", moreOften(drawn, 13)},
                         {"high-cards", inPercent(highCards / 100)}});
}

TEST(HelpFigures, thePayTableIsTheOneThatIsPaid)
{
    const std::string help = fileText(QUILLET_HELP_FILE), opening = "<td align=\"right\">";
    std::string told, paid;
    for (std::size_t at = help.find(opening); at != std::string::npos;
         at = help.find(opening, at)) {
        at += opening.size();
        told += help.substr(at, help.find('<', at) - at) + ' ';
    }
    for (const Payout& payout : payTable)
        paid += std::to_string(payout.pays) + ' ';
    EXPECT_EQ(told, paid + "0 ");
}

TEST(HelpFigures, theHelpAndTheFirstPagesTellWhatTheChartIsWorth)
{
    std::string help = fileText(QUILLET_HELP_FILE);
    std::erase(help, ',');
    const FairOdds odds = fairOdds(HeldCards());
    const charts::ChartPrice chart = charts::priceChart(HeldCards(), charts::trainersChart());
    const auto& twoHigh = chart.rows[17].loss;
    std::string costliest;
    const auto mistakes = charts::mistakesOf(HeldCards(), charts::trainersChart());
    for (const charts::Mistake& mistake : std::span(mistakes).first(10))
        costliest += "<tr class=\"mistake\"><td>" + std::string(mistake.row) + "</td><td>" +
                     std::string(mistake.instead) + "</td><td>" + std::to_string(mistake.deals) +
                     "</td><td>" + (mistake.cost * 100).decimals(4) +
                     "</td><td><span class=\"hand\">" + holdText(mistake.example, holdAll) +
                     "</span></td><td><span class=\"hold\">" +
                     holdText(mistake.example, mistake.best) + "</span></td></tr>\n";
    std::erase(costliest, ',');
    EXPECT_NE(help.find(costliest), std::string::npos) << costliest;
    expectFigures(help, {{"worth-perfect", inHundred(odds.returned)},
                         {"worth-best", inHundred(chart.played[Taken::best].returned)},
                         {"worth-average", inHundred(chart.played[Taken::any].returned)},
                         {"worth-worst", inHundred(chart.played[Taken::worst].returned)},
                         {"worth-deals", std::to_string(chart.dealsPlayedPerfectly)},
                         {"worth-royal-perfect", handsPerRoyal(odds.chances)},
                         {"worth-royal-chart", handsPerRoyal(chart.played[Taken::best].chances)},
                         {"worth-cost", chart.rows[11].costliest[Taken::best].cost.decimals(4)},
                         {"worth-lowest",
                          ((twoHigh[Taken::worst] - twoHigh[Taken::best]) * 100).decimals(3)}});
    for (const char* page : {QUILLET_README, QUILLET_METAINFO})
        for (const Fraction& returned : {odds.returned, chart.played[Taken::best].returned})
            EXPECT_NE(fileText(page).find(inHundred(returned)), std::string::npos) << page;
}

// OddsPage.isUpToDate checks that our figures are those computed.
TEST(OddsPage, agreesWithTheLiterature)
{
    const std::string page = fileText(QUILLET_ODDS_PAGE);
    const std::regex row(R"(\|([^|]*)\|([^|]*)\| (\[\d\]|not known) \|)"), number(R"([\d.]+)");
    const std::sregex_iterator end;
    int compared = 0;
    for (std::sregex_iterator at(page.begin(), page.end(), row); at != end; ++at) {
        const std::string published = (*at)[1], ours = (*at)[2];
        std::sregex_iterator theirs(published.begin(), published.end(), number);
        std::sregex_iterator our(ours.begin(), ours.end(), number);
        for (; theirs != end && our != end; ++theirs, ++our, ++compared) {
            const std::string figure = theirs->str();
            const auto point = std::min(figure.find('.'), figure.size() - 1);
            const double unit =
                std::pow(10, static_cast<double>(point + 1) - static_cast<double>(figure.size()));
            // The page says that 3624 is not ours.
            EXPECT_LT(std::abs(std::stod(figure) - std::stod(our->str())),
                      figure == "3624" ? 1.5 : unit)
                << at->str();
        }
    }
    EXPECT_EQ(compared, 14);
}

TEST(HelpFigures, theExampleHandsAreWhatTheHelpSays)
{
    const std::string help = fileText(QUILLET_HELP_FILE);
    std::size_t at = 0;
    const auto next = [&](const std::string& opening, char closing) {
        const std::size_t start = help.find(opening, at) + opening.size();
        at = help.find(closing, start);
        return help.substr(start, at - start);
    };
    int rows = 0, refused = 0;
    while (help.find("<tr ", at) != std::string::npos) {
        const std::string row = next("<tr ", '>');
        const bool ofTheChart = row.starts_with("id=\"row"), wrong = row == "class=\"refused\"";
        if (!ofTheChart && !wrong && row != "class=\"accepted\"")
            continue;
        const std::string dealt = next("<span class=\"hand\">", '<');
        const std::string kept = next("<span class=\"hold\">", '<');
        const auto cards = hand(dealt);
        std::array<bool, 5> held{};
        for (std::size_t slot = 0; slot < held.size(); ++slot)
            held[slot] = kept.find(dealt.substr(3 * slot, 2)) != std::string::npos;
        const std::int16_t play = EvaluatePokerHand(cards, false);
        if (ofTheChart) {
            EXPECT_EQ(row, "id=\"row" + std::to_string(++rows) + '"');
            EXPECT_EQ(play, rows) << dealt;
        }
        refused += wrong;
        EXPECT_EQ(isCorrectHold(cards, held, play), !wrong) << dealt << ": " << kept;
    }
    EXPECT_EQ(refused, 2);
    EXPECT_EQ(rows, 21);
}

} // namespace quillet::test
