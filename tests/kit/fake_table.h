#pragma once

#include "coach/hold_coach.h"
#include "engine/hand_controller.h"
#include "tests/kit/card_text.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace quillet::test
{

// A random source whose next deck is told beforehand: the ten cards of the next hand, the dealt
// ones first. Works through the shuffle itself, by answering the exchanges that bring them there.
class StackedDeck : public RandomSource
{
public:
    // Nine to ten cards as text, "As Ks ...": five dealt, then the replacements of slots 0..4.
    void stack(std::string_view tenCards);

    void reseed() override { ++reseeds; }
    double next() override;

    int reseeds = 0;

private:
    std::vector<int> m_partners; // for the exchanges to come
    std::size_t m_next = 0;
};

// A table without pictures: it logs what is done to it. Its pauses move a virtual clock and fire
// the input that falls due meanwhile, as the real ones handle events.
class FakeTable : public HandTable, public CueOutput, public ErrorBox
{
public:
    explicit FakeTable(HandState& handState) : state(handState) {}
    ~FakeTable() override { EXPECT_TRUE(m_due.empty()) << "input whose moment never came"; }

    // Runs the act when the virtual clock has come so many milliseconds further.
    void in(int milliseconds, std::function<void()> act);
    [[nodiscard]] int now() const { return m_now; }
    [[nodiscard]] int count(std::string_view entry) const;
    [[nodiscard]] std::string logged() const; // entries, one blank between

    void layOutGame() override;
    void fadeStatusText(int step) override { fadeStep = step; }
    void placeFlyingCard() override {}
    void paintFlyingCard(std::int32_t backNumber) override { flyingBack = backNumber; }
    void paintDeckIntoTable() override {}
    void flyCardTo(int slot) override;
    void endFlights() override {}
    bool cardShowing(int slot) const override { return showing.at(std::size_t(slot)); }
    void hideCard(int slot) override;
    void showBack(int slot) override { showing.at(std::size_t(slot)) = true; }
    void paintFace(int slot, std::int16_t cardId) override;
    void layOverlay(int slot) override;
    void refreshCard(int) override {}
    void showHoldOutline(int slot, bool shown) override { outlines.at(std::size_t(slot)) = shown; }
    void showCounters(const Counters& counters) override;
    void recover() override {}
    void shortDelay(std::int32_t delayTime) override;

    bool FileExists(const std::string&) override { return true; }
    void sndPlaySound(const std::string& path) override;
    void showError(const std::string& text) override { errors.push_back(text); }

    HandState& state;
    std::vector<std::string> log;
    std::vector<std::string> errors;
    std::array<bool, 5> showing{};
    std::array<bool, 5> outlines{};
    std::int32_t flyingBack = 0;
    int fadeStep = 0;

private:
    int m_now = 0;
    std::multimap<int, std::function<void()>> m_due;
};

// A whole game on a fake table: defaults are automatic dealing off, sounds on, back 65.
struct Game {
    Game();

    // Deals these ten cards, see StackedDeck, by a click on the deck.
    void deal(std::string_view tenCards);
    // Holds the slots whose digits (1..5) are named and clicks the deck.
    void draw(std::string_view slots);
    void click() { controller.picDeal_Click(0); }

    HandState state;
    Counters counters;
    Preferences preferences;
    StrategyChart chart;
    StackedDeck random;
    FakeTable table{state};
    HoldCoach coach{state, preferences, chart, table, "/quillet"};
    HandController controller{state, counters, preferences, table, coach, random, table};
};

} // namespace quillet::test
