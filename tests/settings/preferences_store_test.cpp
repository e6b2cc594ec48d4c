#include "faults/run_time_error.h"
#include "settings/preferences_store.h"
#include "tests/kit/memory_store.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillet::test
{

namespace
{

// The stored text after one run of the program, or the error of loading it.
std::string afterOneRun(const std::string& key, const std::string& text)
{
    MemoryStore store;
    store.texts[key] = text;
    Preferences preferences;
    try {
        loadPreferences(store, preferences);
    } catch (const RunTimeError& error) {
        return error.what();
    }
    store.texts.clear();
    savePreferences(preferences, store);
    return store.texts.contains(key) ? store.texts[key] : "not written";
}

} // namespace

TEST(PreferencesStore, aFirstStartSavesItsDefaultsInOrder)
{
    MemoryStore store;
    Preferences preferences;
    loadPreferences(store, preferences);
    savePreferences(preferences, store);
    EXPECT_EQ(store.log, "prfCardOutlineColor=65280 prfScrollVal=0 prfPKBackFace=65 "
                         "prfShowPokerPlay=True prfPokerAutoDeal=True prfAnimation=True "
                         "prfShowHide=True prfSound=True isPoker=True prfAnimationDelay=-1 "
                         "prfBannerDelay=0 prfPKBackground=vpokerwood.jpg ");
}

TEST(PreferencesStore, everyFieldFollowsItsRule)
{
    const std::vector<std::array<std::string, 3>> rows = {
        {"prfCardOutlineColor", "&HFF&", "255"},
        {"prfCardOutlineColor", "", "65280"},
        {"prfCardOutlineColor", "99999999999", "65280"},
        {"prfPKBackFace", "53", "53"},
        {"prfPKBackFace", "0.0", "65"},
        {"prfPKBackFace", "0.4", "not written"},
        {"prfPKBackFace", "abc", "prfPKBackFace: Type mismatch in memory"},
        {"prfShowPokerPlay", "False", "False"},
        {"prfAnimation", "False", "False"},
        {"prfSound", "False", "False"},
        {"isPoker", "False", "True"},
        {"prfSound", "false", "True"},
        {"prfSound", " False", "True"},
        {"prfSound", "0", "True"},
        {"prfAnimationDelay", "300", "300"},
        {"prfBannerDelay", "-120", "-120"},
        {"prfAnimationDelay", "2147483648", "prfAnimationDelay: Overflow in memory"},
        {"prfBannerDelay", "1x", "prfBannerDelay: Type mismatch in memory"},
        {"prfPKBackground", "grün =.jpg", "grün =.jpg"},
        {"prfPKBackground", "", "vpokerwood.jpg"},
        {"prfScrollVal", "", "0"},
        {"prfScrollVal", "13.5", "14"},
        {"prfScrollVal", " ", "prfScrollVal: Type mismatch in memory"},
        {"prfScrollVal", "32768", "prfScrollVal: Overflow in memory"}};
    for (const auto& [key, text, result] : rows)
        EXPECT_EQ(afterOneRun(key, text), result) << key << "=" << text;
}

} // namespace quillet::test
