#include "charts/chart.h"
#include "engine/random.h"
#include "odds/bad_input.h"
#include "odds/hand_text.h"
#include "odds/pays.h"
#include "odds/simulation.h"
#include "odds_program/command_line.h"
#include "odds_program/reports.h"
#include "tests/kit/file_text.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <initializer_list>
#include <iterator>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quillet::test
{

using namespace odds;
using namespace odds_program;

using testing::HasSubstr;

namespace
{

Request parsed(const std::string& commandLine)
{
    std::istringstream words(commandLine);
    const std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
    const std::vector<std::string_view> views(arguments.begin(), arguments.end());
    return parseArguments(views);
}

// The output of the program, and its exit status.
std::pair<std::string, int> run(const std::string& arguments, const std::string& input = {})
{
    const std::string program =
        input.empty() ? QUILLET_ODDS " </dev/null 2>&1 " : input + " | " QUILLET_ODDS " 2>&1 ";
    FILE* pipe = popen((program + arguments).c_str(), "r");
    std::string output(1 << 20, '\0');
    output.resize(std::fread(output.data(), 1, output.size(), pipe));
    return {output, WEXITSTATUS(pclose(pipe))};
}

// Whether this is refused, with a reason of one printable line.
template <typename Try>
void expectRefused(const std::string& what, const Try& attempt)
{
    try {
        attempt();
        ADD_FAILURE() << what << " is taken";
    } catch (const BadInput& refusal) {
        const std::string_view why(refusal.what());
        const std::string_view line = why.substr(0, why.find('\n'));
        const auto isControl = [](unsigned char letter) { return letter < 0x20 || letter == 0x7f; };
        EXPECT_TRUE(line.size() > 5 && line.size() < 400) << what;
        EXPECT_TRUE(std::ranges::none_of(line, isControl)) << what;
    }
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
        EXPECT_THROW((void)parseHand(text), BadInput) << text;
    EXPECT_EQ(holdText(parseHand("  9C10c,jcKC\taD "), 0b10010), "Tc Ad");
    EXPECT_EQ(
        holdText(parseHand("9\u2663\ufe0f10\u2667J\u2666\ufe0eK\u2661A\u2660 # mine"), holdAll),
        "9c Tc Jd Kh As");
    EXPECT_EQ(parsed("9c Tc --all").hand, "9c Tc ");
    EXPECT_EQ(parsed("-- 9c --all").hand, "9c --all ");
    EXPECT_EQ(parsed("--sitting 10k").session.hands, 10'000);
    EXPECT_EQ(parsed("--simulate=1e6").hands, 1'000'000);
    EXPECT_EQ(parsed("--sitting=10M --format=json").session.hands, 10'000'000);
    EXPECT_EQ(parsed("--sitting 9 --format csv --sitting 10k --format text").session.hands, 10'000);
    EXPECT_EQ(parsed("--sitting 9 --bring 0.5%").session.bring, 0.005);
    EXPECT_EQ(parsed("--simulate 20 --seed 1e3").seed, 1000U);
    EXPECT_EQ(parsed("--rows --all --help --what").question, Question::help);
    EXPECT_EQ(parsed("--simulate none -h").question, Question::help);
    std::istringstream refused(
        "--all|--card|--plays|--what|--seed 3|--bankroll 9|--simulate|--simulate=|--simulate 0|"
        "--bring 5|--sitting 9 --bring 0|--sitting 9 --bring nan|--sitting 9 --bring 5x|--lines "
        "3|--sitting 9 --lines 101|"
        "--simulate=1.5|--simulate -5|--simulate 9 --seed|--simulate 1e12|--sitting 11M|"
        "--exact=yes|--format xml|--format csv - --exact|--best-chart 65|--best-chart 9..3|"
        "--card x --best-chart 1..3|--chart x --card y --mistakes|--chart x --plays --format csv");
    for (std::string arguments; std::getline(refused, arguments, '|');)
        EXPECT_THROW((void)parsed(arguments), BadUsage) << arguments;
}

TEST(CommandLine, takesOnlyThePairsThatMakeSense)
{
    const std::vector<std::string> options{"9c",
                                           "-",
                                           "--mistakes",
                                           "--break-even",
                                           "--sitting 5",
                                           "--simulate 5",
                                           "--rows",
                                           "--chart x",
                                           "--card x",
                                           "--pays 8/5",
                                           "--best-chart 3",
                                           "--all",
                                           "--bankroll 5",
                                           "--bring 5",
                                           "--lines 3",
                                           "--seed 3",
                                           "--plays",
                                           "--format csv",
                                           "--exact",
                                           "--self-test"};
    std::string taken;
    for (std::size_t i = 0; i < options.size(); ++i) {
        std::string partners;
        for (std::size_t j = i + 1; j < options.size(); ++j) {
            try {
                (void)parsed(options[i] + " " + options[j]);
                partners += (partners.empty() ? ": " : ", ") + options[j];
            } catch (const BadUsage&) {
            }
        }
        taken += partners.empty() ? "" : options[i] + partners + "\n";
    }
    EXPECT_EQ(taken, "9c: --break-even, --pays 8/5, --all, --format csv, --exact\n"
                     "-: --pays 8/5, --all, --format csv, --exact\n"
                     "--mistakes: --chart x, --pays 8/5, --format csv, --exact\n"
                     "--break-even: --chart x, --pays 8/5, --format csv, --exact\n"
                     "--sitting 5: --chart x, --pays 8/5, --bankroll 5, --bring 5, --lines 3, "
                     "--format csv\n"
                     "--simulate 5: --pays 8/5, --seed 3, --format csv, --exact\n"
                     "--chart x: --card x, --pays 8/5, --plays, --format csv, --exact\n"
                     "--card x: --pays 8/5, --best-chart 3\n"
                     "--pays 8/5: --best-chart 3, --format csv, --exact\n"
                     "--format csv: --exact\n");
}

TEST(CommandLine, refusesHostileValuesOfEveryOption)
{
    std::istringstream words(
        "-1 + -- nan inf 0x10 1e99 1e-1 1,5 5.5.5 ..3 . \u0663 kk 1kM 5% '' 1/0 "
        "k 1e 3- 9..1 \xff 9\x7f \x1b[31m9 " +
        std::string(5000, '9'));
    for (std::string value; words >> value;) {
        for (const char* option :
             {"--sitting ", "--simulate ", "--best-chart ", "--format ", "--sitting 5 --bankroll ",
              "--sitting 5 --lines ", "--simulate 5 --seed "})
            expectRefused(option + value, [&] { (void)parsed(option + value); });
    }
}

TEST(Readers, refuseHostileTexts)
{
    std::istringstream texts(
        "\xff|\x1b[2J|\xc3\x28|;|1|4 of|9/|//|-9/6|4 of a kind; no|pair, pair, pair|royal 1e9|"
        "9c 9c 9c 9c 9c|1 2 3 4 5 6 7 8 9 10|Ac Kc Qc Jc|nothing\rnothing\v|\u202e9/6|" +
        std::string(1, '\0'));
    for (std::string text; std::getline(texts, text, '|');) {
        const std::string shown = printable(text);
        expectRefused("chart: " + shown, [&] { (void)charts::parseChart(text); });
        expectRefused("pay table: " + shown, [&] { (void)parsePays(text); });
        expectRefused("hand: " + shown, [&] { (void)parseHand(text); });
    }
}

TEST(Program, answersWithTheFiguresAndSaysWhenItCannot)
{
    const auto [game, gameStatus] = run("--exact");
    EXPECT_EQ(gameStatus, 0);
    for (const char* figure :
         {"99.54390437\n      return = 1653526326983/1661102543100\n", "Of the 2598960 deals",
          "19.5147     4.4175          2.2805", "  4 to a straight flush, no gap    1200",
          "0.02014  9cTcJcKcAd  5.77\n"})
        EXPECT_THAT(game, HasSubstr(figure));
    EXPECT_THAT(game, testing::Not(HasSubstr("loss of any"))) << "which no column shows";
    EXPECT_THAT(run("--format csv").first,
                testing::StartsWith("table,row,field,value,fraction\n"
                                    "returns,Perfect play,return,0.995439043695,"));
    const auto [hand, handStatus] = run("9c Tc Jc Kc Ad");
    EXPECT_THAT(hand, HasSubstr("Tc Jc Kc      6.56799260  5.77243293  the chart's\n"));
    EXPECT_THAT(
        hand, HasSubstr("9c Tc Jc Kc makes straight flush in 1, flush in 8, straight in\n    3,"));
    EXPECT_THAT(hand, HasSubstr("9c 0.2405."));
    EXPECT_THAT(hand,
                HasSubstr("\n4 to a straight flush is worth 12.34 credits, 3 to a royal 6.57: "));
    EXPECT_EQ(run("Ad Jc 9c Kc Tc").first, hand) << "in any order";
    EXPECT_THAT(run("2c3d4h5s6c").first,
                testing::AllOf(HasSubstr("Of 1 draw, 2c 6c 3d 4h 5s makes straight in 1."),
                               HasSubstr("4 to an outside straight 2.98: straights\n")));
    EXPECT_THAT(run("TcJcQcKcAc --pays '0 0 0 0 0 0 0 0 5'").first, HasSubstr("the chart's"));
    EXPECT_THAT(run("--format json 9cTcJcKcAd").first,
                testing::ContainsRegex("\"cost\": 5.772432932470, \"cost fraction\": "
                                       "\"6240/1081\".*\"reason\": \"4 to a straight flush is"));
    EXPECT_THAT(run("--format csv --chart " QUILLET_CHARTS_FOLDER "/trainer.chart").first,
                HasSubstr("\nrows,\"4 to a straight flush, no gap\",deals,1200,"));
    EXPECT_THAT(run("--pays 8/5").first, HasSubstr("97.29843375"));
    EXPECT_THAT(run("--mistakes").first,
                testing::AllOf(HasSubstr("468  0.01997     74  9cTcJcKcAd"),
                               HasSubstr("which cost 0.21241830 of 100")));
    EXPECT_THAT(run("--break-even --pays 8/5 --exact").first,
                testing::AllOf(testing::ContainsRegex("Perfect play +8665\\.[0-9]+ +8666 "),
                               HasSubstr("      royal = "), HasSubstr("Perfect play at 4000")));
    EXPECT_THAT(run("--break-even --pays 99/9").first,
                testing::ContainsRegex("Perfect play +none\n.*even without a royal\\."));
    EXPECT_THAT(run("--break-even Ac Kd Qh Jh 8c").first,
                testing::AllOf(HasSubstr("Qh     0.0000  3945.0000\n"),
                               HasSubstr("Qh        3945.0000        any  best at 4000\n")));
    EXPECT_THAT(run("--break-even TcJcQcKc2d").first, HasSubstr("No other hold is ever better"));
    EXPECT_THAT(run("--plays --chart -", "echo nothing").first,
                testing::StartsWith("deal,hold\nAc 2c 3c 4c 5c,\n"));
    EXPECT_THAT(run("--chart -", "printf 'ace\\nace\\n'").first,
                HasSubstr("never apply:\n  ace\n"));
    EXPECT_THAT(run("--simulate 9").first, HasSubstr("Fewer than a million"));
    const std::string onTerminal = "script -qc '" QUILLET_ODDS " 2h2d4h5h7d' /dev/null </dev/null;";
    EXPECT_THAT(run("", "TERM=xterm " + onTerminal + " exit").first,
                testing::AllOf(HasSubstr("\x1b[31mh"), HasSubstr("\x1b[33md")));
    EXPECT_THAT(run("", "NO_COLOR=1 TERM=xterm " + onTerminal + " exit").first,
                testing::Not(HasSubstr("\x1b")));
    EXPECT_THAT(run("--sitting 2400 --chart " QUILLET_CHARTS_FOLDER "/perfect.chart").first,
                testing::ContainsRegex("ahead +30\\.3451 +28\\.2538 +30\\.3451\n"));
    EXPECT_THAT(run("--sitting 15 --bankroll 5").first, HasSubstr("\n            2       66.2477"));
    EXPECT_THAT(run("--sitting 2 --bankroll 9").first,
                testing::EndsWith("choice\n            1       54.5435             54.1938\n"
                                  "            2       66.2477             66.0405\n"));
    EXPECT_THAT(run("--sitting 9 --lines 10 --bankroll 99").first,
                testing::AllOf(HasSubstr("on 10 lines,"), HasSubstr("fewer than 50\nare left"),
                               HasSubstr("\n            1        2.5913")));
    EXPECT_THAT(run("--sitting 600 --bring 5").first,
                HasSubstr("bring               485                 490\n"
                          "  their chance of ruin        4.9344              4.8029\n"));
}

TEST(Program, testsItself)
{
    const auto [output, status] = run("--self-test");
    EXPECT_THAT(output, testing::MatchesRegex("(passed  [^\n]{1,72}\n){5}"));
    EXPECT_EQ(status, 0);
}

TEST(Program, answersHandsOnItsInputOnlyWhenAsked)
{
    const std::string two = "printf '9c Tc Jc Kc Ad\\n\\n2c2d3h4s5c\\n'";
    EXPECT_EQ(run("--format csv -", two).first,
              "hand,row,best,expected,chart,chart expected,cost\n"
              "9c Tc Jc Kc Ad,12,9c Tc Jc Kc,12.34042553,Tc Jc Kc,6.56799260,5.77243293\n"
              "2c 5c 2d 3h 4s,14,2c 2d,4.11840888,2c 2d,4.11840888,0.00000000\n");
    EXPECT_THAT(run("--all -", two).first, HasSubstr("\n   32 "));
    EXPECT_THAT(run("", two).first, testing::StartsWith("Credits returned"));
}

TEST(Program, refusesHostileInputWithItsReason)
{
    const std::string mark = "\\357\\273\\277", charts = QUILLET_CHARTS_FOLDER;
    struct Call {
        std::string arguments;
        std::string input; // command that prints it
        int status;
        std::string said;
    };
    for (const auto& [arguments, input, status, said] : std::initializer_list<Call>{
             {"--chart ''", "", 2, "--chart has an empty value"},
             {"--card= --chart " + charts + "/trainer.chart", "", 2, "--card has an empty value"},
             {"''", "", 2, "an argument is empty"},
             {"--plays --mistakes --chart x", "", 2, "--plays cannot be used with --mistakes"},
             {"--break-even --all 9c", "", 2, "--all cannot be used with --break-even and a hand"},
             {"--best-chart ..5", "", 2, "needs a number of lines, 1 to 64, or two such as"},
             {"--sitting 9 --lines 0", "", 2, "--lines needs a number of lines, 1 to 100"},
             {"--chart / ", "", 1, "/ cannot be read: Is a directory\n"},
             {"- <&-", "", 1, "standard input cannot be read: Bad file descriptor\n"},
             {"--pays 8/x", "", 1, "8/x cannot be read: No such file or directory"},
             {"--pays " + charts + "/trainer.chart", "", 2, "/trainer.chart: pay table, line "},
             {"--chart /dev/zero", "", 2, "/dev/zero: the text is longer than 1 MB\n"},
             {"-", "cat /dev/zero", 2, "line 1: the line is longer than 4096 bytes\n"},
             {"--chart -", "printf %0900000d", 2, "\"" + std::string(60, '0') + "...\"\n"},
             {"-", "printf '2c2d3h4s5c\\n#\\n9\\033\\377\u2663'", 2,
              "line 3: '9\\x1b\\xff\u2663' is not a card"},
             {"-", "printf '\\377\\3769\\0c\\0'", 2, "UTF-16"},
             {"--chart - --pays -", "", 2, "only one of the inputs can be standard input"},
             {"--chart -", "printf '" + mark + "# mine\\r\\nnothing\\r\\n'", 0, "33.68670545"},
             {"--pays /dev/stdin", "printf '" + mark + "8/5\\r\\n'", 0, "97.29843375"},
             {"--format csv -", "printf '" + mark + "9c Tc Jc Kc Ad # mine\\r\\n'", 0, "Kc,12.340"},
             {"- >/dev/full", "(yes 2c2d3h4s5c | head -n 20000; echo bad)", 1,
              "the answer cannot be written: No space left on device\n"},
         }) {
        const auto [output, exit] = run(arguments, input);
        EXPECT_THAT(output, HasSubstr(said)) << arguments;
        EXPECT_EQ(exit, status) << arguments;
    }
}

TEST(Program, writesACardWholeOrNotAtAll)
{
    const std::filesystem::path folder =
        testing::TempDir() + "quillet-card-" + std::to_string(getpid());
    std::filesystem::create_directory(folder);
    const std::string file = folder / std::string(251, 'c'), link = folder / "link";
    const std::string trainer = " --chart " + folder.string() + "/trainer.chart ";
    std::filesystem::copy(QUILLET_CHARTS_FOLDER "/trainer.chart", folder);
    std::filesystem::create_symlink(file, link);
    EXPECT_EQ(run("--card " + link), std::pair(std::string(), 0));
    const std::string trainers = fileText(file);
    EXPECT_THAT(trainers, testing::EndsWith("</svg>\n"));
    EXPECT_EQ(run("--card /dev/stdout" + trainer + "| cat").first, trainers);
    const auto [complaint, status] =
        run("--chart " QUILLET_CHARTS_FOLDER "/perfect.chart --card " + link,
            "trap '' XFSZ; ulimit -f 8; true");
    EXPECT_EQ(complaint, "quillet-odds: " + link + " cannot be written: File too large\n");
    EXPECT_EQ(status, 1);
    EXPECT_EQ(fileText(file), trainers);
    chmod(file.c_str(), 0600);
    EXPECT_EQ(run("--best-chart 3 --card " + file).second, 0);
    EXPECT_THAT(fileText(file), HasSubstr("3 lines (6 rows), best first"));
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms{0600});
    chmod(file.c_str(), 0400);
    EXPECT_THAT(run("--card " + link).first, HasSubstr("link is read-only"));
    EXPECT_EQ(run("--card " + folder.string() + "/./trainer.chart" + trainer).second, 2);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 3) << "nothing else";
    std::filesystem::remove_all(folder);
    EXPECT_THAT(run("--card /no/such/folder/x").first, HasSubstr("No such file"));
    EXPECT_EQ(run("--card /dev/full").second, 1);
}

TEST(Program, keepsToEightyColumnsInText)
{
    const std::string perfect = "--chart " QUILLET_CHARTS_FOLDER "/perfect.chart";
    const std::vector<std::string> all{"",
                                       "--mistakes",
                                       "--break-even",
                                       "--sitting 9 --lines 3 --bankroll 1e15",
                                       "--break-even 9cTcJcKcAd",
                                       perfect + " --sitting 1e4 --bankroll 1000 --bring 0.5",
                                       "--all 9cTcJcKcAd",
                                       "--simulate 1000",
                                       "--rows",
                                       "--help",
                                       "--pays 20000/20000",
                                       "--best-chart 1",
                                       perfect,
                                       perfect + " --pays 8/5 --mistakes"};
    for (const std::string& arguments : all) {
        std::istringstream lines(run(arguments).first);
        for (std::string line; std::getline(lines, line);)
            EXPECT_LE(std::ranges::count_if(line, [](char c) { return (c & 0xc0) != 0x80; }), 80)
                << arguments << ": " << line;
    }
}

TEST(Simulation, playsTheEnginesOwnDecks)
{
    const HeldCards heldCards;
    IdleRandom idle;
    const auto holdNothing = [](const DealtHand&) -> Hold { return 0; };
    // An unshuffled deck deals four aces and a two, and then three twos and two threes.
    const Simulation aces = playHands(heldCards, holdNothing, idle, 3);
    EXPECT_EQ(aces.perfect.count[3], 3);
    EXPECT_EQ(aces.player.count[4], 3);
    EXPECT_EQ(aces.player.returned(trainersPays()), 9.0);
    EXPECT_EQ(aces.player.margin(trainersPays()), 0.0);

    const auto played = [&](std::uint64_t seed, unsigned threads) {
        return simulate(heldCards, holdNothing, seed, 40000, threads).perfect;
    };
    EXPECT_EQ(played(1, 1).count, played(1, 3).count);
    EXPECT_NE(played(1, 1).count, played(2, 1).count);
    EXPECT_EQ(played(1, 2).hands(), 40000);
    // A royal now and then is worth more than all else: stay clear of it. No fair draw may stand in
    // for the trainer's: high pairs come some 20 % less often.
    EXPECT_NEAR(played(1, 1).returned(trainersPays()), 0.975, 0.2);
    EXPECT_NEAR(static_cast<double>(played(1, 1).count[9]) / 40000, 0.173, 0.006);
}

TEST(BestHoldsReport, namesTheNearestChange)
{
    const auto outro = [](const std::vector<BestHold>& best) {
        return bestHoldsReport(parseHand("AcKdJhQhTs"), best, trainersPays())[0].outro;
    };
    EXPECT_THAT(outro({{{}, 1}, {{3000, 1}, 2}, {{9001, 2}, 4}, {{9002, 1}, 16}}),
                HasSubstr("changes at 4500.5000: up to there it is Kd,\n    beyond it Jh.\n"));
}

TEST(SittingReport, drawsBarsOfPossibleResults)
{
    const Player perfect = [](const DealtHand& hand) { return hand.bestHold; };
    const Draws draws = drawsOf(HeldCards(), {perfect})[0];
    const auto bars = [&](std::int64_t hands) {
        return sittingReport({{"", "", draws}}, trainersPays(), {hands}, true, {})[0].outro;
    };
    EXPECT_THAT(bars(1), HasSubstr("\n                  -5 |###"));
    EXPECT_THAT(bars(600), HasSubstr("\n        -570 to -515 |##### 1.2 %\n"));
    EXPECT_THAT(bars(600), testing::EndsWith("Not shown: 1.0 % below and 4.7 % above.\n"));
}

} // namespace quillet::test
