#include "odds_program/data_output.h"

#include <ostream>

namespace quillet::odds_program
{

namespace
{

// In quotes, with `escape` before each quotation mark and itself.
std::string quoted(const std::string& text, char escape)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == escape)
            result += escape;
        result += c;
    }
    return result + '"';
}

} // namespace

void writeCsvLine(std::ostream& out, const std::vector<Field>& fields)
{
    const char* separator = "";
    for (const Field& field : fields) {
        const bool isPlain = field.value.find_first_of(",\"\n") == std::string::npos;
        out << separator << (isPlain ? field.value : quoted(field.value, '"'));
        separator = ",";
    }
    out << '\n';
}

void writeJsonObject(std::ostream& out, const std::vector<Field>& fields)
{
    const char* separator = "{";
    for (const Field& field : fields) {
        out << separator << jsonText(field.name) << ": "
            << (field.isText ? jsonText(field.value) : field.value);
        separator = ", ";
    }
    out << '}';
}

std::string jsonText(const std::string& text)
{
    return quoted(text, '\\');
}

} // namespace quillet::odds_program
