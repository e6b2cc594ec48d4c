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

void writeCsvLine(std::ostream& out, const std::vector<Field>& fields, std::string Field::*part)
{
    const char* separator = "";
    for (const Field& field : fields) {
        const std::string& text = field.*part;
        const bool isPlain = text.find_first_of(",\"\n") == std::string::npos;
        out << separator << (isPlain ? text : quoted(text, '"'));
        separator = ",";
    }
    out << '\n';
}

} // namespace

void writeCsvNames(std::ostream& out, const std::vector<Field>& fields)
{
    writeCsvLine(out, fields, &Field::name);
}

void writeCsvValues(std::ostream& out, const std::vector<Field>& fields)
{
    writeCsvLine(out, fields, &Field::value);
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
