#pragma once

#include "faults/run_time_error.h"
#include "settings/settings_store.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace quillet::test
{

// Keeps the texts in memory and notes every call.
class MemoryStore : public SettingsStore
{
public:
    std::string readSetting(const std::string& application, const std::string& section,
                            const std::string& key, const std::string& defaultText) override
    {
        EXPECT_EQ(application + "/" + section, "Quillet/Preferences");
        log += key + " ";
        return texts.contains(key) ? texts[key] : defaultText;
    }

    std::string place(const std::string&) override { return "memory"; }

    void writeSetting(const std::string& application, const std::string& section,
                      const std::string& key, const std::string& text) override
    {
        EXPECT_EQ(application + "/" + section, "Quillet/Preferences");
        if (key == failingKey)
            throw RunTimeError("Disk full");
        log += key + "=" + text + " ";
        texts[key] = text;
    }

    std::map<std::string, std::string> texts;
    std::string log, failingKey;
};

} // namespace quillet::test
