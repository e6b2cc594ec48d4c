#include "tests/kit/played_game.h"

#include <algorithm>

namespace quillet::test
{

int GameLog::count(std::string_view entry) const
{
    return static_cast<int>(std::ranges::count(m_entries, entry));
}

std::string GameLog::text() const
{
    std::string all;
    for (const std::string& entry : m_entries)
        all += (all.empty() ? "" : " ") + entry;
    return all;
}

void LoggedTable::takeAway(Slot slot)
{
    if (std::exchange(m_showing[slot], false))
        m_log.add("hide" + std::to_string(slot));
}

void LoggedTable::flyCardTo(Slot slot)
{
    m_log.add("fly" + std::to_string(slot));
    m_showing[slot] = true;
}

void LoggedTable::showFace(Slot slot, std::int16_t, bool finished)
{
    m_log.add((finished ? "hatch" : "face") + std::to_string(slot));
}

void LoggedScreen::showCounters(const Counters& counters)
{
    m_log.add("total" + std::to_string(counters.total));
}

void LoggedScreen::shortDelay(std::int32_t delayTime)
{
    if (delayTime != 20)
        m_log.add("pause" + std::to_string(delayTime));
    const std::uint32_t epoch = m_state.epoch;
    m_clock.pass(delayTime, [this, epoch] { return m_state.epoch != epoch; });
}

void LoggedCues::playSoundCue(std::string_view fileName)
{
    m_log.add(std::string(fileName.substr(fileName.find_last_of('\\') + 1)));
}

void Game::deal(std::string_view tenCards)
{
    decks.stack(tenCards);
    click();
}

void Game::draw(std::string_view slots)
{
    for (const char digit : slots)
        controller.picPoker_MouseDown(static_cast<std::int16_t>(digit - '1'));
    click();
}

} // namespace quillet::test
