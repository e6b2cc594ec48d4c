#include "odds/hand_text.h"
#include "practice/journal.h"
#include "tests/kit/file_text.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillet::practice::test
{

namespace
{

using namespace std::chrono_literals;
using quillet::test::fileText;

constexpr std::string_view first = "time,deal,held,best,cost,decision,chosen,standard\n";
constexpr std::string_view line =
    "2026-03-01T23:04:05Z,2c Tc 2d Jd Kh,2c 2d Kh,2c 2d,0.7424,\"10 and face, suited over x\","
    "random,trainer\n";

class JournalFile : public testing::Test
{
protected:
    JournalFile() { std::filesystem::remove_all(folder); }
    ~JournalFile() override { std::filesystem::remove_all(folder); }

    void write(const std::string& text) const
    {
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << text;
    }
    [[nodiscard]] std::error_code append() const
    {
        const auto deal = odds::heldDeal(odds::parseHand("Kh 2d Tc Jd 2c"), 0b10011);
        return appendToJournal(path,
                               {std::chrono::sys_days(2026y / 3 / 1) + 23h + 4min + 5s, deal,
                                Chosen::random, JudgedBy::trainer},
                               {0b00101, {7424, 10000}, "10 and face, suited over x"});
    }

    const std::filesystem::path folder =
        testing::TempDir() + "quillet-journal-" + std::to_string(::getpid());
    const std::filesystem::path path = folder / "state" / "practice.csv";
};

} // namespace

TEST_F(JournalFile, isReadAsItWasWritten)
{
    EXPECT_EQ(readJournal(path).trouble, std::error_code()) << "none yet";
    EXPECT_NE(readJournal("/").trouble, std::error_code()) << "a folder";
    ASSERT_EQ(append(), std::error_code());
    EXPECT_EQ(fileText(path), std::string(first).append(line));
    const Journal journal = readJournal(path);
    ASSERT_EQ(journal.entries.size(), 1U);
    const JournalEntry& entry = journal.entries.back();
    EXPECT_EQ(entry.time, std::chrono::sys_days(2026y / 3 / 1) + 23h + 4min + 5s);
    EXPECT_EQ(odds::holdText(entry.deal.places, entry.deal.held), "2c 2d Kh");
    EXPECT_EQ(entry.chosen, Chosen::random);
    EXPECT_EQ(entry.standard, JudgedBy::trainer);
}

TEST_F(JournalFile, keepsLinesThatItCannotRead)
{
    const auto changed = [](std::string_view from, std::string_view to) {
        std::string text(line);
        return text.replace(text.find(from), from.size(), to);
    };
    const std::string bad = changed("03-01", "02-30") + changed("Tc", "Xc") + changed("Tc", "2c") +
                            changed("2c 2d Kh,", "2c 3d,") + changed("random", "often") +
                            changed(",random", "") + changed("trainer", "trainer,") + "\x01\xff\n";
    const std::string good = changed("\n", "\r\n") + changed("2c 2d Kh,", "nothing,");
    const std::string cutOff(line.substr(0, 50));
    write(std::string(first) + bad + good + cutOff);
    ASSERT_EQ(append(), std::error_code());
    const Journal journal = readJournal(path);
    EXPECT_EQ(journal.entries.size(), 3U);
    EXPECT_EQ(journal.unreadable, 9U);
    EXPECT_EQ(fileText(path), std::string(first) + bad + good + cutOff + '\n' + std::string(line));
}

TEST_F(JournalFile, isWrittenByTwoProgramsAtATime)
{
    constexpr int lines = 6000; // in more than one piece when they are read
    write("");
    const pid_t other = ::fork();
    for (int i = 0; i < lines; ++i) {
        if (append() && other == 0)
            ::_exit(1);
    }
    if (other == 0)
        ::_exit(0);
    int status = -1;
    ::waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
    const Journal journal = readJournal(path);
    EXPECT_EQ(journal.entries.size(), 2U * lines);
    EXPECT_EQ(journal.unreadable, 0U);
}

TEST_F(JournalFile, tellsOfAFullDiskAndLosesNoEarlierLine)
{
    EXPECT_EQ(appendToJournal("/dev/full", {}, {}), std::errc::no_space_on_device);
    ASSERT_EQ(append(), std::error_code());
    // A file that may grow by half a line is like a disk with that much space.
    const auto size = std::filesystem::file_size(path);
    const rlimit before{RLIM_INFINITY, RLIM_INFINITY};
    const rlimit full{size + 40, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &full);
    const std::error_code trouble = append();
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(trouble, std::errc::no_space_on_device);
    ASSERT_EQ(append(), std::error_code());
    const Journal journal = readJournal(path);
    EXPECT_EQ(journal.entries.size(), 2U);
    EXPECT_EQ(journal.unreadable, 1U);
}

} // namespace quillet::practice::test
