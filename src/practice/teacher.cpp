#include "practice/teacher.h"

#include <utility>

namespace quillet::practice
{

Teacher::Teacher(std::shared_ptr<const Course> course, Standard standard, JudgedBy judgedBy,
                 std::vector<JournalEntry> past, std::uint64_t seed)
    : m_course(std::move(course)), m_standard(std::move(standard)), m_judgedBy(judgedBy),
      m_record(m_course->decisions), m_entries(std::move(past)),
      m_questions(m_course->decisions, seed)
{
    m_answers.reserve(m_entries.size());
    for (const JournalEntry& entry : m_entries) {
        const odds::DealtHand hand(m_course->heldCards, entry.deal.places);
        m_answers.push_back(answerTo(m_course->decisions, hand, entry.deal.held));
        m_record.add(m_answers.back().decision, m_standard.judge(hand, entry.deal.held).right);
    }
}

Verdict Teacher::answer(const Question& question, odds::Hold held, std::chrono::sys_seconds time)
{
    const odds::HeldDeal deal = odds::heldDeal(question.cards, held);
    Verdict verdict = verdictOn(*m_course, m_standard, deal);
    m_questions.hasBeenAsked({question.cards, verdict.answer.decision, question.chosen});
    m_record.add(verdict.answer.decision, verdict.judgement.right);
    m_answers.push_back(verdict.answer);
    m_entries.push_back({time, deal, question.chosen, m_judgedBy});
    return verdict;
}

JournalNotes notesOn(const Course& course, const Verdict& verdict)
{
    return {verdict.judgement.best, verdict.judgement.cost,
            course.decisions[verdict.answer.decision].name()};
}

} // namespace quillet::practice
