#include "odds/pays.h"

#include "engine/hand_evaluation.h"
#include "engine/pay_table.h"
#include "odds/bad_input.h"
#include "odds/text.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace quillet::odds
{

namespace
{

constexpr std::size_t fullHouse = 4, flush = 5;
constexpr std::string_view digits = "0123456789";
constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view separators = " \t\r\v\f,:=";

// The trainer's payout by outcome.
constexpr std::array<Payout, outcomeCount> payouts = [] {
    std::array<Payout, outcomeCount> all{};
    std::ranges::copy(payTable, all.begin() + 1);
    return all;
}();

// Names that a line may have; a name comes before its parts.
struct HandName {
    std::string_view words;
    std::size_t outcome;
};
constexpr std::array<HandName, 15> handNames{{{"royal straight flush", 1},
                                              {"royal flush", 1},
                                              {"royal", 1},
                                              {"straight flush", 2},
                                              {"4 of a kind", 3},
                                              {"four of a kind", 3},
                                              {"full house", 4},
                                              {"flush", 5},
                                              {"straight", 6},
                                              {"3 of a kind", 7},
                                              {"three of a kind", 7},
                                              {"2 pair", 8},
                                              {"two pair", 8},
                                              {"high pair", 9},
                                              {"jacks or better", 9}}};

struct Line {
    std::string place; // for messages
    std::string_view text;
};

std::string_view lastWord(std::string_view text)
{
    return text.substr(text.find_last_of(separators) + 1);
}

std::int64_t creditsIn(std::string_view word, const std::string& place)
{
    word = trimmed(word, " \t");
    const auto credits = numberIn<std::int64_t>(word).value_or(-1);
    if (credits < 0 || credits > maxPay)
        throw BadInput(place + ": '" + printable(word) + "' is not a number of credits, 0 to " +
                       std::to_string(maxPay));
    if (word.size() > 1 && word.front() == '0')
        throw BadInput(place + ": '" + printable(word) +
                       "' begins with 0; a comma stands between two numbers, so write 4000");
    return credits;
}

// "9/6" and the like.
Pays shortTable(const Line& line)
{
    const auto slash = line.text.find('/');
    Pays pays = trainersPays();
    pays[fullHouse] = wager * creditsIn(line.text.substr(0, slash), line.place);
    pays[flush] = wager * creditsIn(line.text.substr(slash + 1), line.place);
    if (std::max(pays[fullHouse], pays[flush]) > maxPay)
        throw BadInput(line.place + ": '" + printable(line.text) + "' pays too much");
    return pays;
}

// The number of a line such as "Royal 4,000" or "4 of a kind: 125".
std::int64_t numberBehindName(const Line& line)
{
    constexpr std::string_view ofNumber = "0123456789,";
    const std::size_t end = line.text.find_last_not_of(ofNumber) + 1;
    std::string_view number = line.text.substr(end);
    number.remove_prefix(std::min(number.find_first_of(digits), number.size()));
    std::string_view name = line.text.substr(0, line.text.size() - number.size());
    if (number.empty() || separators.find(name.back()) == std::string_view::npos)
        return creditsIn(lastWord(line.text), line.place);
    name = name.substr(0, name.find_last_not_of(separators) + 1);
    if (lastWord(name).find_first_not_of(digits) == std::string_view::npos)
        throw BadInput(line.place + ": '" + printable(line.text) +
                       "' is neither a name with one number nor a list of whole numbers");
    std::string plain;
    for (std::size_t i = 0; i < number.size(); ++i) {
        const bool betweenThousands = i > 0 && (number.size() - i) % 4 == 0;
        if (number[i] != ',' || !betweenThousands)
            plain += number[i];
    }
    return creditsIn(plain, line.place);
}

std::vector<std::int64_t> numbersIn(const Line& line)
{
    if (line.text.find_first_of(letters) != std::string_view::npos)
        return {numberBehindName(line)};
    std::vector<std::int64_t> numbers;
    for (std::string_view left = line.text; !left.empty();) {
        const std::size_t end = std::min(left.find_first_of(separators), left.size());
        numbers.push_back(creditsIn(left.substr(0, end), line.place));
        left.remove_prefix(std::min(left.find_first_not_of(separators, end), left.size()));
    }
    return numbers;
}

// Throws if the line names another hand.
void checkName(const Line& line, std::size_t expected)
{
    std::string words = " ";
    for (const char each : line.text) {
        const auto letter = static_cast<unsigned char>(each);
        if (std::isalnum(letter) != 0)
            words += static_cast<char>(std::tolower(letter));
        else if (words.back() != ' ')
            words += ' ';
    }
    for (const auto& [name, outcome] : handNames) {
        const auto at = words.find(std::string(" ").append(name));
        if (at == std::string::npos)
            continue;
        if (outcome != expected)
            throw BadInput(line.place + ": '" + printable(line.text) + "' names " +
                           std::string(outcomeName(outcome)) + ", but " +
                           std::string(outcomeName(expected)) + " is expected here");
        words.erase(at, name.size() + 1);
    }
}

// The lines with more than blanks and comments.
std::vector<Line> linesIn(std::string_view text)
{
    std::vector<Line> lines;
    int number = 0;
    for (std::string_view line : split(text, '\n')) {
        ++number;
        line = trimmed(line.substr(0, line.find('#')), separators);
        if (!line.empty())
            lines.push_back({"pay table, line " + std::to_string(number), line});
    }
    return lines;
}

} // namespace

Pays trainersPays()
{
    Pays pays{};
    std::ranges::transform(payouts, pays.begin(), &Payout::pays);
    return pays;
}

std::size_t outcomeOf(std::span<const Card, 5> finalHand)
{
    const auto found =
        std::ranges::find(payouts, EvaluatePokerHand(finalHand, true), &Payout::playCode);
    return found == payouts.end() ? 0 : static_cast<std::size_t>(found - payouts.begin());
}

std::string_view outcomeName(std::size_t outcome)
{
    return outcome == 0 ? "nothing" : playName(payouts[outcome].playCode);
}

bool looksLikePays(std::string_view text)
{
    return text.find('\n') != std::string_view::npos ||
           (!text.starts_with('/') &&
            text.find_first_not_of("0123456789/, \t\r") == std::string_view::npos);
}

Pays parsePays(std::string_view text)
{
    const std::vector<Line> lines = linesIn(text);
    if (lines.size() == 1 && lines[0].text.find('/') != std::string_view::npos)
        return shortTable(lines[0]);
    Pays pays{};
    std::size_t found = 0;
    for (const Line& line : lines) {
        const std::vector<std::int64_t> numbers = numbersIn(line);
        if (found + numbers.size() >= outcomeCount)
            throw BadInput(line.place + ": more than nine hands pay");
        checkName(line, found + 1);
        for (const std::int64_t number : numbers)
            pays[++found] = number;
    }
    if (found + 1 != outcomeCount)
        throw BadInput("pay table: nine numbers are needed, royal first, or two such as 9/6; there "
                       "are " +
                       std::to_string(found));
    if (pays[royalOutcome] > 0 && pays[royalOutcome] < pays.back() && std::ranges::is_sorted(pays))
        throw BadInput("pay table: the royal comes first and the high pair last, not the other way "
                       "round");
    return pays;
}

} // namespace quillet::odds
