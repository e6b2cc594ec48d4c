#pragma once

#include <atomic>
#include <thread>
#include <vector>

// Background load: N busy threads during the lifetime of the object.
class BusyLoad
{
public:
    explicit BusyLoad(long threads)
    {
        for (long i = 0; i < threads; ++i)
            m_threads.emplace_back([this] {
                while (!m_enough.load(std::memory_order_relaxed)) {
                }
            });
    }
    ~BusyLoad() { m_enough = true; }

    BusyLoad(const BusyLoad&) = delete;
    BusyLoad& operator=(const BusyLoad&) = delete;

private:
    std::atomic<bool> m_enough = false;
    std::vector<std::jthread> m_threads; // joined before the flag is destroyed
};
