#include "odds_program/progress_bar.h"

#include <iostream>
#include <string>
#include <unistd.h>

namespace quillet::odds_program
{

namespace
{

constexpr int width = 40;

} // namespace

ProgressBar::~ProgressBar()
{
    if (m_percent >= 0)
        std::cerr << '\r' << std::string(width + 8, ' ') << '\r' << std::flush;
}

void ProgressBar::operator()(double share)
{
    const int percent = static_cast<int>(100 * share);
    if (percent == m_percent || isatty(STDERR_FILENO) == 0 ||
        std::chrono::steady_clock::now() - m_start < std::chrono::seconds(1))
        return;
    m_percent = percent;
    std::string bar(width, '.');
    bar.replace(0, static_cast<std::size_t>(percent * width / 100),
                static_cast<std::size_t>(percent * width / 100), '#');
    std::cerr << "\r[" << bar << "] " << percent << " %" << std::flush;
}

} // namespace quillet::odds_program
