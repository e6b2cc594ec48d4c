#pragma once

#include "settings/settings_store.h"
#include "settings/settings_text.h"

#include <QString>

namespace quillet
{

// Keeps settings in one text file per application, <config folder>/<application>/settings.ini.
//
// The file is read again when it has changed since the last call. A write is merged into the
// file under a lock and replaces it as a whole, or throws and leaves it as it was. Reading creates
// nothing; a file that cannot be read, or is no settings text, answers the default texts. The
// first write keeps a file that is no settings text under another name (settings.ini.bad,
// settings.ini.bad2 ...), but refuses to replace one that cannot be read.
class TextFileStore : public SettingsStore
{
public:
    // Below the user's own configuration folder.
    TextFileStore();
    explicit TextFileStore(QString configFolder);

    [[nodiscard]] std::string readSetting(const std::string& application,
                                          const std::string& section, const std::string& key,
                                          const std::string& defaultText) override;
    [[nodiscard]] std::string place(const std::string& application) override;
    void writeSetting(const std::string& application, const std::string& section,
                      const std::string& key, const std::string& text) override;

private:
    [[nodiscard]] QString filePath(const std::string& application) const;

    QString m_configFolder;
    QString m_stamp; // of the file that the text was read from; empty without one
    SettingsText m_text;
};

} // namespace quillet
