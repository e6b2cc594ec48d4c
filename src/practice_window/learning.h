#pragma once

#include "practice/teacher.h"
#include "practice_window/surroundings.h"

#include <future>
#include <memory>
#include <optional>

namespace quillet::practice_window
{

// A teacher who knows the pay table and what the player has answered before.
struct Learned {
    std::unique_ptr<practice::Teacher> teacher;
    std::size_t unreadable = 0; // lines of the journal
    std::error_code trouble;    // with reading it
};

// What the player has chosen.
struct Syllabus {
    std::string pays;
    practice::JudgedBy judgedBy = practice::JudgedBy::perfect;
    charts::Chart chart; // empty for perfect play
    std::uint64_t seed = 0;
};

// Makes a teacher on a thread, which calls `done` at its end. Without earlier answers, reads them
// from the journal.
[[nodiscard]] std::future<Learned> learn(const Surroundings& surroundings, Syllabus syllabus,
                                         std::optional<std::vector<practice::JournalEntry>> past,
                                         std::function<void()> done);

} // namespace quillet::practice_window
