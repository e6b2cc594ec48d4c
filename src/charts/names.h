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

// Edit distance: letters to change, insert or remove.
[[nodiscard]] std::size_t editDistance(std::string_view one, std::string_view other);

// The index of the kind with this name. Case and the number of blanks are ignored.
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

// Up to `count` names closest to this one, closest first; none if it is far longer than all of
// them.
template <typename Kinds>
[[nodiscard]] std::vector<std::string_view> nearestNames(const Kinds& kinds, std::string_view name,
                                                         std::size_t count)
{
    constexpr std::size_t maxLetters = 100;
    if (name.size() > maxLetters)
        return {};
    const std::string wanted = plainName(name);
    std::multimap<std::size_t, std::string_view> byDistance;
    for (const auto& kind : kinds)
        byDistance.emplace(editDistance(wanted, kind.name), kind.name);
    std::vector<std::string_view> names;
    for (const auto& [distance, each] : byDistance) {
        if (names.size() < count)
            names.push_back(each);
    }
    return names;
}

} // namespace quillet::charts
