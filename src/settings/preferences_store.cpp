#include "settings/preferences_store.h"

#include "faults/run_time_error.h"
#include "settings/numeric_text.h"

#include <string>

namespace quillet
{

namespace
{

constexpr const char* application = "Quillet";
constexpr const char* section = "Preferences";

constexpr std::int32_t outlineGreen = 0x0000FF00;

class Reader
{
public:
    explicit Reader(SettingsStore& store) : m_store(store) {}

    [[nodiscard]] std::string text(const std::string& key, const std::string& defaultText)
    {
        return m_store.readSetting(application, section, key, defaultText);
    }

    [[nodiscard]] bool truth(const std::string& key) { return text(key, "True") != "False"; }

    // The stored text as the rule converts it; an error of the rule is told with the key.
    template <typename Rule>
    [[nodiscard]] auto converted(const std::string& key, const std::string& defaultText, Rule rule)
    {
        const std::string stored = text(key, defaultText);
        try {
            return rule(stored);
        } catch (const RunTimeError& error) {
            throw RunTimeError(key + ": " + error.what() + " in " + m_store.place(application));
        }
    }

private:
    SettingsStore& m_store;
};

std::int32_t outlineColour(const std::string& text)
{
    const std::optional<NumericValue> value = parseNumber(text);
    return value && fitsInt32(*value) ? toInt32(*value) : outlineGreen;
}

std::int32_t backFace(const std::string& text)
{
    const NumericValue value = toNumber(text);
    return value.isZero ? usualBackFace : toInt32(value);
}

std::int32_t delayCount(const std::string& text)
{
    return toInt32(toNumber(text));
}

std::int16_t scrollPosition(const std::string& text)
{
    return text.empty() ? std::int16_t{0} : toInt16(toNumber(text));
}

} // namespace

void loadPreferences(SettingsStore& store, Preferences& preferences)
{
    Reader reader(store);
    preferences.prfCardOutlineColor =
        outlineColour(reader.text("prfCardOutlineColor", "&H0000FF00&"));
    preferences.prfPKBackFace =
        reader.converted("prfPKBackFace", std::to_string(usualBackFace), backFace);
    preferences.prfShowPokerPlay = reader.truth("prfShowPokerPlay");
    preferences.prfPokerAutoDeal = reader.truth("prfPokerAutoDeal");
    static_cast<void>(reader.truth("isPoker")); // there is one game, whatever was stored
    preferences.isPoker = true;
    preferences.prfShowHide = reader.truth("prfShowHide");
    preferences.prfAnimation = reader.truth("prfAnimation");
    preferences.prfSound = reader.truth("prfSound");
    preferences.prfAnimationDelay = reader.converted("prfAnimationDelay", "-1", delayCount);
    preferences.prfBannerDelay = reader.converted("prfBannerDelay", "0", delayCount);
    const std::string background = reader.text("prfPKBackground", usualBackground);
    preferences.prfPKBackground = background.empty() ? usualBackground : background;
    preferences.prfScrollVal = reader.converted("prfScrollVal", "0", scrollPosition);
}

void savePreferences(const Preferences& preferences, SettingsStore& store)
{
    const auto text = [&store](const char* key, const std::string& value) {
        store.writeSetting(application, section, key, value);
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
}

} // namespace quillet
