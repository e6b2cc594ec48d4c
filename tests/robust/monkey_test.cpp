#include "engine/pay_table.h"
#include "main_window/frm_preferences.h"
#include "screens/frm_exit_no_banner.h"
#include "table/picture_box.h"
#include "table/table_canvas.h"
#include "tests/kit/cards.h"
#include "tests/kit/played_window.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <random>

namespace quillet::test
{

namespace
{

// Plays the real window with random input, at rest and in the middle of every pause, and checks
// after each event what must always be true.
class Monkey : public PlayedWindow
{
public:
    Monkey(unsigned seed, int events) : m_random(seed), m_eventsLeft(events)
    {
        usePicture({674, 354});
        store.texts["prfAnimationDelay"] = std::string("0");
        for (const char* truth : {"prfPokerAutoDeal", "prfShowPokerPlay"})
            store.texts[truth] = chanceOf(50) ? "True" : "False";
    }

    void run()
    {
        EXPECT_TRUE(start());
        while (m_eventsLeft > 0 && !m_closed && !testing::Test::HasFailure()) {
            act();
            if (m_closed || waitsForDraw())
                continue;
            const int hands = window->counters().hands;
            m_quiet = true;
            deck();
            m_quiet = false;
            EXPECT_EQ(window->counters().hands, hands + 1) << "the deck is dead";
        }
        close();
        choose("mnuPoker"); // nothing starts after the end
        EXPECT_TRUE(errors.texts.empty()) << errors.texts.front();
        EXPECT_EQ(ended, std::vector{0});
        EXPECT_EQ(std::ranges::count(store.log, '='), 12) << "every setting is stored once";
    }

    PokerDeck nextDeck() override
    {
        PokerDeck deck = buildDeck();
        std::ranges::shuffle(deck, m_random);
        return deck;
    }

private:
    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }
    bool chanceOf(int percent) { return below(100) < percent; }

    // Several events may come at once, before the sequence that waits can react.
    void pause(std::int32_t delay, const std::function<bool()>& cutShort) override
    {
        const bool fading = delay == 20;
        m_gameAsked = m_gameAsked && !fading; // it has begun
        EXPECT_FALSE(m_closed && sounds.names.size() != m_soundsAtEnd) << "it went on";
        ++m_depth;
        if (!m_closed && !m_quiet && m_depth < 7)
            for (int more = fading ? 2 : 18; chanceOf(more) && m_eventsLeft > 0; more = 60)
                act();
        --m_depth;
        PlayedWindow::pause(delay, cutShort);
    }

    void act()
    {
        if (m_closed)
            return;
        const int kind = below(1000);
        --m_eventsLeft;
        if (kind < 250)
            deck();
        else if (kind < 450)
            holdBest();
        else if (kind < 600)
            window->picPoker_MouseDown(static_cast<std::int16_t>(below(5)));
        else if (kind < 850)
            keyOrMouse();
        else if (kind < 900 && QApplication::activeModalWidget() == nullptr)
            preferences();
        else if (kind < 940 && QApplication::activeModalWidget() == nullptr) {
            m_gameAsked = true;
            m_hands = window->counters().hands;
            choose("mnuPoker");
        } else if (kind < 990)
            usePicture({300 + below(600), 300 + below(300)});
        else if (chanceOf(25))
            close();
        check();
    }

    void deck()
    {
        ++m_deckClicks;
        window->picDeal_Click(static_cast<std::int16_t>(below(3)));
    }

    void holdBest()
    {
        const HandState& state = window->handState();
        const auto hold = acceptedHold(state.hand, state.handCode);
        if (!state.handDealt || !hold)
            return;
        for (std::size_t slot = 0; slot < 5; ++slot)
            if ((*hold)[slot] != state.holdFlags[slot])
                window->picPoker_MouseDown(static_cast<std::int16_t>(slot));
        deck();
    }

    void keyOrMouse()
    {
        // A dialog opened from a menu would wait until somebody closes it.
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        ++m_deckClicks;
        constexpr std::array keys{Qt::Key_1, Qt::Key_5, Qt::Key_Space, Qt::Key_Enter, Qt::Key_Tab};
        const QPoint at(below(window->width() + 20) - 10, below(window->height() + 20) - 10);
        if (chanceOf(40))
            QTest::keyClick(window->windowHandle(), keys[std::size_t(below(5))]);
        else
            QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at);
    }

    void preferences()
    {
        const auto change = [this](frmPreferences& dialog) {
            for (const char* name : {"ckAnimation", "ckSounds", "ckprfAutoDeal", "opAlwaysShow"})
                if (chanceOf(30))
                    control<QAbstractButton>(dialog, name).click();
            control<QComboBox>(dialog, "Combo1").setCurrentIndex(below(13));
            control<QScrollBar>(dialog, "HScroll1").setValue(1000 - below(3));
            control<QAbstractButton>(dialog, chanceOf(70) ? "cmdSave" : "cmdCancel").click();
        };
        whileOpen<frmPreferences>([this] { choose("mnuPref"); }, change);
    }

    void close()
    {
        if (m_closed)
            return;
        m_closed = true;
        m_soundsAtEnd = sounds.names.size();
        whileOpen<frmExitNoBanner>(
            [this] { chanceOf(50) ? void(window->close()) : window->mnuExit_Click(); },
            [this](auto&) { EXPECT_FALSE(window->isVisible()); });
    }

    void check()
    {
        if (m_closed)
            return;
        checkHand();
        checkCredits();
        int lit = 0;
        for (int row = 0; row < chartRows; ++row)
            lit += window->chart().state(row) != ChartRowState::base;
        EXPECT_LE(lit, 1);
        EXPECT_EQ(std::ranges::count(store.log, '='), 0) << "settings are stored at the end";
        if (m_depth == 0) {
            EXPECT_FALSE(window->handState().handBusy) << "nothing is running";
            EXPECT_TRUE(control<PictureBox>(*window, "picDeal0").isShowing());
        }
    }

    void checkHand()
    {
        const HandState& state = window->handState();
        EXPECT_FALSE(state.handDealt && state.handBusy);
        if (state.handDealt && !m_wasDealt) {
            PokerDeck cards = state.pokerDeck;
            EXPECT_EQ(state.hand, dealHand(cards));
            std::ranges::sort(cards);
            EXPECT_EQ(cards, buildDeck()) << "every card once";
            m_deckClicks = 0;
            sounds.names.clear(); // with the sound off, an old refusal would stay the last
        }
        const bool refused = !sounds.names.empty() && sounds.names.back().starts_with("wrong");
        EXPECT_FALSE(refused && m_wasDealt && m_deckClicks == 0) << "nobody asked to draw";
        m_wasDealt = state.handDealt;
        for (std::size_t slot = 0; slot < 5; ++slot) {
            const bool held =
                part("picPoker" + std::to_string(slot)).accessibleName().endsWith("held");
            EXPECT_TRUE(m_gameAsked || held == (state.handDealt && state.holdFlags[slot]));
        }
    }

    // A hand costs five; only a hand that counts as won pays, and by the pay table.
    void checkCredits()
    {
        const Counters& count = window->counters();
        EXPECT_FALSE(m_gameAsked && count.hands != m_hands) << "dealt only to be thrown away";
        m_hands = count.hands;
        const int gained = count.total + 5 * count.hands - m_settled;
        if (count.won != m_won) {
            EXPECT_EQ(count.won, m_won + 1);
            EXPECT_GT(std::ranges::count(payTable, gained, &Payout::pays), 0) << gained;
            m_settled += gained;
            m_won = count.won;
        } else if (gained != 0) {
            const HandState& state = window->handState();
            EXPECT_TRUE(state.handBusy && gained > 0 &&
                        window->chart().state(state.handCode - 1) == ChartRowState::winner);
        }
        EXPECT_TRUE(counters().starts_with(std::to_string(count.total) + "/"));
    }

    std::mt19937 m_random;
    int m_eventsLeft;
    int m_depth = 0;
    bool m_closed = false, m_quiet = false, m_wasDealt = false, m_gameAsked = false;
    int m_deckClicks = 0, m_settled = 0, m_won = 0, m_hands = 0;
    std::size_t m_soundsAtEnd = 0;
};

} // namespace

// QUILLET_MONKEY_SEEDS=2000 runs more of them.
TEST(Monkey, nothingThatItDoesBreaksTheGame)
{
    const int seeds = qEnvironmentVariableIntValue("QUILLET_MONKEY_SEEDS");
    for (unsigned seed = 1; seed <= static_cast<unsigned>(std::max(seeds, 8)); ++seed) {
        Monkey monkey(seed, 150);
        monkey.run();
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
    }
}

} // namespace quillet::test
