#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>

namespace quillet::test
{

// A clock on which time passes in pauses only, at once. Whatever falls due meanwhile is done, as a
// real pause handles events.
class VirtualClock
{
public:
    ~VirtualClock() { EXPECT_TRUE(m_due.empty()) << "input whose moment never came"; }

    // Does this when so many milliseconds have passed from now on.
    void in(int milliseconds, std::function<void()> act)
    {
        m_due.emplace(now + milliseconds, std::move(act));
    }

    // Passes so many milliseconds, unless the pause is cut short by what is done in it.
    void pass(
        int milliseconds, const std::function<bool()>& cutShort,
        const std::function<void()>& afterEach = [] {})
    {
        const std::int64_t until = now + milliseconds;
        while (!m_due.empty() && m_due.begin()->first <= until && !cutShort()) {
            const auto next = m_due.extract(m_due.begin());
            now = std::max(now, next.key());
            next.mapped()();
            afterEach();
        }
        if (!cutShort())
            now = std::max(now, until);
    }

    std::int64_t now = 0; // milliseconds

private:
    std::multimap<std::int64_t, std::function<void()>> m_due;
};

} // namespace quillet::test
