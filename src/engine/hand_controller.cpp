#include "engine/hand_controller.h"

#include "engine/hand_evaluation.h"

#include <utility>

namespace quillet
{

namespace
{

constexpr std::int16_t programsOwnCall = 3;
constexpr std::int32_t overlayBack = 53;
constexpr std::string_view dealCue = "\\wavs\\deal.wav";
constexpr int fadeSteps = 25;

} // namespace

HandController::HandController(HandState& state, Counters& counters, const Preferences& preferences,
                               HandTable& table, HandCoach& coach, RandomSource& random,
                               ErrorBox& errorBox)
    : m_state(state), m_counters(counters), m_preferences(preferences), m_table(table),
      m_coach(coach), m_random(random), m_errorBox(errorBox)
{
}

template <typename Body>
void HandController::runSequence(Body body)
{
    if (m_ended)
        return;
    ++m_sequencesRunning;
    body();
    while (m_sequencesRunning == 1 && m_newGameWanted) {
        m_newGameWanted = false;
        runNewGame();
    }
    --m_sequencesRunning;
}

void HandController::initPokerScreen()
{
    runSequence([this] {
        abandonHand();
        m_newGameWanted = true;
    });
}

void HandController::runNewGame()
{
    const std::uint32_t epoch = m_state.epoch;
    m_firstDealComing = true;
    const bool done = guarded(m_errorBox, "initPokerScreen", [&] {
        m_table.layOutGame();
        m_state.handDealt = false;
        m_state.holdFlags.fill(false);
        for (int step = 1; step <= fadeSteps; ++step) {
            m_table.fadeStatusText(step);
            if (!pause(epoch, 20))
                return;
        }
        if (pause(epoch, 1000))
            picDeal_Click(programsOwnCall);
    });
    if (!done)
        recover();
    m_firstDealComing = false;
}

void HandController::picDeal_Click(std::int16_t Index)
{
    runSequence([&] {
        if (!guarded(m_errorBox, "picDeal_Click", [&] { clickDeck(Index); }))
            recover();
    });
}

void HandController::clickDeck(std::int16_t index)
{
    m_table.placeFlyingCard();
    m_table.paintFlyingCard(m_preferences.prfPKBackFace);
    m_table.paintDeckIntoTable();
    // A game that has been asked for deals by itself, as soon as the interrupted sequence is over.
    if (m_state.handBusy || m_newGameWanted)
        return;

    const bool handComesByItself = m_preferences.prfPokerAutoDeal && m_firstDealComing;
    if (index == programsOwnCall || m_state.handDealt || !handComesByItself)
        showPokerHand();
}

void HandController::picPoker_MouseDown(std::int16_t Index)
{
    toggleHold(Index);
}

void HandController::picPoker_DblClick(std::int16_t Index)
{
    toggleHold(Index);
}

void HandController::toggleHold(std::int16_t index)
{
    if (!m_state.handDealt)
        return;
    bool& held = m_state.holdFlags.at(static_cast<std::size_t>(index));
    held = !held;
    m_table.showHoldOutline(index, held);
}

void HandController::showPokerHand()
{
    if (!guarded(m_errorBox, "showPokerHand", [&] { dealOrDraw(); }))
        recover();
}

void HandController::dealOrDraw()
{
    const bool cardsWereShowing = m_table.cardShowing(0);
    if (m_state.handDealt) {
        m_table.placeFlyingCard();
        m_state.handBusy = true;
        draw(cardsWereShowing);
        return;
    }
    shuffleDeck(m_state.pokerDeck, m_random);
    const std::array<int, 5> order = dealOrder(m_state.dealReversed);
    m_table.placeFlyingCard();
    m_state.handBusy = true;
    deal(order, cardsWereShowing);
}

void HandController::deal(const std::array<int, 5>& order, bool cardsWereShowing)
{
    const std::uint32_t epoch = ++m_state.epoch;
    endFade();
    for (int slot = 0; slot < 5; ++slot) {
        m_table.hideCard(slot);
        m_table.showHoldOutline(slot, false);
    }
    m_state.holdFlags.fill(false);
    m_coach.resetChartColors();
    if (cardsWereShowing && !pause(epoch, 600))
        return;
    charge();

    for (const int slot : order)
        dealCardTo(slot);
    m_table.endFlights();
    if (!pause(epoch, 650))
        return;

    m_state.hand = dealHand(m_state.pokerDeck);
    for (int slot = 0; slot < 5; ++slot) {
        m_table.paintFace(slot, m_state.hand.at(static_cast<std::size_t>(slot)).cardId);
        m_table.refreshCard(slot);
    }
    m_state.handDealt = true;
    m_state.judgePending = true;
    m_state.handCode = EvaluatePokerHand(m_state.hand, false);
    m_coach.showBestPlay();
    m_state.handBusy = false;
}

void HandController::dealCardTo(int slot)
{
    // The player may have chosen another back since the last flight.
    m_table.paintFlyingCard(m_preferences.prfPKBackFace);
    m_table.flyCardTo(slot);
    m_table.showBack(slot);
    m_coach.playSoundCue(dealCue);
}

void HandController::draw(bool cardsWereShowing)
{
    const std::uint32_t epoch = m_state.epoch;
    m_state.handDealt = false;
    for (int slot = 0; slot < 5; ++slot)
        m_table.showHoldOutline(slot, false);
    if (!m_coach.acceptHold())
        return;

    m_state.handBusy = true;
    std::array<bool, 5> replaced{};
    for (int slot = 0; slot < 5; ++slot) {
        const auto i = static_cast<std::size_t>(slot);
        replaced[i] = !m_state.holdFlags[i];
        if (replaced[i])
            m_table.hideCard(slot);
    }
    drawReplacements(m_state.hand, m_state.pokerDeck, m_state.holdFlags);
    m_state.handCode = EvaluatePokerHand(m_state.hand, true);

    m_table.paintFlyingCard(overlayBack);
    for (int slot = 0; slot < 5; ++slot) {
        if (replaced[static_cast<std::size_t>(slot)])
            continue;
        m_table.layOverlay(slot);
        m_table.refreshCard(slot);
    }
    m_table.paintFlyingCard(m_preferences.prfPKBackFace);
    if (cardsWereShowing && !pause(epoch, 600))
        return;

    if (flyReplacements(epoch, replaced) && pay(epoch))
        dealNextHandByItself(epoch);
}

bool HandController::flyReplacements(std::uint32_t epoch, const std::array<bool, 5>& replaced)
{
    for (int slot = 0; slot < 5; ++slot)
        if (replaced[static_cast<std::size_t>(slot)])
            dealCardTo(slot);
    m_table.endFlights();
    if (!pause(epoch, 250))
        return false;

    m_table.paintFlyingCard(overlayBack);
    for (int slot = 0; slot < 5; ++slot) {
        const auto i = static_cast<std::size_t>(slot);
        if (!replaced[i])
            continue;
        m_table.paintFace(slot, m_state.hand[i].cardId);
        m_table.layOverlay(slot);
        m_table.refreshCard(slot);
    }
    return pause(epoch, 200);
}

bool HandController::pay(std::uint32_t epoch)
{
    const Payout* payout = payoutFor(m_state.handCode);
    if (payout == nullptr)
        return true;

    m_coach.resetChartColors();
    const std::int16_t target = addStopping(m_counters.total, payout->pays);
    m_payTarget = target;
    m_coach.highlightWinner(m_state.handCode);
    while (m_counters.total < target) {
        addCredits(std::min(payout->step, static_cast<std::int16_t>(target - m_counters.total)));
        m_coach.playSoundCue(payout->cue);
        if (!pause(epoch, payout->pause))
            return false;
    }
    finishPaying();
    return true;
}

void HandController::finishPaying()
{
    m_counters.total = *m_payTarget;
    m_counters.won = addStopping(m_counters.won, 1);
    m_payTarget.reset();
    m_table.showCounters(m_counters);
}

void HandController::dealNextHandByItself(std::uint32_t epoch)
{
    if (m_preferences.prfPokerAutoDeal && !pause(epoch, 2500))
        return;
    m_state.handBusy = false;
    // The player may have unticked it meanwhile.
    if (!m_preferences.prfPokerAutoDeal)
        return;
    m_state.judgePending = false;
    picDeal_Click(programsOwnCall);
}

void HandController::endFade()
{
    if (std::exchange(m_firstDealComing, false))
        m_table.fadeStatusText(fadeSteps);
}

void HandController::charge()
{
    m_counters.total = addStopping(m_counters.total, -wager);
    m_counters.hands = addStopping(m_counters.hands, 1);
    m_table.showCounters(m_counters);
}

void HandController::addCredits(std::int16_t credits)
{
    m_counters.total = addStopping(m_counters.total, credits);
    m_table.showCounters(m_counters);
}

void HandController::abandonHand()
{
    ++m_state.epoch;
    if (m_payTarget)
        finishPaying();
    m_state.handBusy = false;
    m_state.handDealt = false;
    m_state.holdFlags.fill(false);
}

void HandController::recover()
{
    ++m_state.epoch;
    m_payTarget.reset();
    endFade();
    m_state.handBusy = false;
    m_state.handDealt = false;
    m_state.holdFlags.fill(false);
    m_table.recover();
}

void HandController::endGame()
{
    ++m_state.epoch;
    m_ended = true;
    m_newGameWanted = false;
}

bool HandController::pause(std::uint32_t epoch, std::int32_t delayTime)
{
    m_table.shortDelay(delayTime);
    return m_state.epoch == epoch;
}

} // namespace quillet
