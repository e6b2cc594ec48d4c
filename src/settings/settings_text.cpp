#include "settings/settings_text.h"

#include <QUtf8StringView>

#include <algorithm>
#include <charconv>

namespace quillet
{

namespace
{

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view misreadInNames = "=#;[]";

// Characters that are written as a backslash and a letter.
constexpr std::string_view named = "\n\r\t\\";
constexpr std::string_view names = "nrt\\";

bool isUtf8(std::string_view text)
{
    return QUtf8StringView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8();
}

bool isControl(char c)
{
    return (c >= '\0' && c < ' ') || c == '\x7F';
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string byteEscape(char c)
{
    constexpr std::string_view hexDigits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return {'\\', 'x', hexDigits[byte / 16U], hexDigits[byte % 16U]};
}

std::string escaped(std::string_view text, std::string_view misread)
{
    const bool wellFormed = isUtf8(text);
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool outerBlank = c == ' ' && (i == 0 || i + 1 == text.size());
        const bool looseByte = !wellFormed && static_cast<unsigned char>(c) >= 0x80;
        if (const auto name = named.find(c); name != std::string_view::npos)
            result += {'\\', names[name]};
        else if (isControl(c) || outerBlank || looseByte ||
                 misread.find(c) != std::string_view::npos)
            result += byteEscape(c);
        else
            result += c;
    }
    return result;
}

// The byte for two hexadecimal digits at the front of the text.
std::optional<char> hexByte(std::string_view text)
{
    const std::string_view digits = text.substr(0, 2);
    unsigned byte = 0;
    const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16).ptr;
    return end == text.data() + 2 ? std::optional(static_cast<char>(byte)) : std::nullopt;
}

std::string unescaped(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const char next = text.size() > 1 ? text[1] : '\0';
        const auto letter = names.find(next);
        const std::optional<char> byte =
            next == 'x' ? hexByte(text.substr(2)) : std::optional<char>();
        if (text[0] == '\\' && byte) {
            result += *byte;
            text.remove_prefix(4);
        } else if (text[0] == '\\' && letter != std::string_view::npos) {
            result += named[letter];
            text.remove_prefix(2);
        } else {
            result += text[0];
            text.remove_prefix(1);
        }
    }
    return result;
}

} // namespace

std::optional<SettingsText> SettingsText::parse(std::string_view bytes)
{
    SettingsText result;
    if (!isUtf8(bytes))
        return std::nullopt;
    if (bytes.starts_with(byteOrderMark)) {
        result.m_byteOrderMark = byteOrderMark;
        bytes.remove_prefix(byteOrderMark.size());
    }
    std::string section;
    while (!bytes.empty()) {
        const std::string_view raw = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(raw.size() + 1, bytes.size()));
        std::optional<Line> line = parseLine(raw, section);
        if (!line)
            return std::nullopt;
        section = line->section;
        result.m_lines.push_back(std::move(*line));
    }
    if (!result.m_lines.empty() && result.m_lines.front().raw.ends_with('\r'))
        result.m_carriageReturn += '\r';
    return result;
}

std::optional<SettingsText::Line> SettingsText::parseLine(std::string_view raw,
                                                          const std::string& section)
{
    Line line{std::string(raw), section, false, std::nullopt, {}};
    if (raw.ends_with('\r'))
        raw.remove_suffix(1);
    if (std::ranges::any_of(raw, [](char c) { return isControl(c) && c != '\t'; }))
        return std::nullopt;

    const std::string_view text = trimmed(raw);
    if (text.empty() || text[0] == '#' || text[0] == ';')
        return line;
    if (text[0] == '[') {
        if (!text.ends_with(']'))
            return std::nullopt;
        line.section = unescaped(trimmed(text.substr(1, text.size() - 2)));
        line.opensSection = true;
        return line;
    }
    const auto equals = text.find('=');
    if (equals == std::string_view::npos)
        return std::nullopt;
    line.key = unescaped(trimmed(text.substr(0, equals)));
    line.value = unescaped(trimmed(text.substr(equals + 1)));
    return line;
}

Settings SettingsText::settings(const std::string& application) const
{
    Settings result;
    for (const Line& line : m_lines)
        if (line.key)
            writeSetting(result, application, line.section, *line.key, line.value);
    return result;
}

void SettingsText::setValue(const std::string& section, const std::string& key,
                            std::string_view value)
{
    const Line* found = find(section, key);
    if (found != nullptr && found->value == value)
        return;
    Line entry{escaped(key, misreadInNames) + "=" + escaped(value, "") + m_carriageReturn, section,
               false, key, std::string(value)};
    if (found != nullptr)
        m_lines[static_cast<std::size_t>(found - m_lines.data())] = std::move(entry);
    else
        insertEntry(std::move(entry));
}

// If several lines have this key, the last one counts.
const SettingsText::Line* SettingsText::find(std::string_view section, std::string_view key) const
{
    const auto found = std::find_if(m_lines.rbegin(), m_lines.rend(), [&](const Line& line) {
        return line.section == section && line.key == key;
    });
    return found == m_lines.rend() ? nullptr : &*found;
}

// Adds the entry below the last one of its section, above the blank lines and comments that follow.
// A new section goes to the end.
void SettingsText::insertEntry(Line entry)
{
    const auto last = std::find_if(m_lines.rbegin(), m_lines.rend(), [&entry](const Line& line) {
        return line.section == entry.section && (line.key || line.opensSection);
    });
    if (last != m_lines.rend()) {
        m_lines.insert(last.base(), std::move(entry));
        return;
    }
    if (!m_lines.empty())
        m_lines.push_back({m_carriageReturn, m_lines.back().section, false, std::nullopt, {}});
    m_lines.push_back({'[' + escaped(entry.section, misreadInNames) + ']' + m_carriageReturn,
                       entry.section,
                       true,
                       std::nullopt,
                       {}});
    m_lines.push_back(std::move(entry));
}

std::string SettingsText::bytes() const
{
    std::string result = m_byteOrderMark;
    for (const Line& line : m_lines)
        result += line.raw + "\n";
    return result;
}

} // namespace quillet
