#include "odds/command_line.h"

#include <charconv>

namespace quillet
{

namespace
{

template <typename Number>
Number numberAfter(std::string_view option, std::string_view text)
{
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        throw BadUsage(std::string(option) + " needs a whole number, not '" + std::string(text) +
                       "'");
    return number;
}

} // namespace

Request parseArguments(std::span<const std::string_view> arguments)
{
    Request request;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        const auto value = [&] {
            if (++i == arguments.size())
                throw BadUsage(std::string(argument) + " needs a value after it");
            return arguments[i];
        };
        if (argument == "--help" || argument == "-h")
            request.help = true;
        else if (argument == "--csv")
            request.csv = true;
        else if (argument == "--rows")
            request.rows = true;
        else if (argument == "--plays")
            request.plays = true;
        else if (argument == "--chart")
            request.chartFile = value();
        else if (argument == "--best-chart")
            request.bestChart = numberAfter<std::int64_t>(argument, value());
        else if (argument == "--simulate")
            request.simulation = numberAfter<std::int64_t>(argument, value());
        else if (argument == "--seed")
            request.seed = numberAfter<std::uint64_t>(argument, value());
        else if (argument.starts_with("-"))
            throw BadUsage("unknown option '" + std::string(argument) + "'");
        else
            request.hand += std::string(argument) + " ";
    }
    if (request.simulation && *request.simulation < 1)
        throw BadUsage("--simulate needs at least one hand");
    if (request.seed && !request.simulation)
        throw BadUsage("--seed is for --simulate");
    if (request.bestChart && (*request.bestChart < 1 || *request.bestChart > 64))
        throw BadUsage("--best-chart needs a number of rows, 1 to 64");
    const int asked = (request.rows ? 1 : 0) + (request.chartFile.empty() ? 0 : 1) +
                      (request.bestChart ? 1 : 0) + (request.simulation ? 1 : 0);
    if (asked > 1 || (asked == 1 && !request.hand.empty()))
        throw BadUsage("ask for one thing at a time");
    if (request.plays && request.chartFile.empty())
        throw BadUsage("--plays is for --chart");
    return request;
}

std::string_view helpText()
{
    return R"(Usage: quillet-odds [--csv]
       quillet-odds [--csv] HAND
       quillet-odds [--csv] --simulate COUNT [--seed NUMBER]
       quillet-odds [--csv] --chart FILE [--plays]
       quillet-odds --best-chart ROWS
       quillet-odds --rows

The exact odds of Jacks or Better at five credits a hand, and what it costs to
play by the trainer's chart.

  (nothing)          the worth of the game for a fairly shuffled deck: perfect
                     play, the chart, each of its rows, each paying hand
  HAND               the 32 holds of five cards, such as "9c Tc Jc Kc Ad", by
                     the credits that they can expect
  --simulate COUNT   play so many hands from decks shuffled as the trainer
                     shuffles them, which is not fair
  --seed NUMBER      other chances for --simulate; the same number gives the
                     same hands (default 1)
  --chart FILE       the price of a chart of your own: one row a line, best
                     first; what follows # is a comment
  --plays            each deal with the hold by which that chart plays it
  --best-chart ROWS  the best chart found with so many rows, as such a file
  --rows             the rows that a chart can have
  --csv              comma-separated values for further work
  --help             this text
)";
}

} // namespace quillet
