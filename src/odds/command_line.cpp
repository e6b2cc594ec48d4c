#include "odds/command_line.h"

#include "charts/chart.h"
#include "odds/sitting.h"

#include <charconv>
#include <cmath>
#include <utility>
#include <vector>

namespace quillet
{

namespace
{

[[noreturn]] void needs(std::string_view option, const std::string& what, std::string_view word)
{
    throw BadUsage(std::string(option) + " needs " + what + ", not '" + printable(word) + "'");
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
    constexpr double most = 1e15;
    if (error != std::errc() || end != digits.data() + digits.size() || number < 1 ||
        number > most || number != std::floor(number))
        needs(option, "a whole number such as 20, 1e6 or 10M", word);
    return static_cast<std::int64_t>(number);
}

std::uint64_t seedIn(std::string_view word)
{
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size())
        needs("--seed", "a whole number", word);
    return number;
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
    const auto least = countIn("--best-chart", word.substr(0, dots));
    const auto most =
        dots == std::string_view::npos ? least : countIn("--best-chart", word.substr(dots + 2));
    if (most > static_cast<std::int64_t>(charts::mostRows) || least > most)
        needs("--best-chart", "a number of rows, 1 to 64, or two such as 1..30", word);
    request.leastRows = static_cast<std::size_t>(least);
    request.mostRows = static_cast<std::size_t>(most);
}

// Goes through the arguments, each an option with its value or a word of a hand.
class Parser
{
public:
    explicit Parser(std::span<const std::string_view> arguments) : m_left(arguments) {}

    [[nodiscard]] Request parse()
    {
        bool optionsEnded = false;
        while (!m_left.empty()) {
            m_option = next();
            if (optionsEnded || !m_option.starts_with('-'))
                takeWord();
            else if (m_option == "--")
                optionsEnded = true;
            else
                takeOption();
        }
        check();
        return m_request;
    }

private:
    std::string_view next()
    {
        const std::string_view argument = m_left.front();
        m_left = m_left.subspan(1);
        return argument;
    }

    // After the option's = or in the next argument.
    std::string_view value()
    {
        if (!m_value && m_left.empty())
            throw BadUsage(std::string(m_option) + " needs a value after it");
        const auto word = m_value ? *std::exchange(m_value, std::nullopt) : next();
        if (word.empty())
            throw BadUsage(std::string(m_option) + " has an empty value; is a variable unset?");
        return word;
    }

    void ask(Question question)
    {
        m_asked.push_back(question);
        m_request.question = question;
    }

    void takeWord()
    {
        if (m_option.empty())
            throw BadUsage("an argument is empty; is a variable unset?");
        if (m_request.hand.empty())
            ask(Question::hand);
        m_request.hand += std::string(m_option) + " ";
    }

    void takeOption();
    void askForCard();
    void check();

    std::span<const std::string_view> m_left;
    std::string_view m_option;
    std::optional<std::string_view> m_value;
    std::vector<Question> m_asked;
    std::optional<std::uint64_t> m_seed;
    bool m_plays = false;
    bool m_mistakes = false;
    Request m_request;
};

void Parser::takeOption()
{
    if (const auto equals = m_option.find('=');
        m_option.starts_with("--") && equals != std::string_view::npos) {
        m_value = m_option.substr(equals + 1);
        m_option = m_option.substr(0, equals);
    }
    const std::string_view option = m_option;
    if (option == "-")
        ask(Question::handsFromInput);
    else if (option == "--help" || option == "-h")
        ask(Question::help);
    else if (option == "--version")
        ask(Question::version);
    else if (option == "--format")
        m_request.style.format = formatIn(value());
    else if (option == "--csv")
        m_request.style.format = Format::csv;
    else if (option == "--exact")
        m_request.style.exact = true;
    else if (option == "--pays")
        m_request.pays = value();
    else if (option == "--all")
        m_request.allHolds = true;
    else if (option == "--mistakes")
        m_mistakes = true;
    else if (option == "--plays")
        m_plays = true;
    else if (option == "--rows")
        ask(Question::rowKinds);
    else if (option == "--document")
        ask(Question::document);
    else if (option == "--sitting") {
        ask(Question::sitting);
        m_request.hands = countIn(option, value());
    } else if (option == "--simulate") {
        ask(Question::simulation);
        m_request.hands = countIn(option, value());
    } else if (option == "--bankroll")
        m_request.bankroll = countIn(option, value());
    else if (option == "--seed")
        m_seed = seedIn(value());
    else if (option == "--chart") {
        ask(Question::chart);
        m_request.chartFile = value();
    } else if (option == "--card")
        m_request.cardFile = value();
    else if (option == "--best-chart") {
        ask(Question::bestChart);
        takeRows(m_request, value());
    } else
        throw BadUsage("unknown option '" + printable(option) + "'");
    if (m_value)
        throw BadUsage(std::string(option) + " takes no value");
}

void Parser::askForCard()
{
    const Question question = m_request.question;
    if (question != Question::game && question != Question::chart &&
        (question != Question::bestChart || m_request.leastRows != m_request.mostRows))
        throw BadUsage("--card is for one chart");
    m_request.question = Question::card;
}

void Parser::check()
{
    const bool chart = m_request.question == Question::chart;
    if (m_mistakes && !chart)
        ask(Question::mistakes);
    for (const Question question : m_asked) {
        if (question == Question::help || question == Question::version) {
            m_request.question = question;
            return;
        }
    }
    if (m_asked.size() > 1 || (m_plays && m_mistakes))
        throw BadUsage("ask for one thing at a time");
    if (m_plays && !chart)
        throw BadUsage("--plays is for --chart");
    if (chart && m_plays)
        m_request.question = Question::plays;
    if (chart && m_mistakes)
        m_request.question = Question::chartMistakes;
    if (m_request.cardFile)
        askForCard();
    const Question question = m_request.question;
    if (m_seed && question != Question::simulation)
        throw BadUsage("--seed is for --simulate");
    if (m_request.bankroll && question != Question::sitting)
        throw BadUsage("--bankroll is for --sitting");
    if (m_request.allHolds && question != Question::hand && question != Question::handsFromInput)
        throw BadUsage("--all is for a hand");
    if (question == Question::sitting && m_request.hands > mostHands)
        throw BadUsage("--sitting takes no more than 10M hands");
    m_request.seed = m_seed.value_or(1);
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
play by the trainer's chart. Without a question: the worth of the game for a
fairly shuffled deck.

Questions, one at a time
  HAND                 the best holds of five cards, such as "9c Tc Jc Kc Ad"
                       or 9♣10♣J♣K♣A♦, and why
  -                    the hands on standard input, one a line
  --mistakes           the deals that the chart plays wrongly, in kinds
  --sitting HANDS      what so many hands come to
  --simulate HANDS     play so many hands from decks shuffled as the trainer
                       shuffles them, which is not fair
  --chart FILE         the price of a chart of your own: one row a line, best
                       first; what follows # is a comment
  --best-chart ROWS    the best chart found with so many rows, as such a file;
                       1..30: what each number of rows loses
  --card FILE          the trainer's chart, or that of --chart or --best-chart,
                       as a page to print (SVG)
  --rows               the rows that a chart can have
  --document           all of this for six pay tables, as a Markdown page
  --version, --help

Options
  --pays TABLE         9/6, 8/5 ... (full house and flush for one credit), nine
                       numbers for five credits, royal first, or a file
  --all                with a hand: all 32 holds
  --bankroll CREDITS   with --sitting: the chance to lose them on the way
  --seed NUMBER        with --simulate: other chances (default 1)
  --plays              with --chart: each deal with the hold that it plays
  --mistakes           with --chart: its mistakes
  --format FORMAT      text, csv or json
  --exact              fractions in text, too; csv and json have them always
)";
}

} // namespace quillet
