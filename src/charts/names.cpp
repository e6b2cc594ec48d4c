#include "charts/names.h"

#include <cctype>
#include <utility>

namespace quillet::charts
{

std::string plainName(std::string_view name)
{
    std::string text;
    for (const char each : name) {
        const auto letter = static_cast<unsigned char>(each);
        if (std::isspace(letter) == 0)
            text += static_cast<char>(std::tolower(letter));
        else if (!text.empty() && text.back() != ' ')
            text += ' ';
    }
    if (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

std::size_t editDistance(std::string_view one, std::string_view other)
{
    std::vector<std::size_t> row(other.size() + 1);
    for (std::size_t j = 0; j < row.size(); ++j)
        row[j] = j;
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t changed = diagonal + (one[i] == other[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

} // namespace quillet::charts
