#include "practice/journal.h"

#include "odds/hand_text.h"
#include "odds/text.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <numeric>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace quillet::practice
{

namespace
{

using namespace std::chrono;

constexpr std::string_view header = "time,deal,held,best,cost,decision,chosen,standard";
constexpr std::size_t fields = 8;
constexpr std::size_t readAtOnce = 1 << 20;

constexpr std::array<std::string_view, 3> chosenNames{"weighted", "random", "exam"};
constexpr std::array<std::string_view, 3> standardNames{"perfect", "trainer", "chart"};

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

// Closes itself.
class File
{
public:
    File(const std::filesystem::path& path, int flags) : m_number(::open(path.c_str(), flags, 0600))
    {
    }
    ~File()
    {
        if (isOpen())
            ::close(m_number);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }
    [[nodiscard]] int number() const { return m_number; }

private:
    int m_number;
};

std::string timeText(sys_seconds time)
{
    const auto day = floor<days>(time);
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ",
                  static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.day()), static_cast<int>(clock.hours().count()),
                  static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text.data();
}

std::optional<sys_seconds> timeIn(std::string_view text)
{
    constexpr std::string_view pattern = "0000-00-00T00:00:00Z";
    if (text.size() != pattern.size())
        return std::nullopt;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (pattern[i] != '0' && text[i] != pattern[i])
            return std::nullopt;
    }
    const auto part = [text](std::size_t from, std::size_t size) {
        return odds::numberIn<unsigned>(text.substr(from, size)).value_or(9999);
    };
    const year_month_day date(year(static_cast<int>(part(0, 4))), month(part(5, 2)),
                              day(part(8, 2)));
    if (!date.ok() || part(11, 2) > 23 || part(14, 2) > 59 || part(17, 2) > 60)
        return std::nullopt;
    return sys_days(date) + hours(part(11, 2)) + minutes(part(14, 2)) + seconds(part(17, 2));
}

std::optional<odds::DeckPlace> cardIn(std::string_view text)
{
    const auto rank = std::string_view("A23456789TJQK").find(text[0]);
    const auto suit = std::string_view("cdhs").find(text[1]);
    if (rank == std::string_view::npos || suit == std::string_view::npos)
        return std::nullopt;
    return static_cast<odds::DeckPlace>(suit * 13 + rank);
}

// Five different cards with one blank between them.
std::optional<std::array<odds::DeckPlace, 5>> dealIn(std::string_view text)
{
    std::array<odds::DeckPlace, 5> places{};
    if (text.size() != 14)
        return std::nullopt;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto card = cardIn(text.substr(3 * i, 2));
        if (!card || std::find(places.begin(), places.begin() + i, *card) != places.begin() + i)
            return std::nullopt;
        places[i] = *card;
    }
    return places;
}

std::optional<odds::Hold> holdIn(std::string_view text,
                                 const std::array<odds::DeckPlace, 5>& places)
{
    odds::Hold hold = 0;
    if (text == "nothing")
        return hold;
    for (; text.size() >= 2; text.remove_prefix(std::min<std::size_t>(3, text.size()))) {
        const auto card = cardIn(text);
        const auto found = card ? std::ranges::find(places, *card) : places.end();
        if (found == places.end())
            return std::nullopt;
        hold |= 1U << (found - places.begin());
    }
    return text.empty() && hold != 0 ? std::optional(hold) : std::nullopt;
}

// Fields may be in quotation marks, as a comma in one needs them.
std::optional<std::array<std::string_view, fields>> fieldsIn(std::string_view line)
{
    std::array<std::string_view, fields> found;
    for (std::size_t i = 0; i < fields; ++i) {
        const bool quoted = line.starts_with('"');
        line.remove_prefix(quoted ? 1 : 0);
        const std::size_t end = std::min(line.find(quoted ? '"' : ','), line.size());
        found[i] = line.substr(0, end);
        line.remove_prefix(std::min(end + (quoted ? 1 : 0), line.size()));
        if (line.starts_with(',') != (i + 1 < fields))
            return std::nullopt;
        line.remove_prefix(i + 1 < fields ? 1 : 0);
    }
    return line.empty() ? std::optional(found) : std::nullopt;
}

template <typename Value, typename Names>
std::optional<Value> namedIn(std::string_view text, const Names& names)
{
    const auto found = std::ranges::find(names, text);
    if (found == names.end())
        return std::nullopt;
    return static_cast<Value>(found - names.begin());
}

std::optional<JournalEntry> entryIn(std::string_view line)
{
    const auto field = fieldsIn(line);
    if (!field)
        return std::nullopt;
    const auto time = timeIn((*field)[0]);
    const auto deal = dealIn((*field)[1]);
    const auto held = deal ? holdIn((*field)[2], *deal) : std::nullopt;
    const auto chosen = namedIn<Chosen>((*field)[6], chosenNames);
    const auto standard = namedIn<JudgedBy>((*field)[7], standardNames);
    if (!time || !held || !chosen || !standard)
        return std::nullopt;
    return JournalEntry{*time, odds::heldDeal(*deal, *held), *chosen, *standard};
}

void takeLine(Journal& journal, std::string_view line)
{
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    if (line.empty() || line == header)
        return;
    if (const auto entry = entryIn(line))
        journal.entries.push_back(*entry);
    else
        ++journal.unreadable;
}

std::string lineOf(const JournalEntry& entry, const JournalNotes& notes)
{
    const auto& places = entry.deal.places;
    const auto field = [](std::string_view text) { return ',' + std::string(text); };
    return timeText(entry.time) + field(odds::holdText(places, odds::holdAll)) +
           field(odds::holdText(places, entry.deal.held)) +
           field(odds::holdText(places, notes.best)) + field(notes.cost.decimals(4)) +
           field('"' + notes.decision + '"') +
           field(chosenNames[static_cast<std::size_t>(entry.chosen)]) +
           field(standardNames[static_cast<std::size_t>(entry.standard)]) + '\n';
}

// What has to come before the next line: the names of the fields in a new file, an end to a line
// that was cut off.
std::string missingBefore(const File& file)
{
    struct stat facts {
    };
    if (::fstat(file.number(), &facts) != 0 || facts.st_size == 0)
        return std::string(header) + '\n';
    char last = '\n';
    if (::pread(file.number(), &last, 1, facts.st_size - 1) == 1 && last != '\n')
        return "\n";
    return {};
}

} // namespace

Journal readJournal(const std::filesystem::path& path)
{
    Journal journal;
    const File file(path, O_RDONLY | O_CLOEXEC);
    if (!file.isOpen()) {
        journal.trouble = errno == ENOENT ? std::error_code() : lastError();
        return journal;
    }
    std::string text(readAtOnce, '\0');
    std::size_t kept = 0; // of the line that the last piece began
    while (true) {
        if (kept == text.size())
            text.resize(2 * kept);
        const ssize_t count = ::read(file.number(), text.data() + kept, text.size() - kept);
        if (count < 0)
            journal.trouble = lastError();
        std::string_view left(text.data(),
                              kept + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        for (auto end = left.find('\n'); end != std::string_view::npos; end = left.find('\n')) {
            takeLine(journal, left.substr(0, end));
            left.remove_prefix(end + 1);
        }
        if (count <= 0) {
            takeLine(journal, left);
            return journal;
        }
        kept = left.size();
        std::ranges::copy(left, text.begin());
    }
}

std::error_code appendToJournal(const std::filesystem::path& path, const JournalEntry& entry,
                                const JournalNotes& notes)
{
    std::error_code trouble;
    std::filesystem::create_directories(path.parent_path(), trouble);
    const File file(path, O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC);
    if (!file.isOpen())
        return lastError();
    const std::string text = missingBefore(file) + lineOf(entry, notes);
    const ssize_t written = ::write(file.number(), text.data(), text.size());
    if (written < 0)
        return lastError();
    if (static_cast<std::size_t>(written) < text.size())
        return std::make_error_code(std::errc::no_space_on_device);
    return {};
}

} // namespace quillet::practice
