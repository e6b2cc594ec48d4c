#include "odds/fair_odds.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <string>

namespace quillet::test
{

namespace
{

std::string helpText()
{
    std::ifstream file(QUILLET_HELP_FILE);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The text of the help's element of this class.
std::string figure(const std::string& help, const std::string& name)
{
    const std::string opening = "class=\"" + name + "\">";
    const std::size_t start = help.find(opening);
    if (start == std::string::npos)
        return "missing";
    const std::size_t text = start + opening.size();
    return help.substr(text, help.find('<', text) - text);
}

// A share as credits in a hundred: "0.995439" is 99.5439.
std::string inHundred(const Fraction& share)
{
    const std::string digits = share.decimals(6);
    return digits.substr(2, 2) + "." + digits.substr(4);
}

std::string withCommas(std::int64_t number)
{
    std::string text = std::to_string(number);
    for (auto at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > 0; at -= 3)
        text.insert(static_cast<std::size_t>(at), ",");
    return text;
}

std::string handsPerRoyal(const FairOdds& odds, Strategy strategy)
{
    return withCommas(std::lround(1.0 / std::stod(odds.chanceOf(strategy, 1).decimals(15))));
}

} // namespace

TEST(HelpFigures, theHelpTellsWhatTheChartIsWorth)
{
    const std::string help = helpText();
    const FairOdds odds = fairOdds();
    EXPECT_EQ(figure(help, "worth-perfect"), inHundred(odds.returnOf(Strategy::perfect)));
    EXPECT_EQ(figure(help, "worth-best"), inHundred(odds.returnOf(Strategy::chartBest)));
    EXPECT_EQ(figure(help, "worth-average"), inHundred(odds.returnOf(Strategy::chartAverage)));
    EXPECT_EQ(figure(help, "worth-worst"), inHundred(odds.returnOf(Strategy::chartWorst)));
    EXPECT_EQ(figure(help, "worth-deals"), withCommas(odds.dealsPlayedPerfectly));
    EXPECT_EQ(figure(help, "worth-royal-perfect"), handsPerRoyal(odds, Strategy::perfect));
    EXPECT_EQ(figure(help, "worth-royal-chart"), handsPerRoyal(odds, Strategy::chartBest));
    EXPECT_EQ(figure(help, "worth-cost"), odds.rows[11].costliest.decimals(4));
}

} // namespace quillet::test
