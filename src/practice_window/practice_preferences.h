#pragma once

#include "odds/pays.h"
#include "practice/journal.h"
#include "settings/settings_store.h"

#include <QStringList>

#include <set>
#include <string>

namespace quillet::practice_window
{

struct PracticePreferences {
    practice::JudgedBy standard = practice::JudgedBy::perfect;
    std::string chartFile;
    std::string pays{odds::commonPays[0]};
    int passMark = 95; // right answers of 100
    bool sound = true;
    std::set<std::string> ticked; // names of decisions
    // The window's and its splitters' places, in the toolkit's form in base 64.
    std::string windowPlace;
    std::string columns;
    std::string progressPanes;
};

struct LoadedPreferences {
    PracticePreferences preferences;
    QStringList problems; // sentences; what has one is as by default
};

[[nodiscard]] LoadedPreferences loadPracticePreferences(const SettingsStore& store);

// Throws RunTimeError on failure.
void savePracticePreferences(const PracticePreferences& preferences, SettingsStore& store);

} // namespace quillet::practice_window
