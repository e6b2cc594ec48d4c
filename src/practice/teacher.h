#pragma once

#include "practice/journal.h"
#include "practice/questions.h"
#include "practice/record.h"
#include "practice/verdict.h"

#include <memory>
#include <vector>

namespace quillet::practice
{

// Asks one player, judges the answers and keeps what they show.
class Teacher
{
public:
    // Goes through the earlier answers, which takes a second for a million.
    Teacher(std::shared_ptr<const Course> course, Standard standard, JudgedBy judgedBy,
            std::vector<JournalEntry> past, std::uint64_t seed);

    [[nodiscard]] const Course& course() const { return *m_course; }
    [[nodiscard]] const std::shared_ptr<const Course>& sharedCourse() const { return m_course; }
    [[nodiscard]] const Record& record() const { return m_record; }
    [[nodiscard]] const std::vector<Answer>& answers() const { return m_answers; }
    [[nodiscard]] const std::vector<JournalEntry>& entries() const { return m_entries; }

    [[nodiscard]] Questions& questions() { return m_questions; }
    [[nodiscard]] Question next() { return m_questions.next(m_record); }

    // The hold is that of the cards as they were asked. The last of the entries is this answer.
    Verdict answer(const Question& question, odds::Hold held, std::chrono::sys_seconds time);

private:
    std::shared_ptr<const Course> m_course;
    Standard m_standard;
    JudgedBy m_judgedBy;
    Record m_record;
    std::vector<Answer> m_answers;
    std::vector<JournalEntry> m_entries;
    Questions m_questions;
};

[[nodiscard]] JournalNotes notesOn(const Course& course, const Verdict& verdict);

} // namespace quillet::practice
