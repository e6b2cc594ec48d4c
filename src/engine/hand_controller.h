#pragma once

#include "engine/card_table.h"
#include "engine/counters.h"
#include "engine/cue_output.h"
#include "engine/deck.h"
#include "engine/game_screen.h"
#include "engine/hand_coach.h"
#include "engine/hand_state.h"
#include "faults/guarded.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace quillet
{

// The ports of a game.
struct GamePorts {
    CardTable& table;
    GameScreen& screen;
    HandCoach& coach;
    CueOutput& cues;
    std::function<PokerDeck()> nextDeck;
    ErrorBox errorBox;
};

// Runs the game: what happens in which order, from a new table to the paid hand. It alone writes
// the hand's state and the counters.
class HandController
{
public:
    // dealsByItself returns whether the player wants automatic dealing, which may change at any
    // time.
    HandController(HandState& state, Counters& counters, std::function<bool()> dealsByItself,
                   GamePorts ports);

    // Sets up the table, fades the status text in and deals. A hand that is running is
    // abandoned, a win that is being counted up is credited at once. Called in the middle of a
    // pause, it starts when the interrupted sequence has ended, which it does without delay.
    void initPokerScreen();

    // A click on a deck picture, 0..3; 3 is the program's own call, which deals.
    void picDeal_Click(std::int16_t Index);

    // Both toggle the hold of slot Index, 0..4, while a hand waits for the draw.
    void picPoker_MouseDown(std::int16_t Index) { toggleHold(Index); }
    void picPoker_DblClick(std::int16_t Index) { toggleHold(Index); }

    // Deals, or judges the hold and draws.
    void showPokerHand();

    // The window is closing: no sequence goes on after its pause, none starts.
    void endGame()
    {
        ++m_state.epoch;
        m_next = Next::end;
    }

private:
    // Runs a sequence. After the outermost one it starts the new game, if one was requested during
    // a pause, so games never nest on the stack.
    template <typename Body>
    void runSequence(Body body);
    void runNewGame();
    void clickDeck(std::int16_t index);
    void toggleHold(std::int16_t index);
    void deal();
    void draw();
    void refuseHold();
    void dealCardTo(Slot slot);
    [[nodiscard]] bool flyReplacements(std::uint32_t epoch);
    [[nodiscard]] bool pay(std::uint32_t epoch);
    void finishPaying();
    void dealNextHandByItself(std::uint32_t epoch);
    // Gives the status text its final colour if a deal or an error interrupts the fade.
    void endFade();
    void charge();
    void addCredits(std::int16_t credits);
    // Runs the body of a procedure. An error is shown, and the table recovers from it.
    template <typename Body>
    void recovering(const char* procedure, Body body);
    void recover();
    // No hand is on the table, and running sequences end after their pauses.
    void clearHand();
    // Whether the sequence that noted this epoch may go on.
    [[nodiscard]] bool pause(std::uint32_t epoch, std::int32_t delayTime);

    HandState& m_state;
    Counters& m_counters;
    std::function<bool()> m_dealsByItself;
    GamePorts m_ports;

    // The legal values of what follows, by what the outermost sequence is doing:
    //                     sequences  next             firstDealComing  payTarget  finishedHand
    //   no sequence       0          nothing          false            empty      any
    //   fading, waiting   1 or more  any              true             empty      not the epoch
    //   dealing, drawing  1 or more  any              false            empty      not the epoch
    //   paying            1 or more  any              false            set        not the epoch
    //   hand finished     1 or more  any              false            empty      the epoch
    // A sequence that runs in the pause of another raises the count. Once `next` is newGame or end,
    // the epoch has changed, and the sequences that are running end after their pauses. After end
    // nothing runs, and the others no longer matter.
    enum class Next { nothing, newGame, end };
    Next m_next = Next::nothing;
    int m_sequencesRunning = 0;
    bool m_firstDealComing = false;              // automatically, at the start of a game
    std::optional<std::uint32_t> m_finishedHand; // the epoch of the last hand that was paid
    std::optional<std::int16_t> m_payTarget;     // the total after the win, in credits
};

} // namespace quillet
