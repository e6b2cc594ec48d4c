#pragma once

#include "settings/preferences.h"
#include "settings/settings_store.h"

namespace quillet
{

// Loads the preferences. A text that does not fit its field throws a RunTimeError that names key,
// cause and file; the fields before it then have their new values, the others their old ones.
//
// A Boolean is false only for the exact text "False". The outline colour never throws: a text that
// is no colour gives green.
void loadPreferences(const SettingsStore& store, Preferences& preferences);

// Saves the preferences. A card back of 0 and an empty background are left out, so the stored ones
// stay.
void savePreferences(const Preferences& preferences, SettingsStore& store);

} // namespace quillet
