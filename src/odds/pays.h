#pragma once

#include "engine/card.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quillet::odds
{

// The outcomes of a final hand: 0 pays nothing, the others are the paying hands, best first.
inline constexpr std::size_t outcomeCount = 10;
inline constexpr std::size_t royalOutcome = 1;

// Credits for each outcome when five are paid; outcome 0 pays none.
using Pays = std::array<std::int64_t, outcomeCount>;

inline constexpr std::int64_t maxPay = 100'000; // for any hand

[[nodiscard]] Pays trainersPays();

// Pay tables that are common, as parsePays reads them; the first is the trainer's.
inline constexpr std::array<std::string_view, 6> commonPays{"9/6", "9/5", "8/6",
                                                            "8/5", "7/5", "6/5"};

[[nodiscard]] std::size_t outcomeOf(std::span<const Card, 5> finalHand);

// "royal" ... "high pair", or "nothing".
[[nodiscard]] std::string_view outcomeName(std::size_t outcome);

// Whether the text is meant as a pay table, right or wrong, and not as the name of a file.
[[nodiscard]] bool looksLikePays(std::string_view text);

// Reads "9/6", the full house and the flush for one credit; the other pays are the trainer's. Or
// reads nine whole numbers for five credits, royal first, between blanks, commas or ends of lines.
// A line that names its hand has one number, which may be written as 4,000; the name of another
// hand is refused. # starts a comment. Throws BadInput, which says where and why.
[[nodiscard]] Pays parsePays(std::string_view text);

} // namespace quillet::odds
