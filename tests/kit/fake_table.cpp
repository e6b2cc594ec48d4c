#include "tests/kit/fake_table.h"

#include <algorithm>
#include <numeric>

namespace quillet::test
{

// The exchanges run over places 0, 1, ... 51. One that takes the card wanted at place i from where
// it lies at that moment puts it there for good, as long as no later partner is an earlier place.
void StackedDeck::stack(std::string_view tenCards)
{
    std::vector<int> wanted;
    for (std::size_t at = 0; at < tenCards.size(); at += 3)
        wanted.push_back(card(tenCards.substr(at, 2)).cardId);
    std::vector<int> deck(52);
    std::iota(deck.begin(), deck.end(), 0);
    m_partners.clear();
    m_next = 0;
    for (std::size_t i = 0; i < deck.size(); ++i) {
        const auto from = i < wanted.size() ? std::ranges::find(deck, wanted[i]) - deck.begin()
                                            : static_cast<std::ptrdiff_t>(i);
        m_partners.push_back(static_cast<int>(from));
        std::swap(deck[i], deck[static_cast<std::size_t>(from)]);
    }
}

double StackedDeck::next()
{
    if (m_next >= m_partners.size())
        return 0.999 * static_cast<double>(m_next++ % 52) / 52.0;
    return (m_partners[m_next++] + 0.5) / 52.0;
}

void FakeTable::in(int milliseconds, std::function<void()> act)
{
    m_due.emplace(m_now + milliseconds, std::move(act));
}

int FakeTable::count(std::string_view entry) const
{
    return static_cast<int>(std::ranges::count(log, entry));
}

std::string FakeTable::logged() const
{
    std::string all;
    for (const std::string& entry : log)
        all += (all.empty() ? "" : " ") + entry;
    return all;
}

void FakeTable::layOutGame()
{
    log.push_back("layOut");
    showing.fill(false);
    outlines.fill(false);
    state.judgePending = false;
}

void FakeTable::flyCardTo(int slot)
{
    log.push_back("fly" + std::to_string(slot));
}

void FakeTable::hideCard(int slot)
{
    if (showing.at(std::size_t(slot)))
        log.push_back("hide" + std::to_string(slot));
    showing.at(std::size_t(slot)) = false;
}

void FakeTable::paintFace(int slot, std::int16_t)
{
    log.push_back("face" + std::to_string(slot));
}

void FakeTable::layOverlay(int slot)
{
    log.push_back((flyingBack == 53 ? "hatch" : "overlay?") + std::to_string(slot));
}

void FakeTable::showCounters(const Counters& counters)
{
    log.push_back("total" + std::to_string(counters.total));
}

void FakeTable::shortDelay(std::int32_t delayTime)
{
    if (delayTime != 20)
        log.push_back("pause" + std::to_string(delayTime));
    const std::uint32_t epoch = state.epoch;
    const int until = m_now + delayTime;
    while (!m_due.empty() && m_due.begin()->first <= until && state.epoch == epoch) {
        auto next = m_due.extract(m_due.begin());
        m_now = std::max(m_now, next.key());
        next.mapped()();
    }
    if (state.epoch == epoch)
        m_now = std::max(m_now, until);
}

void FakeTable::sndPlaySound(const std::string& path)
{
    log.push_back(path.substr(path.find_last_of('/') + 1));
}

Game::Game()
{
    preferences.prfPKBackFace = 65;
    preferences.prfSound = true;
}

void Game::deal(std::string_view tenCards)
{
    random.stack(tenCards);
    click();
}

void Game::draw(std::string_view slots)
{
    for (const char digit : slots)
        controller.picPoker_MouseDown(static_cast<std::int16_t>(digit - '1'));
    click();
}

} // namespace quillet::test
