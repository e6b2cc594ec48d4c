#include "practice_window/practice_preferences.h"

#include "platform/file_exists.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillet::practice_window
{

namespace
{

constexpr const char* application = "Quillet";
constexpr const char* section = "Practice";
constexpr const char* nameSeparator = "; ";
constexpr std::array<std::string_view, 3> standards{"perfect", "trainer", "chart"};
constexpr std::array<std::string_view, 2> truths{"False", "True"};

std::set<std::string> namesIn(const std::string& text)
{
    std::set<std::string> names;
    for (const QString& name :
         QString::fromStdString(text).split(nameSeparator, Qt::SkipEmptyParts))
        names.insert(name.toStdString());
    return names;
}

// Reads texts, and notes those that make no sense.
class Reader
{
public:
    Reader(const SettingsStore& store, QStringList& problems)
        : m_settings(store.load(application)), m_problems(problems),
          m_place(QString::fromStdString(store.location(application)))
    {
        if (m_settings.empty() && FileExists(store.location(application)))
            m_problems.append("The settings in " + m_place +
                              " cannot be read; the defaults are used.");
    }

    [[nodiscard]] std::string text(const char* key) const
    {
        return readSetting(m_settings, application, section, key, {});
    }

    // The place of the text in these.
    template <std::size_t Size>
    [[nodiscard]] std::size_t oneOf(const char* key, const std::array<std::string_view, Size>& all,
                                    std::size_t byDefault)
    {
        const std::string found = text(key);
        const auto at = std::ranges::find(all, found);
        if (at != all.end() || found.empty())
            return found.empty() ? byDefault : static_cast<std::size_t>(at - all.begin());
        complain(key, found);
        return byDefault;
    }

    [[nodiscard]] int number(const char* key, int low, int high, int byDefault)
    {
        const std::string found = text(key);
        bool isNumber = false;
        const int value = QString::fromStdString(found).toInt(&isNumber);
        if (isNumber && value >= low && value <= high)
            return value;
        if (!found.empty())
            complain(key, found);
        return byDefault;
    }

private:
    void complain(const char* key, const std::string& found)
    {
        m_problems.append(QString("\"%1\" makes no sense for %2 in %3; the default is used.")
                              .arg(QString::fromStdString(found).left(40), key, m_place));
    }

    Settings m_settings;
    QStringList& m_problems;
    QString m_place;
};

} // namespace

LoadedPreferences loadPracticePreferences(const SettingsStore& store)
{
    LoadedPreferences loaded;
    Reader reader(store, loaded.problems);
    PracticePreferences& preferences = loaded.preferences;
    preferences.standard = static_cast<practice::JudgedBy>(reader.oneOf("standard", standards, 0));
    preferences.chartFile = reader.text("chartFile");
    preferences.pays = odds::commonPays.at(reader.oneOf("pays", odds::commonPays, 0));
    preferences.passMark = reader.number("passMark", 1, 100, preferences.passMark);
    preferences.sound = reader.oneOf("sound", truths, 1) == 1;
    preferences.ticked = namesIn(reader.text("ticked"));
    preferences.windowPlace = reader.text("window");
    preferences.columns = reader.text("columns");
    preferences.progressPanes = reader.text("progressPanes");
    return loaded;
}

void savePracticePreferences(const PracticePreferences& preferences, SettingsStore& store)
{
    Settings settings;
    const auto write = [&settings](const char* key, std::string_view value) {
        writeSetting(settings, application, section, key, std::string(value));
    };
    write("standard", standards.at(static_cast<std::size_t>(preferences.standard)));
    write("chartFile", preferences.chartFile);
    write("pays", preferences.pays);
    write("passMark", std::to_string(preferences.passMark));
    write("sound", truths.at(preferences.sound ? 1 : 0));
    std::string ticked;
    for (const std::string& name : preferences.ticked)
        ticked += (ticked.empty() ? "" : nameSeparator) + name;
    write("ticked", ticked);
    write("window", preferences.windowPlace);
    write("columns", preferences.columns);
    write("progressPanes", preferences.progressPanes);
    store.save(settings);
}

} // namespace quillet::practice_window
