#include "odds_program/command_line.h"

#include "charts/chart.h"
#include "odds/simulation.h"
#include "odds/sitting.h"
#include "odds/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace quillet::odds_program
{

namespace
{

[[noreturn]] void failValue(std::string_view option, const std::string& what, std::string_view word)
{
    throw BadUsage(std::string(option) + " needs " + what + ", not '" + odds::printable(word) +
                   "'");
}

constexpr std::int64_t maxCount = 1'000'000'000'000'000;

// Reads "20", "1e6", "10k" or "10M". Returns 0 for anything else.
std::int64_t wholeNumber(std::string_view digits)
{
    double factor = 1;
    if (digits.ends_with('k') || digits.ends_with('M')) {
        factor = digits.back() == 'k' ? 1e3 : 1e6;
        digits.remove_suffix(1);
    }
    const double number = factor * odds::numberIn<double>(digits).value_or(0);
    const bool isCount = number >= 1 && number <= maxCount && number == std::floor(number);
    return isCount ? static_cast<std::int64_t>(number) : 0;
}

std::int64_t countIn(std::string_view option, std::string_view word, std::int64_t max = maxCount,
                     const char* what = "a whole number such as 20, 1e6 or 10M")
{
    const std::int64_t count = wholeNumber(word);
    if (count == 0 || count > max)
        failValue(option, what, word);
    return count;
}

// "5", "0.1" or "5%", in percent.
double percentageIn(std::string_view word)
{
    const std::string_view digits = word.substr(0, word.size() - (word.ends_with('%') ? 1 : 0));
    const double number = odds::numberIn<double>(digits).value_or(0);
    if (!(number >= 0.0001 && number <= 99)) // nor NaN
        failValue("--bring", "a percentage, 0.0001 to 99", word);
    return number;
}

std::uint64_t seedIn(std::string_view word)
{
    const auto number = odds::numberIn<std::uint64_t>(word);
    return number ? *number : static_cast<std::uint64_t>(countIn("--seed", word));
}

Format formatIn(std::string_view word)
{
    if (word == "text")
        return Format::text;
    if (word == "csv")
        return Format::csv;
    if (word == "json")
        return Format::json;
    failValue("--format", "text, csv or json", word);
}

// Reads "24" or "1..30".
void takeLines(Request& request, std::string_view word)
{
    const auto dots = word.find("..");
    const auto min = wholeNumber(word.substr(0, dots));
    const auto max = dots == std::string_view::npos ? min : wholeNumber(word.substr(dots + 2));
    if (min == 0 || max > static_cast<std::int64_t>(charts::maxRows) || min > max)
        failValue("--best-chart", "a number of lines, 1 to 64, or two such as 1..30", word);
    request.minLines = static_cast<std::size_t>(min);
    request.maxLines = static_cast<std::size_t>(max);
}

using Value = std::string_view;

struct OptionKind {
    std::string_view name;
    void (*take)(Request& request, Value value) = nullptr; // of options with a value
    std::string_view needs = {};
};

// Arguments that are not options.
constexpr OptionKind hand{"a hand", [](Request& r, Value v) { r.hand.append(v) += ' '; }};
constexpr OptionKind input{"hands on standard input"};

// If an option is repeated, the last value counts.
constexpr std::array<OptionKind, 18> optionKinds{{
    {"--rows"},
    {"--self-test"},
    {"--mistakes"},
    {"--break-even"},
    {"--plays", nullptr, "--chart"},
    {"--sitting", [](Request& r, Value v) { r.session.hands = countIn("--sitting", v); }},
    {"--simulate", [](Request& r, Value v) { r.hands = countIn("--simulate", v); }},
    {"--chart", [](Request& r, Value v) { r.chartFile = v; }},
    {"--best-chart", [](Request& r, Value v) { takeLines(r, v); }},
    {"--card", [](Request& r, Value v) { r.cardFile = v; }},
    {"--pays", [](Request& r, Value v) { r.pays = v; }},
    {"--format", [](Request& r, Value v) { r.style.format = formatIn(v); }},
    {"--exact"},
    {"--all", nullptr, hand.name},
    {"--bankroll", [](Request& r, Value v) { r.session.bankroll = countIn("--bankroll", v); },
     "--sitting"},
    {"--bring", [](Request& r, Value v) { r.session.bring = percentageIn(v) / 100; }, "--sitting"},
    {"--lines",
     [](Request& r, Value v) {
         r.session.lines = countIn("--lines", v, odds::maxLines, "a number of lines, 1 to 100");
     },
     "--sitting"},
    {"--seed", [](Request& r, Value v) { r.seed = seedIn(v); }, "--simulate"},
}};

struct Combination {
    Question question;
    std::array<std::string_view, 2> needs; // the options that it needs
    std::string_view takes;                // the options that it can have
};

// The first combination whose options are all given is the question.
constexpr std::array<Combination, 15> combinations{{
    {Question::rowKinds, {"--rows"}, ""},
    {Question::selfTest, {"--self-test"}, ""},
    {Question::card, {"--card", "--best-chart"}, "--pays"},
    {Question::card, {"--card"}, "--chart --pays"},
    {Question::mistakes, {"--mistakes"}, "--chart --pays --format --exact"},
    {Question::plays, {"--chart", "--plays"}, "--pays"},
    {Question::breakEven, {"--break-even", hand.name}, "--pays --format --exact"},
    {Question::breakEven, {"--break-even"}, "--chart --pays --format --exact"},
    {Question::sitting, {"--sitting"}, "--chart --pays --format --bankroll --bring --lines"},
    {Question::chart, {"--chart"}, "--pays --format --exact"},
    {Question::bestChart, {"--best-chart"}, "--pays --format --exact"},
    {Question::simulation, {"--simulate"}, "--pays --format --exact --seed"},
    {Question::handsFromInput, {input.name}, "--pays --format --exact --all"},
    {Question::hand, {hand.name}, "--pays --format --exact --all"},
    {Question::game, {}, "--pays --format --exact"},
}};

struct Given {
    const OptionKind* kind;
    std::string_view value;
};

// The option at i. Moves i to its value if that is the next argument.
Given optionAt(std::span<const std::string_view> arguments, std::size_t& i)
{
    const std::string_view word = arguments[i];
    const auto equals = word.find('=');
    const std::string name(word.substr(0, equals));
    const auto* const kind = std::ranges::find(optionKinds, name, &OptionKind::name);
    if (kind == optionKinds.end())
        throw BadUsage("unknown option '" + odds::printable(name) + "'");
    if (equals != std::string_view::npos && kind->take == nullptr)
        throw BadUsage(name + " takes no value");
    if (equals != std::string_view::npos)
        return {kind, word.substr(equals + 1)};
    if (kind->take == nullptr)
        return {kind, {}};
    if (++i == arguments.size())
        throw BadUsage(name + " needs a value after it");
    return {kind, arguments[i]};
}

// Also true for the empty name.
bool isGiven(const std::vector<Given>& given, std::string_view name)
{
    return name.empty() ||
           std::ranges::any_of(given, [name](const Given& one) { return one.kind->name == name; });
}

Question questionOf(const std::vector<Given>& given)
{
    const Combination& asked = *std::ranges::find_if(combinations, [&given](const auto& one) {
        return isGiven(given, one.needs[0]) && isGiven(given, one.needs[1]);
    });
    for (const auto& [kind, value] : given) {
        if (std::ranges::find(asked.needs, kind->name) != asked.needs.end() ||
            asked.takes.find(kind->name) != std::string_view::npos)
            continue;
        const std::string name(kind->name);
        if (!isGiven(given, kind->needs))
            throw BadUsage(name + " is only for " + std::string(kind->needs));
        throw BadUsage(name + " cannot be used with " + std::string(asked.needs[0]) +
                       (asked.needs[1].empty() ? "" : " and " + std::string(asked.needs[1])));
    }
    return asked.question;
}

void takeValue(Request& request, const Given& given)
{
    if (given.kind == &hand && given.value.empty())
        throw BadUsage("an argument is empty; is a variable unset?");
    if (given.value.empty())
        throw BadUsage(std::string(given.kind->name) + " has an empty value; is a variable unset?");
    given.kind->take(request, given.value);
}

void checkValues(const Request& request)
{
    const Question question = request.question;
    const bool oneChart = request.minLines == request.maxLines;
    const bool data = request.style.format != Format::text;
    const bool exact = request.style.exact;
    if (question == Question::card && !oneChart)
        throw BadUsage("--card needs a single number of lines");
    if (question == Question::bestChart && oneChart && (data || exact))
        throw BadUsage(
            "--format and --exact cannot be used with --best-chart for a single number of lines");
    if (question == Question::handsFromInput && data && exact)
        throw BadUsage("with hands on standard input --exact is only for text");
    if (question == Question::sitting && request.session.hands > odds::maxRounds)
        throw BadUsage("--sitting takes no more than 10M hands");
    if (question == Question::simulation && request.hands > odds::maxSimulated)
        throw BadUsage("--simulate takes no more than 100000M hands");
}

} // namespace

Request parseArguments(std::span<const std::string_view> arguments)
{
    Request request;
    std::vector<Given> given;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view word = arguments[i];
        if (optionsEnded || !word.starts_with('-')) {
            given.push_back({&hand, word});
        } else if (word == "--help" || word == "-h" || word == "--version") {
            request.question = word == "--version" ? Question::version : Question::help;
            return request;
        } else if (word == "--") {
            optionsEnded = true;
        } else {
            given.push_back(word == "-" ? Given{&input, {}} : optionAt(arguments, i));
        }
    }
    for (const Given& one : given)
        if (one.kind->take != nullptr)
            takeValue(request, one);
    request.question = questionOf(given);
    request.style.exact = isGiven(given, "--exact");
    request.allHolds = isGiven(given, "--all");
    checkValues(request);
    return request;
}

} // namespace quillet::odds_program
