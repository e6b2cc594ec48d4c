#pragma once

#include <chrono>

namespace quillet::odds_program
{

// A progress bar on standard error, for work that takes longer than a second. It is shown only on
// terminals, and the destructor removes it.
class ProgressBar
{
public:
    ProgressBar() = default;
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar();

    void operator()(double share); // see odds::WorkProgress

private:
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    int m_percent = -1; // as shown; -1: not shown
};

} // namespace quillet::odds_program
