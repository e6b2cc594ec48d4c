#include "engine/run_time_error.h"
#include "shell/preferences_store.h"

#include <gmock/gmock.h>

#include <map>
#include <vector>

namespace quillet::test
{

namespace
{

// Keeps the texts in memory and notes every call.
class MemoryStore : public SettingsStore
{
public:
    std::string readSetting(const std::string& application, const std::string& section,
                            const std::string& key, const std::string& defaultText) override
    {
        EXPECT_EQ(application + "/" + section, "Quillet/Preferences");
        calls.push_back(key);
        const auto found = texts.find(key);
        return found == texts.end() ? defaultText : found->second;
    }

    void writeSetting(const std::string& application, const std::string& section,
                      const std::string& key, const std::string& text) override
    {
        EXPECT_EQ(application + "/" + section, "Quillet/Preferences");
        if (key == failingKey)
            throw RunTimeError("Disk full");
        calls.push_back(key + "=" + text);
        texts[key] = text;
    }

    std::map<std::string, std::string> texts;
    std::vector<std::string> calls;
    std::string failingKey;
};

Preferences loaded(const std::map<std::string, std::string>& texts)
{
    MemoryStore store;
    store.texts = texts;
    Preferences preferences;
    loadPreferences(store, preferences);
    return preferences;
}

// What loading raises when this one key has this text.
std::string failure(const std::string& key, const std::string& text)
{
    try {
        loaded({{key, text}});
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return "";
}

} // namespace

TEST(PreferencesStore, aFirstStartSavesItsDefaultsInOrder)
{
    MemoryStore store;
    Preferences preferences;
    loadPreferences(store, preferences);
    EXPECT_THAT(store.calls,
                testing::ElementsAre("prfCardOutlineColor", "prfPKBackFace", "prfShowPokerPlay",
                                     "prfPokerAutoDeal", "isPoker", "prfShowHide", "prfAnimation",
                                     "prfSound", "prfAnimationDelay", "prfBannerDelay",
                                     "prfPKBackground", "prfScrollVal"));
    store.calls.clear();
    savePreferences(preferences, store);
    EXPECT_THAT(store.calls,
                testing::ElementsAre(
                    "prfCardOutlineColor=65280", "prfScrollVal=0", "prfPKBackFace=65",
                    "prfShowPokerPlay=True", "prfPokerAutoDeal=True", "prfAnimation=True",
                    "prfShowHide=True", "prfSound=True", "isPoker=True", "prfAnimationDelay=-1",
                    "prfBannerDelay=0", "prfPKBackground=vpokerwood.jpg"));
}

TEST(PreferencesStore, changedFieldsComeBack)
{
    const std::map<std::string, std::string> texts = {{"prfCardOutlineColor", "-2147483640"},
                                                      {"prfScrollVal", "-7"},
                                                      {"prfPKBackFace", "53"},
                                                      {"prfShowPokerPlay", "False"},
                                                      {"prfPokerAutoDeal", "True"},
                                                      {"prfAnimation", "False"},
                                                      {"prfShowHide", "True"},
                                                      {"prfSound", "False"},
                                                      {"isPoker", "True"},
                                                      {"prfAnimationDelay", "300"},
                                                      {"prfBannerDelay", "120"},
                                                      {"prfPKBackground", "grün =.jpg"}};
    MemoryStore store;
    savePreferences(loaded(texts), store);
    EXPECT_EQ(store.texts, texts);
}

TEST(PreferencesStore, onlyTheExactTextFalseIsFalse)
{
    EXPECT_FALSE(loaded({{"prfSound", "False"}}).prfSound);
    EXPECT_FALSE(loaded({{"prfPokerAutoDeal", "False"}}).prfPokerAutoDeal);
    EXPECT_FALSE(loaded({{"prfShowHide", "False"}}).prfShowHide);
    for (const char* text : {"false", "FALSE", "0", "", " False", "no"})
        EXPECT_TRUE(loaded({{"prfSound", text}}).prfSound) << text;
    EXPECT_TRUE(loaded({{"isPoker", "False"}}).isPoker);
}

TEST(PreferencesStore, eachFieldHasItsOwnSubstitute)
{
    EXPECT_EQ(loaded({{"prfCardOutlineColor", "&HFF&"}}).prfCardOutlineColor, 255);
    for (const char* text : {"", "green", "99999999999"})
        EXPECT_EQ(loaded({{"prfCardOutlineColor", text}}).prfCardOutlineColor, 0xFF00) << text;
    EXPECT_EQ(loaded({{"prfCardOutlineColor", "0"}}).prfCardOutlineColor, 0);
    EXPECT_EQ(loaded({{"prfPKBackFace", " 0.0 "}}).prfPKBackFace, 65);
    EXPECT_EQ(loaded({{"prfPKBackFace", "0.4"}}).prfPKBackFace, 0);
    EXPECT_EQ(loaded({{"prfPKBackground", ""}}).prfPKBackground, "vpokerwood.jpg");
    EXPECT_EQ(loaded({{"prfScrollVal", ""}}).prfScrollVal, 0);
    EXPECT_EQ(loaded({{"prfScrollVal", "13.5"}}).prfScrollVal, 14);
}

TEST(PreferencesStore, aTextThatDoesNotConvertIsToldWithItsKey)
{
    EXPECT_EQ(failure("prfPKBackFace", "abc"), "prfPKBackFace: Type mismatch");
    EXPECT_EQ(failure("prfPKBackFace", ""), "prfPKBackFace: Type mismatch");
    EXPECT_EQ(failure("prfAnimationDelay", "2147483648"), "prfAnimationDelay: Overflow");
    EXPECT_EQ(failure("prfBannerDelay", "1x"), "prfBannerDelay: Type mismatch");
    EXPECT_EQ(failure("prfScrollVal", " "), "prfScrollVal: Type mismatch");
    EXPECT_EQ(failure("prfScrollVal", "32768"), "prfScrollVal: Overflow");
}

TEST(PreferencesStore, anErrorLeavesTheFieldsAfterItAlone)
{
    MemoryStore store;
    store.texts = {{"prfPKBackFace", "60"}, {"prfAnimationDelay", "soon"}};
    Preferences preferences;
    EXPECT_THROW(loadPreferences(store, preferences), RunTimeError);
    EXPECT_EQ(preferences.prfPKBackFace, 60);
    EXPECT_TRUE(preferences.prfSound);
    EXPECT_EQ(preferences.prfAnimationDelay, 0);
    EXPECT_EQ(preferences.prfPKBackground, "");
}

TEST(PreferencesStore, savingStopsAtTheFirstFailureAndLeavesOutWhatIsNotSet)
{
    MemoryStore store;
    store.failingKey = "prfPokerAutoDeal";
    EXPECT_THROW(savePreferences(Preferences{}, store), RunTimeError);
    EXPECT_THAT(store.calls, testing::ElementsAre("prfCardOutlineColor=0", "prfScrollVal=0",
                                                  "prfShowPokerPlay=False"));
    store.failingKey.clear();
    savePreferences(Preferences{}, store);
    EXPECT_FALSE(store.texts.contains("prfPKBackFace"));
    EXPECT_FALSE(store.texts.contains("prfPKBackground"));
}

} // namespace quillet::test
