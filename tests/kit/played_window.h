#pragma once

#include "main_window/frm_main.h"
#include "tests/kit/memory_store.h"
#include "tests/kit/presented.h"
#include "tests/kit/stand_ins.h"
#include "tests/kit/window_driving.h"

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillet::test
{

struct RecordedSounds : SoundOutput {
    void prepare() override { ++prepared; }
    void play(const std::string& path) override
    {
        names.push_back(path.substr(path.find_last_of('/') + 1));
    }
    std::vector<std::string> names;
    int prepared = 0;
};

// The real main window on a desktop of stand-ins. Pauses take no time: they move a virtual clock,
// send the input that falls due and handle Qt's events. Unless a test stores other settings, the
// player deals, cards do not fly and the delays are known.
class PlayedWindow : private Clock
{
public:
    PlayedWindow();
    ~PlayedWindow() override = default;

    // Loads the window, whose first hand has these ten cards (see StackedDeck).
    bool start(std::string_view tenCards = jacks);
    // Calls the act after this time on the virtual clock.
    void in(int milliseconds, std::function<void()> act) { clock.in(milliseconds, std::move(act)); }
    // An empty folder, which replaces the program's.
    QString useOwnFolder();
    // Puts a plain background of this size there; without a size, one that cannot be read.
    void usePicture(QSize size = {});

    void clickDeck() { click(part("picDeal0")); }
    void clickCard(int slot) { click(part("picPoker" + std::to_string(slot))); }
    void choose(const char* menuEntry) { window->findChild<QAction*>(menuEntry)->trigger(); }
    // Holds these slots (digits 1 to 5) and clicks the deck.
    void draw(std::string_view heldSlots);

    [[nodiscard]] QWidget& part(const std::string& name) { return control(*window, name.c_str()); }
    // The counters, "total/hands/won".
    [[nodiscard]] std::string counters();
    // The card places as a screen reader says them, without their numbers.
    [[nodiscard]] std::string cards();
    [[nodiscard]] bool waitsForDraw() const { return window->handState().handDealt; }
    // The window as its display shows it.
    [[nodiscard]] QImage picture();
    // The place of a part in the window.
    [[nodiscard]] QRect placeOf(const std::string& name);
    // The background of a chart row, "#rrggbb".
    [[nodiscard]] std::string rowColour(int playCode);

    static constexpr auto jacks = "Jc Jd 4h 7s 9c 2c 3d 5h 6s 8c";

    MemoryStore store;
    StackedDeck decks;
    RecordedErrors errors;
    RecordedSounds sounds;
    RecordingShell pages;
    mutable VirtualClock clock; // each look at the processor takes time
    int look = 500;      // milliseconds that a look at the processor's time takes: a slow machine
    double slowness = 1; // the time that passes, over the processor's
    std::string failing; // "clock" or "decks"
    std::vector<int> ended; // the codes with which the process was to end
    Surroundings surroundings;
    std::unique_ptr<frmMain> window;

protected:
    virtual void pause(std::int32_t delayTime, const std::function<bool()>& cutShort);
    virtual PokerDeck nextDeck();

private:
    std::int64_t milliseconds() const override { return clock.now; }
    // Moves on with every call.
    double processorSeconds() const override;
    void failAt(const char* port) const;

    QTemporaryDir m_ownFolder;
};

// A window whose first hand waits for the draw.
struct StartedWindow : PlayedWindow {
    StartedWindow() { EXPECT_TRUE(start()); }
};

// Opens a modal window, runs the act in it, and closes it if it is still open.
template <typename Dialog>
void whileOpen(const std::function<void()>& open, const std::function<void(Dialog&)>& act)
{
    int met = 0;
    QTimer::singleShot(0, qApp, [&] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        ++met;
        act(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
    open();
    EXPECT_EQ(met, 1) << "no " << Dialog::staticMetaObject.className();
}

} // namespace quillet::test
