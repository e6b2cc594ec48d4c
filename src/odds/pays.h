#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillet
{

// What a final hand can come to: outcome 0 pays nothing, the others are the paying hands, best
// first.
inline constexpr std::size_t outcomes = 10;

// Credits for each outcome when five are paid; outcome 0 pays none.
using Pays = std::array<std::int64_t, outcomes>;

inline constexpr std::int64_t mostPaid = 100'000; // for any hand

// A text that is no pay table; what() says where and why.
class BadPays : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

[[nodiscard]] Pays trainersPays();

// The outcome of a final hand's play code.
[[nodiscard]] std::size_t outcomeOf(std::int16_t finalCode);

// "Royal Flush" ... "Jacks or Better", or "Nothing".
[[nodiscard]] std::string_view outcomeName(std::size_t outcome);

// Reads "9/6", the full house and the flush for one credit with the trainer's other pays, or nine
// whole numbers for five credits, royal first, between blanks, commas or ends of lines; on a line
// with a name the last word is the number, and what follows # is left out.
[[nodiscard]] Pays parsePays(std::string_view text);

// "4000 250 125 45 30 20 15 10 5", as parsePays reads it.
[[nodiscard]] std::string paysText(const Pays& pays);

} // namespace quillet
