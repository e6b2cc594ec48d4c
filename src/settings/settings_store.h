#pragma once

#include <string>

namespace quillet
{

// A per-user store of texts (UTF-8) that lasts between runs.
class SettingsStore
{
public:
    virtual ~SettingsStore() = default;

    // The stored text, which may be empty, or the default text when the key does not exist.
    [[nodiscard]] virtual std::string readSetting(const std::string& application,
                                                  const std::string& section,
                                                  const std::string& key,
                                                  const std::string& defaultText) = 0;

    // Where the texts of an application are kept, for a player who has to mend one.
    [[nodiscard]] virtual std::string place(const std::string& application) = 0;

    // Throws RunTimeError when the text cannot be stored; what was stored before stays whole.
    virtual void writeSetting(const std::string& application, const std::string& section,
                              const std::string& key, const std::string& text) = 0;
};

} // namespace quillet
