#include "engine/random.h"
#include "odds/command_line.h"
#include "odds/hand_text.h"
#include "odds/simulation.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <sys/wait.h>
#include <utility>
#include <vector>

namespace quillet::test
{

namespace
{

Request parsed(std::vector<std::string_view> arguments)
{
    return parseArguments(arguments);
}

// What the program prints, and its exit status.
std::pair<std::string, int> run(const std::string& arguments)
{
    FILE* pipe = popen((QUILLET_ODDS " 2>&1 " + arguments).c_str(), "r");
    std::string output(1 << 20, '\0');
    output.resize(std::fread(output.data(), 1, output.size(), pipe));
    return {output, WEXITSTATUS(pclose(pipe))};
}

// Exchanges every card with itself.
class IdleRandom : public RandomSource
{
public:
    void reseed() override {}
    double next() override { return (m_next++ % 52 + 0.5) / 52; }

private:
    int m_next = 0;
};

} // namespace

TEST(CommandLine, refusesWhatMakesNoSense)
{
    for (const char* text : {"9c Tc Jc Kc", "9c Tc Jc Kc Ad 2d", "9c Tc Jc Kc 9c", "9c Tc Jc Kc A",
                             "9c Tc Jc Kc 1d", "9c Tc Jc Kc Ax", ""})
        EXPECT_THROW((void)parseHand(text), BadHand) << text;
    EXPECT_EQ(holdText(parseHand("  9C10c,jcKC\taD "), 0b10010), "Tc Ad");
    EXPECT_EQ(parsed({"9c", "Tc", "--csv"}).hand, "9c Tc ");
    EXPECT_EQ(parsed({"--simulate", "20", "--seed", "3"}).simulation, 20);
    const std::vector<std::vector<std::string_view>> nonsense{
        {"--simulate"},       {"--simulate", "0"},          {"--simulate", "1e6"},
        {"--what"},           {"--simulate", "9", "As"},    {"--seed", "3"},
        {"--simulate", "-5"}, {"--simulate", "9", "--seed"}};
    for (const auto& arguments : nonsense)
        EXPECT_THROW((void)parsed(arguments), BadUsage) << arguments.front();
}

TEST(Program, answersWithTheFiguresAndSaysWhenItCannot)
{
    const auto [game, gameStatus] = run("");
    EXPECT_EQ(gameStatus, 0);
    for (const char* figure :
         {"99.54390437  = 1653526326983/1661102543100", "99.33148607  = 149999803741/151009322100",
          "Of the 2598960 deals", "28824   0.02014283    0.02014283  9c Tc Jc Kc Ad   5.77243293"})
        EXPECT_THAT(game, testing::HasSubstr(figure));
    const auto [csv, csvStatus] = run("--csv");
    EXPECT_THAT(csv, testing::StartsWith("figure,subject,strategy,decimal,fraction\n"
                                         "return,\"game\",perfect,0.9954390437,"));
    const auto [hand, handStatus] = run("9c Tc Jc Kc Ad");
    EXPECT_THAT(hand, testing::HasSubstr("5.77243293"));
    EXPECT_EQ(run("Ad Jc 9c Kc Tc").first, hand) << "in any order";
    EXPECT_THAT(run("--chart " QUILLET_CHARTS_FOLDER "/trainer.chart").first,
                testing::HasSubstr("99.29491793"));
    EXPECT_EQ(run("9c Tc").second, 2);
    EXPECT_THAT(run("9c Tc Jc Kc Ad >/dev/full").second, 1) << "a full disk";
}

TEST(Simulation, playsTheEnginesOwnDecks)
{
    const HeldCards heldCards;
    IdleRandom idle;
    // An unshuffled deck deals four aces and a two, and replaces the two.
    const Simulation aces = simulate(heldCards, idle, 3, [](std::int64_t) {});
    EXPECT_EQ(aces.perfect.count[3], 3);
    EXPECT_EQ(aces.chart.count[3], 3);
    EXPECT_EQ(aces.chart.returned(), 25.0);
    EXPECT_EQ(aces.chart.margin(), 0.0);

    const auto played = [&](std::uint64_t seed) {
        BlendingRandom random([] { return std::uint64_t{0}; }, seed);
        return simulate(heldCards, random, 20000, [](std::int64_t) {}).perfect;
    };
    EXPECT_EQ(played(1).count, played(1).count);
    EXPECT_NE(played(1).count, played(2).count);
    EXPECT_EQ(played(1).hands(), 20000);
    // A royal now and then is worth more than all else: stay clear of it.
    EXPECT_NEAR(played(1).returned(), 0.975, 0.2);
}

} // namespace quillet::test
