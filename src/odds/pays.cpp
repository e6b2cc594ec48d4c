#include "odds/pays.h"

#include "engine/hand_evaluation.h"
#include "engine/pay_table.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace quillet
{

namespace
{

constexpr std::size_t fullHouse = 4, flush = 5;
constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

std::int64_t numberIn(std::string_view word, const std::string& place)
{
    std::int64_t number = -1;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size() || number < 0 || number > mostPaid)
        throw BadPays(place + ": '" + std::string(word) + "' is not a number of credits, 0 to " +
                      std::to_string(mostPaid));
    return number;
}

// "9/6" and the like.
std::optional<Pays> fromShortName(std::string_view text)
{
    const auto slash = text.find('/');
    if (slash == std::string_view::npos)
        return std::nullopt;
    constexpr std::int64_t credits = 5;
    Pays pays = trainersPays();
    pays[fullHouse] = credits * numberIn(text.substr(0, slash), "pay table");
    pays[flush] = credits * numberIn(text.substr(slash + 1), "pay table");
    if (std::max(pays[fullHouse], pays[flush]) > mostPaid)
        throw BadPays("pay table: '" + std::string(text) + "' pays too much");
    return pays;
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == ',' || c == '\r';
}

} // namespace

Pays trainersPays()
{
    Pays pays{};
    std::ranges::transform(payTable(), pays.begin() + 1, &Payout::pays);
    return pays;
}

std::size_t outcomeOf(std::int16_t finalCode)
{
    const auto table = payTable();
    const auto found = std::ranges::find(table, finalCode, &Payout::playCode);
    return found == table.end() ? 0 : static_cast<std::size_t>(found - table.begin()) + 1;
}

std::string_view outcomeName(std::size_t outcome)
{
    return outcome == 0 ? "Nothing" : playName(payTable()[outcome - 1].playCode);
}

Pays parsePays(std::string_view text)
{
    if (const auto pays = fromShortName(text.substr(0, text.find('\n'))))
        return *pays;
    Pays pays{};
    std::size_t found = 0;
    for (int line = 1; !text.empty(); ++line) {
        const std::string place = "pay table, line " + std::to_string(line);
        std::string_view left = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(left.size() + 1, text.size()));
        left = left.substr(0, left.find('#'));
        // Behind a name, such as "4 of a kind", the last word is the number.
        left = left.substr(0, left.find_last_not_of(" \t\r,") + 1);
        if (left.find_first_of(letters) != std::string_view::npos)
            left = left.substr(left.find_last_of(" \t,") + 1);
        left.remove_prefix(std::min(left.find_first_not_of(" \t,"), left.size()));
        while (!left.empty()) {
            const auto end = std::ranges::find_if(left, isBlank);
            const std::string_view word(left.begin(), end);
            left.remove_prefix(word.size());
            left.remove_prefix(std::min(
                static_cast<std::size_t>(std::ranges::find_if_not(left, isBlank) - left.begin()),
                left.size()));
            const std::int64_t number = numberIn(word, place);
            if (++found == outcomes)
                throw BadPays(place + ": more than nine hands pay");
            pays[found] = number;
        }
    }
    if (found + 1 != outcomes)
        throw BadPays("pay table: nine numbers are needed, royal first, or two such as 9/6; there "
                      "are " +
                      std::to_string(found));
    return pays;
}

std::string paysText(const Pays& pays)
{
    std::string text;
    for (std::size_t outcome = 1; outcome < outcomes; ++outcome) {
        if (!text.empty())
            text += ' ';
        text += std::to_string(pays[outcome]);
    }
    return text;
}

} // namespace quillet
