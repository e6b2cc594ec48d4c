#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace quillet
{

// The numbers of the card pictures: the faces have their card's number, 0..51, and after a gap
// come the backs.
inline constexpr std::int32_t faces = 52;

enum Suit : std::int32_t { clubs, diamonds, hearts, spades };

enum Back : std::int32_t {
    hatchBack = 53, // also the crosshatch over empty card places and finished hands
    plaidBack,
    weaveBack,
    robotBack,
    rosesBack,
    ivyBlackBack,
    ivyBlueBack,
    fishCyanBack,
    fishBlueBack,
    shellBack,
    castleBack,
    beachBack,
    sleeveBack
};
inline constexpr std::int32_t firstBack = hatchBack;

// The backs by name, from the first one.
inline constexpr std::array<std::string_view, 13> backNames{
    "Hatch",    "Plaid",    "Weave", "Robot",  "Roses", "IvyBlack", "IvyBlue",
    "FishCyan", "FishBlue", "Shell", "Castle", "Beach", "Sleeve"};
static_assert(firstBack + backNames.size() - 1 == sleeveBack);

[[nodiscard]] constexpr bool isFace(std::int32_t cardNumber)
{
    return cardNumber >= 0 && cardNumber < faces;
}

[[nodiscard]] constexpr bool isBack(std::int32_t cardNumber)
{
    return cardNumber >= firstBack && cardNumber <= sleeveBack;
}

} // namespace quillet
