#pragma once

#include "settings/settings_store.h"

#include <QString>

namespace quillet
{

// Keeps the settings of each application in a text file, <config
// folder>/<application>/settings.ini.
//
// Loading creates nothing, and a file that is no settings text has no settings. Saving merges into
// the file under a lock and replaces it as a whole. It moves a file that is no settings text aside
// (settings.ini.bad, settings.ini.bad2 ...), but refuses to replace one that it cannot read.
class TextFileStore : public SettingsStore
{
public:
    // Below the user's own configuration folder.
    TextFileStore();
    explicit TextFileStore(QString configFolder);

    [[nodiscard]] Settings load(const std::string& application) const override;
    void save(const Settings& settings) override;
    [[nodiscard]] std::string location(const std::string& application) const override;

private:
    [[nodiscard]] QString filePath(const std::string& application) const;

    QString m_configFolder;
};

} // namespace quillet
