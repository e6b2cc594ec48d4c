#pragma once

#include "engine/counters.h"
#include "engine/deck.h"
#include "engine/hand_coach.h"
#include "engine/hand_state.h"
#include "engine/hand_table.h"
#include "engine/pay_table.h"
#include "engine/preferences.h"
#include "faults/run_time_error.h"

#include <optional>

namespace quillet
{

// Runs the game: what happens in which order, from a new table to the paid hand. How it looks
// is the table's affair. The referenced objects outlive the controller.
class HandController
{
public:
    HandController(HandState& state, Counters& counters, const Preferences& preferences,
                   HandTable& table, HandCoach& coach, RandomSource& random, ErrorBox& errorBox);

    // Sets up the table, fades the status text in and deals. A hand that is running is
    // abandoned, a win that is being counted up is credited at once. Called in the middle of a
    // pause, it starts when the interrupted sequence has ended, which it does without delay.
    void initPokerScreen();

    // A click on a deck picture, 0..3; 3 is the program's own call, which deals.
    void picDeal_Click(std::int16_t Index);

    // Both toggle the hold of slot Index, 0..4, while a hand waits for the draw.
    void picPoker_MouseDown(std::int16_t Index);
    void picPoker_DblClick(std::int16_t Index);

    // Deals, or judges the hold and draws.
    void showPokerHand();

    // The window is closing: no sequence goes on after its pause, none starts.
    void endGame();

private:
    // Runs a sequence, and after the outermost one the new game that was asked for in one of its
    // pauses: games thus never pile up on the stack. The body throws nothing.
    template <typename Body>
    void runSequence(Body body);
    void runNewGame();
    void clickDeck(std::int16_t index);
    void toggleHold(std::int16_t index);
    void dealOrDraw();
    void deal(const std::array<int, 5>& order, bool cardsWereShowing);
    void draw(bool cardsWereShowing);
    void dealCardTo(int slot);
    [[nodiscard]] bool flyReplacements(std::uint32_t epoch, const std::array<bool, 5>& replaced);
    [[nodiscard]] bool pay(std::uint32_t epoch);
    void finishPaying();
    void dealNextHandByItself(std::uint32_t epoch);
    // A deal or an error that overtakes the fade leaves the status text in its last colour.
    void endFade();
    void charge();
    void addCredits(std::int16_t credits);
    void abandonHand();
    void recover();
    // Whether the sequence that noted this epoch may go on.
    [[nodiscard]] bool pause(std::uint32_t epoch, std::int32_t delayTime);

    HandState& m_state;
    Counters& m_counters;
    const Preferences& m_preferences;
    HandTable& m_table;
    HandCoach& m_coach;
    RandomSource& m_random;
    ErrorBox& m_errorBox;

    int m_sequencesRunning = 0;
    bool m_newGameWanted = false;
    bool m_firstDealComing = false; // a new game is about to deal by itself
    bool m_ended = false;
    std::optional<std::int16_t> m_payTarget; // the total when the win is counted up, in credits
};

} // namespace quillet
