#pragma once

#include "faults/run_time_error.h"
#include "settings/settings_store.h"

#include <map>
#include <string>

namespace quillet::test
{

// Keeps the settings in memory and logs each save.
class MemoryStore : public SettingsStore
{
public:
    [[nodiscard]] Settings load(const std::string& application) const override
    {
        Settings settings;
        for (const auto& [key, text] : texts)
            writeSetting(settings, application, section, key, text);
        return settings;
    }

    void save(const Settings& settings) override
    {
        if (fails)
            throw RunTimeError("Disk full");
        for (const Setting& setting : settings) {
            log += setting.key + "=" + setting.text + " ";
            texts[setting.key] = setting.text;
        }
    }

    [[nodiscard]] std::string location(const std::string&) const override { return "memory"; }

    std::map<std::string, std::string> texts;
    std::string section = "Preferences"; // of all texts that are loaded
    std::string log;
    bool fails = false;
};

} // namespace quillet::test
