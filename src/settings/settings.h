#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quillet
{

// Keys with their texts (UTF-8), in the order in which they are written.
using Settings = std::vector<std::pair<std::string, std::string>>;

// The text of the key, which may be empty, or the default text if the key does not exist. If a key
// occurs twice, the last one counts.
[[nodiscard]] inline std::string readSetting(const Settings& settings, const std::string& key,
                                             const std::string& defaultText)
{
    const auto found = std::find_if(settings.rbegin(), settings.rend(),
                                    [&key](const auto& setting) { return setting.first == key; });
    return found == settings.rend() ? defaultText : found->second;
}

inline void writeSetting(Settings& settings, std::string key, std::string text)
{
    settings.emplace_back(std::move(key), std::move(text));
}

} // namespace quillet
