#pragma once

#include "odds/bad_input.h"
#include "odds/pays.h"
#include "odds_program/reports.h"

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
    breakEven,
    mistakes,
    sitting,
    simulation,
    chart,
    plays,
    bestChart,
    card,
    rowKinds,
    selfTest,
    help,
    version
};

// The question and its options.
struct Request {
    Question question = Question::game;
    Style style;
    std::string pays;      // a pay table or the name of a file; empty: the trainer's
    std::string hand;      // the words of Question::hand
    bool allHolds = false; // show 32 holds of a hand, not six
    Session session;
    std::int64_t hands = 0; // count, for Question::simulation
    std::uint64_t seed = 1;
    std::string chartFile;    // empty: the trainer's chart
    std::size_t minLines = 0; // of --best-chart
    std::size_t maxLines = 0;
    std::optional<std::string> cardFile; // the output of --card
};

// Invalid arguments.
class BadUsage : public odds::BadInput
{
public:
    explicit BadUsage(const std::string& why) : odds::BadInput(why + "\nTry quillet-odds --help") {}
};

// Reads the arguments after the program's name. Throws BadUsage.
[[nodiscard]] Request parseArguments(std::span<const std::string_view> arguments);

[[nodiscard]] std::string_view helpText();

} // namespace quillet::odds_program
