#pragma once

#include "practice/course.h"
#include "practice/estimate.h"

#include <QObject>
#include <QThreadPool>

#include <memory>
#include <vector>

namespace quillet::practice_window
{

// The return as it was estimated after so many answers.
struct ReturnPoint {
    std::size_t answers = 0;
    practice::Estimate estimate;
};

// Estimates the return over time, on a thread behind the window.
class ReturnHistory : public QObject
{
    Q_OBJECT

public:
    explicit ReturnHistory(QObject* parent = nullptr);
    ~ReturnHistory() override;

    // Forgets all and begins with these answers.
    void begin(std::shared_ptr<const practice::Course> course,
               const std::vector<practice::Answer>& answers);
    // There is one answer more.
    void follow(const std::vector<practice::Answer>& answers);

    // The last is the present.
    [[nodiscard]] const std::vector<ReturnPoint>& points() const { return m_points; }
    [[nodiscard]] const practice::Course* course() const { return m_course.get(); }

signals:
    void changed();

private:
    void estimate(const std::vector<practice::Answer>& answers, std::size_t count);
    void take(int generation, const ReturnPoint& point);

    std::shared_ptr<const practice::Course> m_course;
    std::vector<ReturnPoint> m_points;
    int m_generation = 0; // raised by begin()
    std::size_t m_spacing = 0;
    QThreadPool m_thread;
};

} // namespace quillet::practice_window
