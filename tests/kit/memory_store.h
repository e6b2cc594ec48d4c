#pragma once

#include "faults/run_time_error.h"
#include "settings/settings_store.h"

#include <map>
#include <string>

namespace quillet::test
{

// Keeps the texts in memory and notes what is saved.
class MemoryStore : public SettingsStore
{
public:
    [[nodiscard]] Settings load() const override { return {texts.begin(), texts.end()}; }

    void save(const Settings& settings) override
    {
        if (fails)
            throw RunTimeError("Disk full");
        for (const auto& [key, text] : settings) {
            log += key + "=" + text + " ";
            texts[key] = text;
        }
    }

    [[nodiscard]] std::string location() const override { return "memory"; }

    std::map<std::string, std::string> texts;
    std::string log;
    bool fails = false;
};

} // namespace quillet::test
