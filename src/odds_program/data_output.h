#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillet::odds_program
{

// A value under its name. A JSON value that is no text is a number.
struct Field {
    std::string name;
    std::string value;
    bool isText = false;
};

// The names, or the values, as a line of comma-separated values.
void writeCsvNames(std::ostream& out, const std::vector<Field>& fields);
void writeCsvValues(std::ostream& out, const std::vector<Field>& fields);

// As a JSON object on one line, without the line's end.
void writeJsonObject(std::ostream& out, const std::vector<Field>& fields);

[[nodiscard]] std::string jsonText(const std::string& text);

} // namespace quillet::odds_program
