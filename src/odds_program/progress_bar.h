#pragma once

#include <chrono>

namespace quillet::odds_program
{

// A bar on the terminal for work that takes longer than a second. Nothing when standard error is
// no terminal. The bar goes away with the object.
class ProgressBar
{
public:
    ProgressBar() = default;
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar();

    void show(double share); // of the work is done

private:
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    int m_percent = -1; // shown
};

} // namespace quillet::odds_program
