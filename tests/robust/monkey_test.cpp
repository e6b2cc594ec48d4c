#include "coach/hold_judgement.h"
#include "engine/pay_table.h"
#include "platform/picture_box.h"
#include "platform/table_canvas.h"
#include "screens/frm_exit_no_banner.h"
#include "shell/frm_preferences.h"
#include "tests/robust/stand_ins.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace quillet::test
{

namespace
{

// Plays the real window with random input, at rest and in the middle of every pause, and looks
// after each event whether anything is as it must never be.
class Monkey
{
public:
    Monkey(unsigned seed, int events) : m_random(seed), m_eventsLeft(events)
    {
        world.chance.seed(seed);
        for (const char* truth : {"prfPokerAutoDeal", "prfShowPokerPlay"})
            world.settings[truth] = chanceOf(50) ? "True" : "False";
        world.inPause = [this](std::int32_t delay, const std::function<bool()>&) { pause(delay); };
    }

    int play()
    {
        const int events = m_eventsLeft;
        EXPECT_TRUE(window.Form_Load());
        while (m_eventsLeft > 0 && !m_closed && !testing::Test::HasFailure()) {
            act();
            check();
            if (!m_closed) {
                EXPECT_FALSE(window.handState().handBusy) << "nothing is running";
                if (chanceOf(10))
                    expectLivingDeck();
            }
        }
        close();
        EXPECT_TRUE(world.errors.empty()) << world.errors.front();
        EXPECT_EQ(world.ends, std::vector{0});
        EXPECT_EQ(world.writes.size(), 12U);
        for (const auto& [key, times] : world.writes)
            EXPECT_EQ(times, 1) << key;
        return events - m_eventsLeft;
    }

    StandIns world;
    std::string story;

private:
    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }
    bool chanceOf(int percent) { return below(100) < percent; }

    // Several events may come in one turn, before the sequence underneath can look up.
    void pause(std::int32_t delay)
    {
        if (delay == 20)
            m_gameAsked = false; // it has begun
        if (m_closed || m_quiet || m_depth == 6) {
            EXPECT_FALSE(m_closed && world.sounds.size() != m_soundsAtEnd) << "it went on";
            return;
        }
        ++m_depth;
        check();
        for (int more = delay == 20 ? 2 : 18; chanceOf(more) && m_eventsLeft > 0; more = 60) {
            act();
            check();
        }
        --m_depth;
    }

    void tell(const std::string& what)
    {
        --m_eventsLeft;
        story += std::string(static_cast<std::size_t>(m_depth), ' ') + what + '\n';
    }

    void act()
    {
        if (m_closed)
            return;
        const int kind = below(1000);
        if (kind < 250)
            clickDeck();
        else if (kind < 450)
            holdBest();
        else if (kind < 600)
            hold(static_cast<std::int16_t>(below(5)));
        else if (kind < 700)
            key();
        else if (kind < 850)
            mouse();
        else if (kind < 940)
            menu();
        else if (kind < 990)
            windowManager();
        else if (chanceOf(25))
            close();
    }

    void clickDeck()
    {
        tell("deck");
        ++m_deckClicks;
        window.picDeal_Click(static_cast<std::int16_t>(below(3)));
    }

    void hold(std::int16_t slot)
    {
        tell("hold " + std::to_string(slot));
        chanceOf(80) ? window.picPoker_MouseDown(slot) : window.picPoker_DblClick(slot);
    }

    void holdBest()
    {
        const HandState& state = window.handState();
        if (!state.handDealt)
            return;
        for (unsigned held = 0; held < 32; ++held) {
            std::array<bool, 5> flags{};
            for (std::size_t slot = 0; slot < 5; ++slot)
                flags[slot] = (held >> slot & 1U) != 0;
            if (!judgeHold(state.hand, flags, state.handCode).correct)
                continue;
            for (std::int16_t slot = 0; slot < 5; ++slot)
                if (flags[static_cast<std::size_t>(slot)] !=
                    state.holdFlags[static_cast<std::size_t>(slot)])
                    hold(slot);
            clickDeck();
            return;
        }
        ADD_FAILURE() << "no hold is right";
    }

    void key()
    {
        const Qt::Key keys[] = {Qt::Key_1,     Qt::Key_2,   Qt::Key_5,      Qt::Key_Space,
                                Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Escape, Qt::Key_Alt};
        const Qt::Key key = keys[below(8)];
        tell("key " + std::to_string(key));
        closeMenu();
        ++m_deckClicks;
        QWidget* focus = window.focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &window, key);
    }

    void mouse()
    {
        const QPoint at(below(window.width() + 20) - 10, below(window.height() + 20) - 10);
        tell("mouse " + std::to_string(at.x()) + ' ' + std::to_string(at.y()));
        ++m_deckClicks;
        closeMenu();
        if (chanceOf(70))
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, at);
        else
            QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, at);
    }

    // A dialog that a click in an open menu brings up would wait for somebody to close it.
    static void closeMenu()
    {
        if (QWidget* open = QApplication::activePopupWidget())
            open->close();
    }

    void menu()
    {
        const char* entries[] = {"mnuPoker", "mnuPoker", "mnuPref",
                                 "mnuPref",  "mnuPref",  "mnuSites2"};
        const char* entry = entries[below(6)];
        tell(entry);
        if (QApplication::activeModalWidget() != nullptr)
            return;
        if (entry == std::string("mnuPref"))
            QTimer::singleShot(0, &window, [this] { preferences(); });
        m_gameAsked = m_gameAsked || entry == std::string("mnuPoker");
        window.findChild<QAction*>(entry)->trigger();
    }

    void preferences()
    {
        auto* dialog = window.findChild<frmPreferences*>();
        ASSERT_NE(dialog, nullptr);
        for (const char* name :
             {"ckAnimation", "ckSounds", "ckprfAutoDeal", "opAlwaysShow", "opShowOnError"})
            if (chanceOf(30))
                dialog->findChild<QAbstractButton*>(name)->click();
        if (chanceOf(30))
            dialog->findChild<QComboBox*>("Combo1")->setCurrentIndex(below(13));
        if (chanceOf(30))
            dialog->findChild<QScrollBar*>("HScroll1")->setValue(1000 - below(3));
        if (chanceOf(10)) {
            QTimer::singleShot(0, dialog, [this, dialog] {
                if (auto* colors = dialog->findChild<QColorDialog*>())
                    chanceOf(50) ? colors->accept() : colors->reject();
            });
            dialog->cmdChangeColor_Click();
        }
        const char* last = chanceOf(70) ? "cmdSave" : "cmdCancel";
        dialog->findChild<QAbstractButton*>(last)->click();
    }

    void windowManager()
    {
        const int kind = below(5);
        tell("window " + std::to_string(kind));
        switch (kind) {
        case 0:
            window.resize(below(1200), below(900));
            break;
        case 1:
            window.showMaximized();
            break;
        case 2:
            window.showMinimized();
            window.showNormal();
            break;
        case 3:
            window.hide();
            window.show();
            break;
        default:
            world.putPicture(QSize(300 + below(600), 300 + below(300)));
        }
    }

    void close()
    {
        if (m_closed)
            return;
        tell("close");
        EXPECT_TRUE(world.writes.empty());
        m_closed = true;
        m_soundsAtEnd = world.sounds.size();
        QTimer::singleShot(0, &window, [this] {
            auto* screen = qobject_cast<frmExitNoBanner*>(QApplication::activeModalWidget());
            ASSERT_NE(screen, nullptr);
            EXPECT_FALSE(window.isVisible());
            screen->reject();
        });
        chanceOf(50) ? static_cast<void>(window.close()) : window.mnuExit_Click();
    }

    void expectLivingDeck()
    {
        const bool dealt = window.handState().handDealt;
        const int hands = window.counters().hands;
        m_quiet = true;
        clickDeck();
        m_quiet = false;
        EXPECT_FALSE(window.handState().handBusy);
        EXPECT_TRUE(dealt || window.counters().hands == hands + 1) << "the deck is dead";
        check();
    }

    void check()
    {
        if (m_closed || testing::Test::HasFailure())
            return;
        checkHand();
        checkCredits();
        int lit = 0;
        for (int row = 0; row < chartRows; ++row)
            lit += window.chart().state(row) != ChartRowState::base;
        EXPECT_LE(lit, 1);
        EXPECT_TRUE(world.writes.empty()) << "settings are stored at the end";
        EXPECT_TRUE(window.findChild<TableCanvas*>("table")->persistentImage());
        const bool resting = !window.handState().handBusy && m_depth == 0;
        EXPECT_TRUE(!resting || window.findChild<PictureBox*>("picDeal0")->isShowing());
    }

    void checkHand()
    {
        const HandState& state = window.handState();
        EXPECT_FALSE(state.handDealt && state.handBusy);
        if (state.handDealt && !m_wasDealt) {
            PokerDeck deck = state.pokerDeck;
            EXPECT_EQ(state.hand, dealHand(deck));
            std::ranges::sort(deck);
            EXPECT_EQ(deck, buildDeck()) << "every card once";
            m_deckClicks = 0;
        }
        const bool refused = !world.sounds.empty() && world.sounds.back().find("wrong") != npos;
        EXPECT_FALSE(refused && m_wasDealt && m_deckClicks == 0) << "nobody asked to draw";
        m_wasDealt = state.handDealt;
        for (std::size_t slot = 0; slot < 5; ++slot) {
            const auto* box = window.findChild<PictureBox*>(QString("picPoker%1").arg(slot));
            const bool held = box->accessibleName().endsWith("held");
            EXPECT_TRUE(m_gameAsked || held == (state.handDealt && state.holdFlags[slot]));
        }
    }

    // A hand costs five; only a hand that counts as won brings credits, as many as the table says.
    void checkCredits()
    {
        const Counters& now = window.counters();
        EXPECT_FALSE(m_gameAsked && now.hands != m_hands) << "dealt only to be thrown away";
        m_hands = now.hands;
        const int gained = now.total + 5 * now.hands - m_settled;
        const auto pays = [gained](const Payout& payout) { return payout.pays == gained; };
        if (now.won != m_won) {
            EXPECT_EQ(now.won, m_won + 1);
            EXPECT_TRUE(std::ranges::any_of(payTable(), pays)) << gained;
            m_settled += gained;
            m_won = now.won;
        } else if (gained != 0) {
            const bool paying =
                window.handState().handBusy &&
                window.chart().state(window.handState().handCode - 1) == ChartRowState::winner;
            EXPECT_TRUE(paying && gained > 0) << gained;
        }
        EXPECT_EQ(window.findChild<QLabel*>("lblTotal")->text(), QString::number(now.total));
    }

    static constexpr auto npos = std::string::npos;

    std::mt19937 m_random;
    frmMain window{world.desktop};
    int m_eventsLeft;
    int m_depth = 0;
    bool m_closed = false;
    bool m_quiet = false;
    bool m_wasDealt = false;
    int m_deckClicks = 0;
    int m_settled = 0;
    int m_won = 0;
    int m_hands = 0;
    bool m_gameAsked = false;
    std::size_t m_soundsAtEnd = 0;
};

int numberFrom(const char* variable, int otherwise)
{
    const char* text = std::getenv(variable);
    return text == nullptr ? otherwise : std::atoi(text);
}

} // namespace

// More of them with QUILLET_MONKEY_SEEDS=2000; one of them again with QUILLET_MONKEY_FIRST.
TEST(Monkey, nothingThatItDoesBreaksTheGame)
{
    const int first = numberFrom("QUILLET_MONKEY_FIRST", 1);
    const int seeds = numberFrom("QUILLET_MONKEY_SEEDS", 8);
    const int events = numberFrom("QUILLET_MONKEY_EVENTS", 150);
    long total = 0;
    for (int seed = first; seed < first + seeds; ++seed) {
        Monkey monkey(static_cast<unsigned>(seed), events);
        total += monkey.play();
        ASSERT_FALSE(HasFailure()) << "seed " << seed << '\n' << monkey.story;
    }
    RecordProperty("events", std::to_string(total));
}

} // namespace quillet::test
