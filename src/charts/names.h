#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::charts
{

// In lower case, each run of blanks one blank, none at the ends.
[[nodiscard]] std::string plainName(std::string_view name);

// How many letters have to be changed, put in or taken out.
[[nodiscard]] std::size_t lettersApart(std::string_view one, std::string_view other);

// Where the kind of this name stands among the kinds. Upper and lower case and the number of
// blanks are all one.
template <typename Kinds>
[[nodiscard]] std::optional<std::size_t> findNamed(const Kinds& kinds, std::string_view name)
{
    const std::string wanted = plainName(name);
    const auto found =
        std::ranges::find_if(kinds, [&wanted](const auto& kind) { return kind.name == wanted; });
    if (found == kinds.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - kinds.begin());
}

// The names that are written most like this one, best first, no more than so many; none when it is
// far longer than all of them.
template <typename Kinds>
[[nodiscard]] std::vector<std::string_view> nearestNames(const Kinds& kinds, std::string_view name,
                                                         std::size_t most)
{
    constexpr std::size_t maxLetters = 100;
    if (name.size() > maxLetters)
        return {};
    const std::string wanted = plainName(name);
    std::multimap<std::size_t, std::string_view> byDistance;
    for (const auto& kind : kinds)
        byDistance.emplace(lettersApart(wanted, kind.name), kind.name);
    std::vector<std::string_view> names;
    for (const auto& [distance, each] : byDistance) {
        if (names.size() < most)
            names.push_back(each);
    }
    return names;
}

} // namespace quillet::charts
