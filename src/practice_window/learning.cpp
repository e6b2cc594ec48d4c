#include "practice_window/learning.h"

#include <utility>

namespace quillet::practice_window
{

namespace
{

using practice::JournalEntry;

std::unique_ptr<practice::Teacher> teacherOf(const charts::Chart& rules, const Syllabus& syllabus,
                                             std::vector<JournalEntry> past)
{
    const auto course =
        std::make_shared<const practice::Course>(odds::parsePays(syllabus.pays), rules);
    practice::Standard standard =
        syllabus.chart.empty() ? practice::Standard() : practice::Standard(syllabus.chart);
    return std::make_unique<practice::Teacher>(course, std::move(standard), syllabus.judgedBy,
                                               std::move(past), syllabus.seed);
}

} // namespace

std::future<Learned> learn(const Surroundings& surroundings, Syllabus syllabus,
                           std::optional<std::vector<JournalEntry>> past,
                           std::function<void()> done)
{
    return std::async(std::launch::async, [rules = surroundings.rules, path = surroundings.journal,
                                           syllabus = std::move(syllabus), past = std::move(past),
                                           done = std::move(done)]() mutable {
        practice::Journal journal;
        if (past)
            journal.entries = std::move(*past);
        else
            journal = practice::readJournal(path);
        Learned result{teacherOf(rules, syllabus, std::move(journal.entries)), journal.unreadable,
                       journal.trouble};
        done();
        return result;
    });
}

} // namespace quillet::practice_window
