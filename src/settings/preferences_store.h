#pragma once

#include "settings/preferences.h"
#include "settings/settings_store.h"

namespace quillet
{

// Fills the preferences from the store. A text that its field cannot hold throws a RunTimeError
// that names key, cause and place; the fields read before it keep their new values and the others
// the ones they had.
//
// A truth value is false for the exact text "False" only. The outline colour never throws: a
// text that is no colour gives green.
void loadPreferences(SettingsStore& store, Preferences& preferences);

// Writes the preferences to the store. A card back of 0 and an empty background are left out, so
// the stored ones stay. The first failure of the store is passed on, and nothing after it is
// written.
void savePreferences(const Preferences& preferences, SettingsStore& store);

} // namespace quillet
