#include "practice_window/return_history.h"

#include <algorithm>
#include <utility>

namespace quillet::practice_window
{

namespace
{

constexpr std::size_t recentAnswers = 1000; // show how the player plays now
constexpr std::size_t pointsAtStart = 24;
constexpr std::size_t leastSpacing = 10;

} // namespace

ReturnHistory::ReturnHistory(QObject* parent) : QObject(parent)
{
    m_thread.setMaxThreadCount(1);
}

// Only the estimate that is being made is waited for.
ReturnHistory::~ReturnHistory()
{
    m_thread.clear();
}

void ReturnHistory::begin(std::shared_ptr<const practice::Course> course,
                          const std::vector<practice::Answer>& answers)
{
    m_thread.clear();
    ++m_generation;
    m_course = std::move(course);
    m_points.clear();
    m_spacing = std::max(leastSpacing, answers.size() / pointsAtStart);
    // The present first, as that is what a player looks at.
    if (!answers.empty())
        estimate(answers, answers.size());
    for (std::size_t count = m_spacing; count < answers.size(); count += m_spacing)
        estimate(answers, count);
    emit changed();
}

void ReturnHistory::follow(const std::vector<practice::Answer>& answers)
{
    estimate(answers, answers.size());
}

void ReturnHistory::estimate(const std::vector<practice::Answer>& answers, std::size_t count)
{
    const auto end = answers.begin() + static_cast<std::ptrdiff_t>(count);
    const auto recent = static_cast<std::ptrdiff_t>(std::min(count, recentAnswers));
    m_thread.start([this, course = m_course, generation = m_generation, count,
                    part = std::vector<practice::Answer>(end - recent, end)] {
        const ReturnPoint point{count, practice::estimateReturn(course->decisions, part)};
        QMetaObject::invokeMethod(
            this, [this, generation, point] { take(generation, point); }, Qt::QueuedConnection);
    });
}

void ReturnHistory::take(int generation, const ReturnPoint& point)
{
    if (generation != m_generation)
        return;
    // The present moves on, but leaves a point now and then.
    const auto isKept = [this](const ReturnPoint& each) { return each.answers % m_spacing == 0; };
    if (!m_points.empty() && point.answers > m_points.back().answers && !isKept(m_points.back()))
        m_points.pop_back();
    m_points.insert(std::ranges::upper_bound(m_points, point.answers, {}, &ReturnPoint::answers),
                    point);
    emit changed();
}

} // namespace quillet::practice_window
