#include "engine/hand_controller.h"

#include "engine/hand_evaluation.h"
#include "engine/pace.h"
#include "engine/pay_table.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace quillet
{

namespace
{

constexpr std::int16_t programsOwnCall = 3;

// Counts a sequence while it runs, even if an exception ends it.
struct RunningSequence {
    explicit RunningSequence(int& running) : count(running) { ++count; }
    ~RunningSequence() { --count; }
    RunningSequence(const RunningSequence&) = delete;

    int& count;
};

} // namespace

HandController::HandController(HandState& state, Counters& counters,
                               std::function<bool()> dealsByItself, GamePorts ports)
    : m_state(state), m_counters(counters), m_dealsByItself(std::move(dealsByItself)),
      m_ports(std::move(ports))
{
}

template <typename Body>
void HandController::runSequence(Body body)
{
    if (m_next == Next::end)
        return;
    const RunningSequence running(m_sequencesRunning);
    body();
    while (m_sequencesRunning == 1 && m_next == Next::newGame) {
        m_next = Next::nothing;
        runNewGame();
    }
}

template <typename Body>
void HandController::recovering(const char* procedure, Body body)
{
    if (!guarded(m_ports.errorBox, procedure, body))
        recover();
}

void HandController::initPokerScreen()
{
    runSequence([this] {
        if (m_payTarget)
            finishPaying();
        clearHand();
        m_next = Next::newGame;
    });
}

void HandController::runNewGame()
{
    const std::uint32_t epoch = m_state.epoch;
    m_firstDealComing = true;
    recovering("initPokerScreen", [&] {
        m_ports.screen.layOutGame();
        m_state.handDealt = false;
        m_state.judgePending = false;
        m_state.holdFlags.fill(false);
        for (int step = 1; step <= pace::fadeSteps; ++step) {
            m_ports.screen.fadeStatusText(step);
            if (!pause(epoch, pace::fadeStep))
                return;
        }
        if (pause(epoch, pace::beforeFirstDeal))
            picDeal_Click(programsOwnCall);
    });
    m_firstDealComing = false;
}

void HandController::picDeal_Click(std::int16_t Index)
{
    runSequence([&] { recovering("picDeal_Click", [&] { clickDeck(Index); }); });
}

void HandController::clickDeck(std::int16_t index)
{
    m_ports.table.showDeck();
    // The requested game deals automatically when the interrupted sequence has ended.
    if (m_next == Next::newGame)
        return;
    // Only automatic dealing needs the pause after a hand, and the player may have switched it off.
    if (m_finishedHand == m_state.epoch && !m_dealsByItself())
        m_state.handBusy = false;
    if (m_state.handBusy)
        return;

    const bool handComesByItself = m_firstDealComing && m_dealsByItself();
    if (index == programsOwnCall || m_state.handDealt || !handComesByItself)
        showPokerHand();
}

void HandController::toggleHold(std::int16_t index)
{
    if (!m_state.handDealt)
        return;
    assert(index >= 0 && index < 5);
    const auto slot = static_cast<Slot>(index);
    m_state.holdFlags[slot] = !m_state.holdFlags[slot];
    m_ports.table.showHold(slot, m_state.holdFlags[slot]);
}

void HandController::showPokerHand()
{
    recovering("showPokerHand", [this] {
        if (m_state.handDealt)
            draw();
        else
            deal();
    });
}

void HandController::deal()
{
    const bool cardsWereShowing = m_ports.table.isCardShowing(0);
    m_state.pokerDeck = m_ports.nextDeck();
    const std::array<Slot, 5> order = dealOrder(m_state.dealReversed);
    m_state.handBusy = true;
    const std::uint32_t epoch = ++m_state.epoch;
    endFade();
    for (const Slot slot : allSlots) {
        m_ports.table.takeAway(slot);
        m_ports.table.showHold(slot, false);
    }
    m_state.holdFlags.fill(false);
    m_ports.coach.resetChartColors();
    if (cardsWereShowing && !pause(epoch, pace::beforeFlights))
        return;
    charge();

    for (const Slot slot : order)
        dealCardTo(slot);
    if (!pause(epoch, pace::beforeDealtFaces))
        return;

    m_state.hand = dealHand(m_state.pokerDeck);
    for (const Slot slot : allSlots)
        m_ports.table.showFace(slot, m_state.hand[slot].cardId, false);
    m_state.handDealt = true;
    m_state.judgePending = true;
    m_state.handCode = EvaluatePokerHand(m_state.hand, false);
    m_ports.coach.showBestPlay(m_state.handCode);
    m_state.handBusy = false;
}

void HandController::dealCardTo(Slot slot)
{
    m_ports.table.flyCardTo(slot);
    m_ports.cues.play(Cue::deal);
}

void HandController::draw()
{
    const bool cardsWereShowing = m_ports.table.isCardShowing(0);
    const std::uint32_t epoch = m_state.epoch;
    m_state.handBusy = true;
    m_state.handDealt = false;
    for (const Slot slot : allSlots)
        m_ports.table.showHold(slot, false);
    if (!m_ports.coach.acceptHold(m_state)) {
        refuseHold();
        return;
    }
    for (const Slot slot : allSlots)
        if (!m_state.holdFlags[slot])
            m_ports.table.takeAway(slot);
    drawReplacements(m_state.hand, m_state.pokerDeck, m_state.holdFlags);
    m_state.handCode = EvaluatePokerHand(m_state.hand, true);

    for (const Slot slot : allSlots)
        if (m_state.holdFlags[slot])
            m_ports.table.showFace(slot, m_state.hand[slot].cardId, true);
    if (cardsWereShowing && !pause(epoch, pace::beforeFlights))
        return;

    if (flyReplacements(epoch) && pay(epoch))
        dealNextHandByItself(epoch);
}

// The hand keeps waiting, and the player chooses the holds again.
void HandController::refuseHold()
{
    const auto cardsHeld = static_cast<std::size_t>(std::ranges::count(m_state.holdFlags, true));
    m_state.handDealt = true;
    m_state.holdFlags.fill(false);
    m_ports.cues.play(pace::wrongCues[cardsHeld]);
    m_state.handBusy = false;
}

bool HandController::flyReplacements(std::uint32_t epoch)
{
    for (const Slot slot : allSlots)
        if (!m_state.holdFlags[slot])
            dealCardTo(slot);
    if (!pause(epoch, pace::beforeDrawnFaces))
        return false;

    for (const Slot slot : allSlots)
        if (!m_state.holdFlags[slot])
            m_ports.table.showFace(slot, m_state.hand[slot].cardId, true);
    return pause(epoch, pace::beforePay);
}

bool HandController::pay(std::uint32_t epoch)
{
    const Payout* payout = payoutFor(m_state.handCode);
    if (payout == nullptr)
        return true;

    m_ports.coach.resetChartColors();
    const std::int16_t target = saturatingAdd(m_counters.total, payout->pays);
    m_payTarget = target;
    m_ports.coach.highlightWinner(m_state.handCode);
    const auto countUp =
        std::ranges::find(pace::countUps, m_state.handCode, &pace::CountUp::playCode);
    assert(countUp != pace::countUps.end());
    while (m_counters.total < target) {
        addCredits(std::min(countUp->step, static_cast<std::int16_t>(target - m_counters.total)));
        m_ports.cues.play(countUp->cue);
        if (!pause(epoch, countUp->pause))
            return false;
    }
    finishPaying();
    return true;
}

void HandController::finishPaying()
{
    m_counters.total = *m_payTarget;
    m_counters.won = saturatingAdd(m_counters.won, 1);
    m_payTarget.reset();
    m_ports.screen.showCounters(m_counters);
}

void HandController::dealNextHandByItself(std::uint32_t epoch)
{
    m_finishedHand = epoch;
    if (m_dealsByItself() && !pause(epoch, pace::beforeNextDeal))
        return;
    m_state.handBusy = false;
    // The player may have switched it off during the pause.
    if (!m_dealsByItself())
        return;
    m_state.judgePending = false;
    picDeal_Click(programsOwnCall);
}

void HandController::endFade()
{
    if (std::exchange(m_firstDealComing, false))
        m_ports.screen.fadeStatusText(pace::fadeSteps);
}

void HandController::charge()
{
    m_counters.hands = saturatingAdd(m_counters.hands, 1);
    addCredits(-wager);
}

void HandController::addCredits(std::int16_t credits)
{
    m_counters.total = saturatingAdd(m_counters.total, credits);
    m_ports.screen.showCounters(m_counters);
}

void HandController::recover()
{
    m_payTarget.reset();
    endFade();
    clearHand();
    m_ports.table.recover();
}

void HandController::clearHand()
{
    ++m_state.epoch;
    m_state.handBusy = false;
    m_state.handDealt = false;
    m_state.holdFlags.fill(false);
}

bool HandController::pause(std::uint32_t epoch, std::int32_t delayTime)
{
    m_ports.screen.shortDelay(delayTime);
    return m_state.epoch == epoch;
}

} // namespace quillet
