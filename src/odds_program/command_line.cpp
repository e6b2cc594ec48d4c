#include "odds_program/command_line.h"

#include "charts/chart.h"
#include "odds/simulation.h"
#include "odds/sitting.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace quillet::odds_program
{

namespace
{

[[noreturn]] void needs(std::string_view option, const std::string& what, std::string_view word)
{
    throw BadUsage(std::string(option) + " needs " + what + ", not '" + odds::printable(word) +
                   "'");
}

// "20", "1e6", "10k" or "10M".
std::int64_t countIn(std::string_view option, std::string_view word)
{
    std::string_view digits = word;
    double factor = 1;
    if (digits.ends_with('k') || digits.ends_with('M')) {
        factor = digits.back() == 'k' ? 1e3 : 1e6;
        digits.remove_suffix(1);
    }
    double number = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    number *= factor;
    constexpr double max = 1e15;
    if (error != std::errc() || end != digits.data() + digits.size() || number < 1 ||
        number > max || number != std::floor(number))
        needs(option, "a whole number such as 20, 1e6 or 10M", word);
    return static_cast<std::int64_t>(number);
}

std::uint64_t seedIn(std::string_view word)
{
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool isWhole = error == std::errc() && end == word.data() + word.size();
    return isWhole ? number : static_cast<std::uint64_t>(countIn("--seed", word));
}

Format formatIn(std::string_view word)
{
    if (word == "text")
        return Format::text;
    if (word == "csv")
        return Format::csv;
    if (word == "json")
        return Format::json;
    needs("--format", "text, csv or json", word);
}

// "24" or "1..30".
void takeRows(Request& request, std::string_view word)
{
    const auto dots = word.find("..");
    const auto min = countIn("--best-chart", word.substr(0, dots));
    const auto max =
        dots == std::string_view::npos ? min : countIn("--best-chart", word.substr(dots + 2));
    if (max > static_cast<std::int64_t>(charts::mostRows) || min > max)
        needs("--best-chart", "a number of rows, 1 to 64, or two such as 1..30", word);
    request.minRows = static_cast<std::size_t>(min);
    request.maxRows = static_cast<std::size_t>(max);
}

struct OptionKind {
    std::string_view name;
    bool hasValue = false;
    void (*take)(Request& request, std::string_view value) = [](Request&, std::string_view) {};
    std::string_view needs = {};
};

using Value = std::string_view;

// If an option is repeated, the last value counts.
constexpr std::array<OptionKind, 14> optionKinds{{
    {"--rows"},
    {"--mistakes"},
    {"--plays", false, [](Request&, Value) {}, "--chart"},
    {"--sitting", true, [](Request& r, Value v) { r.hands = countIn("--sitting", v); }},
    {"--simulate", true, [](Request& r, Value v) { r.hands = countIn("--simulate", v); }},
    {"--chart", true, [](Request& r, Value v) { r.chartFile = v; }},
    {"--best-chart", true, [](Request& r, Value v) { takeRows(r, v); }},
    {"--card", true, [](Request& r, Value v) { r.cardFile = v; }},
    {"--pays", true, [](Request& r, Value v) { r.pays = v; }},
    {"--format", true, [](Request& r, Value v) { r.style.format = formatIn(v); }},
    {"--exact", false, [](Request& r, Value) { r.style.exact = true; }},
    {"--all", false, [](Request& r, Value) { r.allHolds = true; }, "hands"},
    {"--bankroll", true, [](Request& r, Value v) { r.bankroll = countIn("--bankroll", v); },
     "--sitting"},
    {"--seed", true, [](Request& r, Value v) { r.seed = seedIn(v); }, "--simulate"},
}};

constexpr std::string_view hand = "a hand";
constexpr std::string_view input = "hands on standard input";

struct Combination {
    Question question;
    std::array<std::string_view, 2> asks; // the options that ask it
    std::string_view also;                // the options that may go with it
};

// The first one whose options are all given is the question.
constexpr std::array<Combination, 12> combinations{{
    {Question::rowKinds, {"--rows"}, ""},
    {Question::card, {"--card", "--best-chart"}, "--pays"},
    {Question::card, {"--card"}, "--chart --pays"},
    {Question::mistakes, {"--mistakes"}, "--chart --pays --format --exact"},
    {Question::plays, {"--chart", "--plays"}, "--pays"},
    {Question::chart, {"--chart"}, "--pays --format --exact"},
    {Question::bestChart, {"--best-chart"}, "--pays --format --exact"},
    {Question::sitting, {"--sitting"}, "--pays --format --bankroll"},
    {Question::simulation, {"--simulate"}, "--pays --format --exact --seed"},
    {Question::handsFromInput, {input}, "--pays --format --exact --all"},
    {Question::hand, {hand}, "--pays --format --exact --all"},
    {Question::game, {}, "--pays --format --exact"},
}};

// Reads the arguments: options with their values, and words of a hand.
class Parser
{
public:
    explicit Parser(std::span<const std::string_view> arguments) : m_left(arguments) {}

    // The first --help or --version decides; arguments after it are ignored.
    [[nodiscard]] Request parse()
    {
        bool optionsEnded = false;
        while (!m_left.empty()) {
            m_word = next();
            if (optionsEnded || !m_word.starts_with('-'))
                takeWord();
            else if (m_word == "--help" || m_word == "-h")
                return about(Question::help);
            else if (m_word == "--version")
                return about(Question::version);
            else if (m_word == "--")
                optionsEnded = true;
            else if (m_word == "-")
                m_given.push_back(input);
            else
                takeOption();
        }
        checkCombination();
        checkValues();
        return m_request;
    }

private:
    static Request about(Question question)
    {
        Request request;
        request.question = question;
        return request;
    }

    std::string_view next()
    {
        const std::string_view argument = m_left.front();
        m_left = m_left.subspan(1);
        return argument;
    }

    void takeWord()
    {
        if (m_word.empty())
            throw BadUsage("an argument is empty; is a variable unset?");
        m_given.push_back(hand);
        m_request.hand += std::string(m_word) + " ";
    }

    // Also true for the empty name.
    [[nodiscard]] bool isGiven(std::string_view name) const
    {
        return name.empty() || std::ranges::find(m_given, name) != m_given.end();
    }

    void takeOption();
    void checkCombination();
    void checkValues() const;

    std::span<const std::string_view> m_left;
    std::string_view m_word;
    std::vector<std::string_view> m_given;
    Request m_request;
};

void Parser::takeOption()
{
    const auto equals = m_word.find('=');
    const std::string name(m_word.substr(0, equals));
    const auto* const kind = std::ranges::find(optionKinds, name, &OptionKind::name);
    if (kind == optionKinds.end())
        throw BadUsage("unknown option '" + odds::printable(name) + "'");
    std::string_view value;
    if (equals != std::string_view::npos) {
        if (!kind->hasValue)
            throw BadUsage(name + " takes no value");
        value = m_word.substr(equals + 1);
    } else if (kind->hasValue) {
        if (m_left.empty())
            throw BadUsage(name + " needs a value after it");
        value = next();
    }
    if (kind->hasValue && value.empty())
        throw BadUsage(name + " has an empty value; is a variable unset?");
    m_given.push_back(kind->name);
    kind->take(m_request, value);
}

void Parser::checkCombination()
{
    const Combination& asked = *std::ranges::find_if(combinations, [this](const auto& one) {
        return isGiven(one.asks[0]) && isGiven(one.asks[1]);
    });
    for (const std::string_view name : m_given) {
        if (std::ranges::find(asked.asks, name) != asked.asks.end() ||
            asked.also.find(name) != std::string_view::npos)
            continue;
        const auto* const kind = std::ranges::find(optionKinds, name, &OptionKind::name);
        if (kind != optionKinds.end() && !kind->needs.empty())
            throw BadUsage(std::string(name) + " is only for " + std::string(kind->needs));
        throw BadUsage(std::string(name) + " does not go with " + std::string(asked.asks[0]) +
                       (asked.asks[1].empty() ? "" : " " + std::string(asked.asks[1])));
    }
    m_request.question = asked.question;
}

void Parser::checkValues() const
{
    const Question question = m_request.question;
    const bool oneChart = m_request.minRows == m_request.maxRows;
    const bool data = m_request.style.format != Format::text;
    const bool exact = m_request.style.exact;
    if (question == Question::card && !oneChart)
        throw BadUsage("--card is for one number of rows");
    if (question == Question::bestChart && oneChart && (data || exact))
        throw BadUsage("--format and --exact do not go with --best-chart for one number of rows");
    if (question == Question::handsFromInput && data && exact)
        throw BadUsage("--exact is for text only with hands on standard input");
    if (question == Question::sitting && m_request.hands > odds::mostHands)
        throw BadUsage("--sitting takes no more than 10M hands");
    if (question == Question::simulation && m_request.hands > odds::mostSimulated)
        throw BadUsage("--simulate takes no more than 100000M hands");
}

} // namespace

Request parseArguments(std::span<const std::string_view> arguments)
{
    return Parser(arguments).parse();
}

std::string_view helpText()
{
    return R"(Usage: quillet-odds [OPTION]... [HAND | -]

The exact odds of Jacks or Better at five credits a hand, and what it costs to
play by the trainer's chart. Without arguments: what the game returns with a
fairly shuffled deck.

Questions, one at a time
  HAND                 the best holds of five cards, such as "9c Tc Jc Kc Ad"
                       or 9♣10♣J♣K♣A♦, and why
  -                    the hands on standard input, one per line
  --mistakes           the deals that the chart misplays, in groups
  --sitting HANDS      how a session of that many hands turns out
  --simulate HANDS     play that many hands with the trainer's own shuffle,
                       which is not fair
  --chart FILE         what a chart of your own costs: one row per line, best
                       first; # starts a comment
  --best-chart ROWS    the best chart found with at most that many rows, as a
                       chart file; 1..30: the loss for each number of rows
  --card FILE          write the trainer's chart, or the one of --chart or
                       --best-chart, as a page to print (SVG)
  --rows               the rows that a chart can have
  --version, --help

Options
  --pays TABLE         9/6, 8/5 ... (full house and flush for one credit), nine
                       numbers for five credits, royal first, or a file
  --all                with a hand: all 32 holds
  --bankroll CREDITS   with --sitting: the chance that fewer than five of these
                       are left on the way
  --seed NUMBER        with --simulate: seed of the random numbers (default 1)
  --plays              with --chart: every deal and the hold that it plays
  --mistakes           with --chart: the deals that this chart misplays
  --format FORMAT      text, csv or json
  --exact              fractions in text too; csv and json always have them
)";
}

} // namespace quillet::odds_program
