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
                throw BadUsage(std::string(argument) + " needs a number after it");
            return arguments[i];
        };
        if (argument == "--help" || argument == "-h")
            request.help = true;
        else if (argument == "--csv")
            request.csv = true;
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
    if (request.simulation && !request.hand.empty())
        throw BadUsage("--simulate plays whole games; leave the hand out");
    if (request.seed && !request.simulation)
        throw BadUsage("--seed is for --simulate");
    return request;
}

std::string_view helpText()
{
    return R"(Usage: quillet-odds [--csv]
       quillet-odds [--csv] HAND
       quillet-odds [--csv] --simulate COUNT [--seed NUMBER]

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
  --csv              comma-separated values for further work
  --help             this text
)";
}

} // namespace quillet
