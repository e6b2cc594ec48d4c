#pragma once

#include "settings/settings.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillet
{

// The text of a settings file: "[section]" and "key=value" lines in UTF-8, and comments that begin
// with "#" or ";". Everything that is not changed is written as it was read: comments, blank lines,
// unknown keys, line ends, a byte order mark.
//
// Every text can be a section, key or value. Characters that would be misread are escaped: \n \r \t
// \\ and \xHH for a byte. Any other backslash is kept, to be kind to hand-edited files.
class SettingsText
{
public:
    // Returns nothing if a line has no known form or the bytes are not plain UTF-8 text.
    [[nodiscard]] static std::optional<SettingsText> parse(std::string_view bytes);

    // All settings, as those of this application, in the order of the file.
    [[nodiscard]] Settings settings(const std::string& application) const;
    // Leaves the line as it is if it has this value already.
    void setValue(const std::string& section, const std::string& key, std::string_view value);

    [[nodiscard]] std::string bytes() const;

private:
    struct Line {
        std::string raw;     // as in the file, without the line feed
        std::string section; // that the line is in, or opens
        bool opensSection = false;
        std::optional<std::string> key;
        std::string value;
    };

    [[nodiscard]] static std::optional<Line> parseLine(std::string_view raw,
                                                       const std::string& section);
    [[nodiscard]] const Line* find(std::string_view section, std::string_view key) const;
    void insertEntry(Line entry);

    std::string m_byteOrderMark;
    std::string m_carriageReturn; // of the lines that we write
    std::vector<Line> m_lines;
};

} // namespace quillet
