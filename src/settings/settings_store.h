#pragma once

#include "settings/settings.h"

#include <string>

namespace quillet
{

// The player's settings, which last between runs.
class SettingsStore
{
public:
    virtual ~SettingsStore() = default;

    // All settings of an application; none where they cannot be read.
    [[nodiscard]] virtual Settings load(const std::string& application) const = 0;

    // Stores these settings of one application together and keeps all others. Throws RunTimeError
    // on failure; then everything stays as it was.
    virtual void save(const Settings& settings) = 0;

    // For error messages: the file that the player may have to repair.
    [[nodiscard]] virtual std::string location(const std::string& application) const = 0;
};

} // namespace quillet
