#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillet
{

// What the user asked for.
struct Request {
    bool help = false;
    bool csv = false;
    bool rows = false;                      // every row that a chart can have
    bool plays = false;                     // of the chart, deal by deal
    std::string chartFile;                  // empty: no chart of the user's
    std::optional<std::int64_t> bestChart;  // of how many rows
    std::string hand;                       // empty: the whole game
    std::optional<std::int64_t> simulation; // how many hands to play
    std::optional<std::uint64_t> seed;
};

// Arguments that make no sense; what() says why.
class BadUsage : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Reads the arguments that follow the program's name.
[[nodiscard]] Request parseArguments(std::span<const std::string_view> arguments);

[[nodiscard]] std::string_view helpText();

} // namespace quillet
