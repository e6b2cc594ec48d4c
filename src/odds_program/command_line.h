#pragma once

#include "odds/bad_input.h"
#include "odds/pays.h"
#include "odds_program/report.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quillet::odds_program
{

enum class Question {
    game,
    hand,
    handsFromInput,
    mistakes,
    sitting,
    simulation,
    chart,
    plays,
    chartMistakes,
    bestChart,
    card,
    rowKinds,
    help,
    version
};

// What the user asked for.
struct Request {
    Question question = Question::game;
    Style style;
    std::string pays;       // as parsePays reads it, or a file's name; empty: the trainer's
    std::string hand;       // its words
    bool allHolds = false;  // of a hand
    std::int64_t hands = 0; // of a sitting or a simulation
    std::optional<std::int64_t> bankroll;
    std::uint64_t seed = 1;
    std::string chartFile;
    std::size_t leastRows = 0; // of best charts, one for each number of rows
    std::size_t mostRows = 0;
    std::optional<std::string>
        cardFile; // of a chart: the file's, the best of so many rows or the trainer's
};

// Arguments that make no sense; what() says why.
class BadUsage : public odds::BadInput
{
public:
    explicit BadUsage(const std::string& why) : odds::BadInput(why + "\nTry quillet-odds --help") {}
};

// Reads the arguments that follow the program's name.
[[nodiscard]] Request parseArguments(std::span<const std::string_view> arguments);

[[nodiscard]] std::string_view helpText();

} // namespace quillet::odds_program
