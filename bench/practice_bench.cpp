#include "practice/estimate.h"
#include "tests/kit/practice_players.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

// The time that Quillet Practice takes, and how often the interval of the return contains the exact
// value for players whose return is known: practice_bench [SESSIONS].

namespace quillet::practice::test
{

namespace
{

// Of processor time.
template <typename Work>
double millisecondsOf(const Work& work)
{
    const std::clock_t start = std::clock();
    work();
    return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

struct Tally {
    int inside = 0;
    double returned = 0;
    double halfWidth = 0;
    double widest = 0;
    double milliseconds = 0;

    void add(const Session& session, const Player& player)
    {
        const double exact = player.returned;
        Estimate estimate;
        milliseconds +=
            millisecondsOf([&] { estimate = estimateReturn(game().decisions, session.answers); });
        const double half = 50 * (estimate.high - estimate.low);
        inside += exact >= estimate.low - 1e-12 && exact <= estimate.high + 1e-12 ? 1 : 0;
        returned += 100 * estimate.returned;
        halfWidth += half;
        widest = std::max(widest, half);
    }
};

void printCoverage(const char* name, const Player& player, int sessions)
{
    constexpr std::array<std::size_t, 2> counts{200, 1000};
    std::array<Tally, 2> tallies;
    for (int seed = 1; seed <= sessions; ++seed) {
        Session session(player, static_cast<std::uint64_t>(seed));
        for (std::size_t i = 0; i < counts.size(); ++i) {
            session.answerUntil(counts[i]);
            tallies[i].add(session, player);
        }
    }
    for (std::size_t i = 0; i < counts.size(); ++i)
        std::printf("%-24s %7zu %8.3f %8.3f %7.1f %% %11.3f %8.3f %6.1f\n", name, counts[i],
                    100 * player.returned, tallies[i].returned / sessions,
                    100.0 * tallies[i].inside / sessions, tallies[i].halfWidth / sessions,
                    tallies[i].widest, tallies[i].milliseconds / sessions);
    std::fflush(stdout);
}

void printCoverages(int sessions)
{
    std::printf("\n%-24s %7s %8s %8s %9s %11s %8s %6s\n", "player", "answers", "exact", "mean",
                "inside", "half width", "widest", "ms");
    const auto& trainers = charts::trainersChart();
    printCoverage("perfect play", Player({}), sessions);
    printCoverage("the trainer's chart", Player(trainers), sessions);
    printCoverage("the best 12 rows", Player(charts::parseChart(bestOf12)), sessions);
    printCoverage("the chart, 1 in 20 slips", Player(trainers, 20), sessions);
    printCoverage("the chart, 1 in 200", Player(trainers, 200), sessions);
    printCoverage("perfect, 1 in 100 slips", Player({}, 100), sessions);
}

void printCosts()
{
    std::printf("decisions        %8.1f ms\n", millisecondsOf([] {
                    const odds::HeldCards heldCards;
                    const Decisions decisions(heldCards);
                }));
    Questions questions(game().decisions, 1);
    const Record record(game().decisions);
    std::printf("a question       %8.4f ms\n", millisecondsOf([&] {
                                                   for (int i = 0; i < 1000; ++i)
                                                       static_cast<void>(questions.next(record));
                                               }) / 1000);
    const auto path = std::filesystem::temp_directory_path() / "practice_bench.csv";
    std::ofstream file(path);
    file << "time,deal,held,best,cost,decision,chosen,standard\n";
    for (int i = 0; i < 1'000'000; ++i)
        file << "2026-01-02T03:04:05Z,9c Tc Jc Kc Ad,Tc Jc Kc,9c Tc Jc Kc,5.7724,\"4 to a straight "
                "flush over 3 to a royal\",weighted,perfect\n";
    file.close();
    std::size_t lines = 0;
    const double milliseconds = millisecondsOf([&] { lines = readJournal(path).entries.size(); });
    std::printf("a journal of %zu lines  %8.1f ms\n", lines, milliseconds);
    std::filesystem::remove(path);
}

} // namespace

} // namespace quillet::practice::test

int main(int count, char** words)
{
    using namespace quillet::practice::test;
    printCosts();
    printCoverages(count > 1 ? std::atoi(words[1]) : 500);
    return 0;
}
