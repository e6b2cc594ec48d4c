#pragma once

#include "coach/hold_coach.h"
#include "engine/hand_controller.h"
#include "tests/kit/stand_ins.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet::test
{

// Everything seen and heard, in order.
class GameLog
{
public:
    void add(std::string entry) { m_entries.push_back(std::move(entry)); }
    void clear() { m_entries.clear(); }
    [[nodiscard]] int count(std::string_view entry) const
    {
        return static_cast<int>(std::ranges::count(m_entries, entry));
    }
    // The entries, with blanks between them.
    [[nodiscard]] std::string text() const
    {
        std::string all;
        for (const std::string& entry : m_entries)
            all += (all.empty() ? "" : " ") + entry;
        return all;
    }

private:
    std::vector<std::string> m_entries;
};

// A table without pictures, its screen, and the cues. Pauses pass on the virtual clock.
class LoggedTable : public CardTable, public GameScreen, public CueOutput
{
public:
    LoggedTable(GameLog& log, VirtualClock& clock, const HandState& state)
        : m_log(log), m_clock(clock), m_state(state)
    {
    }

    [[nodiscard]] bool isCardShowing(Slot slot) const override { return m_showing[slot]; }
    void takeAway(Slot slot) override
    {
        if (std::exchange(m_showing[slot], false))
            m_log.add("hide" + std::to_string(slot));
    }
    void flyCardTo(Slot slot) override
    {
        m_log.add("fly" + std::to_string(slot));
        m_showing[slot] = true;
    }
    void showFace(Slot slot, std::int16_t, bool finished) override
    {
        m_log.add((finished ? "hatch" : "face") + std::to_string(slot));
    }
    void showHold(Slot slot, bool held) override { holds[slot] = held; }
    void showDeck() override {}
    void recover() override {}

    void layOutGame() override { m_log.add("layOut"); }
    void fadeStatusText(int step) override { fadeStep = step; }
    void showCounters(const Counters& counters) override
    {
        m_log.add("total" + std::to_string(counters.total));
    }
    void shortDelay(std::int32_t delayTime) override
    {
        if (delayTime != 20)
            m_log.add("pause" + std::to_string(delayTime));
        const std::uint32_t epoch = m_state.epoch;
        m_clock.pass(delayTime, [this, epoch] { return m_state.epoch != epoch; });
    }
    void play(Cue cue) override
    {
        static constexpr std::array names{"deal",     "wrong",     "wrongOne", "wrongTwo",
                                          "smallWin", "mediumWin", "bigWin"};
        m_log.add(names.at(static_cast<std::size_t>(cue)));
    }

    std::array<bool, 5> holds{};
    int fadeStep = 0;

private:
    GameLog& m_log;
    VirtualClock& m_clock;
    const HandState& m_state;
    std::array<bool, 5> m_showing{};
};

// A whole game without a window. Dealing is by hand, and the best play is not shown.
struct Game {
    // Deals these ten cards, see StackedDeck, by a click on the deck.
    void deal(std::string_view tenCards)
    {
        decks.stack(tenCards);
        click();
    }
    // Holds these slots (digits 1 to 5) and clicks the deck.
    void draw(std::string_view slots)
    {
        for (const char digit : slots)
            controller.picPoker_MouseDown(static_cast<std::int16_t>(digit - '1'));
        click();
    }
    void click() { controller.picDeal_Click(0); }
    void in(int milliseconds, std::function<void()> act) { clock.in(milliseconds, std::move(act)); }

    HandState state;
    Counters counters;
    bool prfPokerAutoDeal = false, prfShowPokerPlay = false;
    StrategyChart chart;
    StackedDeck decks;
    VirtualClock clock;
    GameLog log;
    LoggedTable table{log, clock, state};
    RecordedErrors errors;
    HoldCoach coach{chart, [this] { return prfShowPokerPlay; }};
    HandController controller{
        state,
        counters,
        [this] { return prfPokerAutoDeal; },
        {table, table, coach, table, [this] { return decks(); }, std::ref(errors)}};
};

} // namespace quillet::test
