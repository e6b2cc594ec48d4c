#include "settings/preferences_store.h"

#include "faults/run_time_error.h"
#include "settings/numeric_text.h"

#include <string>
#include <utility>

namespace quillet
{

namespace
{

constexpr const char* application = "Quillet";
constexpr const char* section = "Preferences";

constexpr std::int32_t outlineGreen = 0x0000FF00;

std::int32_t wholeNumber(const std::string& text)
{
    return toInt32(toNumber(text));
}

std::int32_t outlineColour(const std::string& text)
{
    try {
        return wholeNumber(text);
    } catch (const RunTimeError&) {
        return outlineGreen;
    }
}

std::int32_t backFace(const std::string& text)
{
    const double value = toNumber(text);
    return value == 0 ? defaultBack : toInt32(value);
}

std::int16_t scrollPosition(const std::string& text)
{
    return text.empty() ? std::int16_t{0} : toInt16(toNumber(text));
}

} // namespace

void loadPreferences(const SettingsStore& store, Preferences& preferences)
{
    const Settings settings = store.load(application);
    const auto text = [&settings](const char* key, const std::string& defaultText) {
        return readSetting(settings, application, section, key, defaultText);
    };
    const auto truth = [&text](const char* key) { return text(key, "True") != "False"; };
    const auto number = [&](const char* key, const std::string& defaultText, const auto& rule) {
        try {
            return rule(text(key, defaultText));
        } catch (const RunTimeError& error) {
            throw RunTimeError(std::string(key) + ": " + error.what() + " in " +
                               store.location(application));
        }
    };

    preferences.prfCardOutlineColor = outlineColour(text("prfCardOutlineColor", "&H0000FF00&"));
    preferences.prfPKBackFace = number("prfPKBackFace", std::to_string(defaultBack), backFace);
    preferences.prfShowPokerPlay = truth("prfShowPokerPlay");
    preferences.prfPokerAutoDeal = truth("prfPokerAutoDeal");
    preferences.isPoker = true; // there is one game, whatever was stored
    preferences.prfShowHide = truth("prfShowHide");
    preferences.prfAnimation = truth("prfAnimation");
    preferences.prfSound = truth("prfSound");
    preferences.prfAnimationDelay = number("prfAnimationDelay", "-1", wholeNumber);
    preferences.prfBannerDelay = number("prfBannerDelay", "0", wholeNumber);
    const std::string background = text("prfPKBackground", defaultBackground);
    preferences.prfPKBackground = background.empty() ? defaultBackground : background;
    preferences.prfScrollVal = number("prfScrollVal", "0", scrollPosition);
}

void savePreferences(const Preferences& preferences, SettingsStore& store)
{
    Settings settings;
    const auto text = [&settings](const char* key, std::string value) {
        writeSetting(settings, application, section, key, std::move(value));
    };
    const auto number = [&text](const char* key, std::int32_t value) {
        text(key, std::to_string(value));
    };
    const auto truth = [&text](const char* key, bool value) {
        text(key, value ? "True" : "False");
    };

    number("prfCardOutlineColor", preferences.prfCardOutlineColor);
    number("prfScrollVal", preferences.prfScrollVal);
    if (preferences.prfPKBackFace != 0)
        number("prfPKBackFace", preferences.prfPKBackFace);
    truth("prfShowPokerPlay", preferences.prfShowPokerPlay);
    truth("prfPokerAutoDeal", preferences.prfPokerAutoDeal);
    truth("prfAnimation", preferences.prfAnimation);
    truth("prfShowHide", preferences.prfShowHide);
    truth("prfSound", preferences.prfSound);
    truth("isPoker", preferences.isPoker);
    number("prfAnimationDelay", preferences.prfAnimationDelay);
    number("prfBannerDelay", preferences.prfBannerDelay);
    if (!preferences.prfPKBackground.empty())
        text("prfPKBackground", preferences.prfPKBackground);
    store.save(settings);
}

} // namespace quillet
