#pragma once

#include "coach/hold_coach.h"
#include "engine/hand_controller.h"
#include "tests/kit/recorded_errors.h"
#include "tests/kit/stacked_deck.h"
#include "tests/kit/virtual_clock.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::test
{

// What was seen and heard, in its order.
class GameLog
{
public:
    void add(std::string entry) { m_entries.push_back(std::move(entry)); }
    void clear() { m_entries.clear(); }
    [[nodiscard]] int count(std::string_view entry) const;
    [[nodiscard]] std::string text() const; // entries, one blank between

private:
    std::vector<std::string> m_entries;
};

// A table without pictures.
class LoggedTable : public CardTable
{
public:
    explicit LoggedTable(GameLog& log) : m_log(log) {}

    bool isCardShowing(Slot slot) const override { return m_showing[slot]; }
    void takeAway(Slot slot) override;
    void flyCardTo(Slot slot) override;
    void showFace(Slot slot, std::int16_t cardId, bool finished) override;
    void showHold(Slot slot, bool held) override { holds[slot] = held; }
    void showDeck() override {}
    void recover() override {}

    std::array<bool, 5> holds{};

private:
    GameLog& m_log;
    std::array<bool, 5> m_showing{};
};

// A screen whose pauses pass on the virtual clock.
class LoggedScreen : public GameScreen
{
public:
    LoggedScreen(GameLog& log, VirtualClock& clock, const HandState& state)
        : m_log(log), m_clock(clock), m_state(state)
    {
    }

    void layOutGame() override { m_log.add("layOut"); }
    void fadeStatusText(int step) override { fadeStep = step; }
    void showCounters(const Counters& counters) override;
    void shortDelay(std::int32_t delayTime) override;

    int fadeStep = 0;

private:
    GameLog& m_log;
    VirtualClock& m_clock;
    const HandState& m_state;
};

class LoggedCues : public CueOutput
{
public:
    explicit LoggedCues(GameLog& log) : m_log(log) {}
    void playSoundCue(std::string_view fileName) override;

private:
    GameLog& m_log;
};

// A whole game without a window. Dealing is by hand, and the best play is not shown.
struct Game {
    // Deals these ten cards, see StackedDeck, by a click on the deck.
    void deal(std::string_view tenCards);
    // Holds the slots whose digits (1..5) are named and clicks the deck.
    void draw(std::string_view slots);
    void click() { controller.picDeal_Click(0); }
    void in(int milliseconds, std::function<void()> act) { clock.in(milliseconds, std::move(act)); }

    HandState state;
    Counters counters;
    bool prfPokerAutoDeal = false;
    bool prfShowPokerPlay = false;
    StrategyChart chart;
    StackedDeck decks;
    VirtualClock clock;
    GameLog log;
    LoggedTable table{log};
    LoggedScreen screen{log, clock, state};
    LoggedCues cues{log};
    RecordedErrors errors;
    HoldCoach coach{chart, prfShowPokerPlay};
    HandController controller{
        state, counters, prfPokerAutoDeal, {table, screen, coach, cues, decks, errors}};
};

} // namespace quillet::test
