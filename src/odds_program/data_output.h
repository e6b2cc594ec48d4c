#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillet::odds_program
{

// A named value. In JSON it is a string or a number.
struct Field {
    std::string name;
    std::string value;
    bool isText = false;
};

// Writes the values as a line of comma-separated values.
void writeCsvLine(std::ostream& out, const std::vector<Field>& fields);

// Writes a JSON object on one line, without a newline.
void writeJsonObject(std::ostream& out, const std::vector<Field>& fields);

[[nodiscard]] std::string jsonText(const std::string& text);

} // namespace quillet::odds_program
