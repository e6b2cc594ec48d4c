#pragma once

#include "engine/deck.h"
#include "tests/kit/cards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// Stand-ins for the surroundings of a game.
namespace quillet::test
{

struct RecordedErrors {
    void operator()(const std::string& text) { texts.push_back(text); }
    std::vector<std::string> texts;
};

// Decks with these ten cards on top, as text, "As Ks ...": five to be dealt, then the replacements
// of slots 0..4.
class StackedDeck
{
public:
    void stack(std::string_view tenCards)
    {
        m_deck = buildDeck();
        for (std::size_t at = 0; 3 * at < tenCards.size(); ++at)
            std::swap(m_deck[at],
                      *std::ranges::find(m_deck, card(tenCards.substr(3 * at, 2)).cardId));
    }

    [[nodiscard]] PokerDeck operator()() const { return m_deck; }

private:
    PokerDeck m_deck = buildDeck();
};

// A clock that moves only in pauses, which take no real time. Actions that fall due in a pause run
// in it, as a real pause handles events.
class VirtualClock
{
public:
    ~VirtualClock() { EXPECT_TRUE(m_due.empty()) << "input whose moment never came"; }

    // Calls this after the given time.
    void in(int milliseconds, std::function<void()> act)
    {
        m_due.emplace(now + milliseconds, std::move(act));
    }

    // Passes the given time, unless an action in the pause cuts it short.
    void pass(
        int milliseconds, const std::function<bool()>& cutShort,
        const std::function<void()>& afterEach = [] {})
    {
        const std::int64_t until = now + milliseconds;
        while (!m_due.empty() && m_due.begin()->first <= until && !cutShort()) {
            const auto next = m_due.extract(m_due.begin());
            now = std::max(now, next.key());
            next.mapped()();
            afterEach();
        }
        if (!cutShort())
            now = std::max(now, until);
    }

    std::int64_t now = 0; // milliseconds

private:
    std::multimap<std::int64_t, std::function<void()>> m_due;
};

} // namespace quillet::test
