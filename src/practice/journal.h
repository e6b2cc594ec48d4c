#pragma once

#include "practice/answer.h"

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace quillet::practice
{

// How a question was chosen.
enum class Chosen : std::uint8_t { weighted, random, exam };

// What answers were judged by.
enum class JudgedBy : std::uint8_t { perfect, trainer, chart };

// One answer as the journal keeps it. All else follows from the deal.
struct JournalEntry {
    std::chrono::sys_seconds time;
    odds::HeldDeal deal;
    Chosen chosen = Chosen::weighted;
    JudgedBy standard = JudgedBy::perfect;
};

// What is written for readers beside that.
struct JournalNotes {
    odds::Hold best = 0; // of the cards in ascending order
    odds::Fraction cost;
    std::string decision;
};

struct Journal {
    std::vector<JournalEntry> entries;
    std::size_t unreadable = 0; // lines skipped
    std::error_code trouble;    // why the file could not be read to its end
};

// A file that does not exist is an empty journal.
[[nodiscard]] Journal readJournal(const std::filesystem::path& path);

// Appends one line in one write, so that programs that do so at the same time lose nothing. Makes
// the file and its folder where they are missing. A line that does not fit on the disk leaves all
// lines before it as they are.
[[nodiscard]] std::error_code appendToJournal(const std::filesystem::path& path,
                                              const JournalEntry& entry, const JournalNotes& notes);

} // namespace quillet::practice
