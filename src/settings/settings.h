#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quillet
{

// A text (UTF-8) and where it is stored.
struct Setting {
    std::string application;
    std::string section;
    std::string key;
    std::string text;
};

// In the order in which they are written.
using Settings = std::vector<Setting>;

// The text of the key, which may be empty, or the default text if the key does not exist. If a key
// occurs twice, the last one counts.
[[nodiscard]] inline std::string readSetting(const Settings& settings,
                                             const std::string& application,
                                             const std::string& section, const std::string& key,
                                             const std::string& defaultText)
{
    const auto found = std::find_if(settings.rbegin(), settings.rend(), [&](const Setting& each) {
        return each.application == application && each.section == section && each.key == key;
    });
    return found == settings.rend() ? defaultText : found->text;
}

inline void writeSetting(Settings& settings, std::string application, std::string section,
                         std::string key, std::string text)
{
    settings.push_back(
        {std::move(application), std::move(section), std::move(key), std::move(text)});
}

} // namespace quillet
