#pragma once

#include "main_window/frm_main.h"
#include "tests/kit/fake_table.h"
#include "tests/kit/memory_store.h"
#include "tests/kit/presented.h"
#include "tests/kit/window_driving.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quillet::test
{

// The real main window on a desktop of stand-ins. Pauses take no time: they move a virtual clock,
// fire the input that falls due meanwhile and let the toolkit's events run. Unless a test stores
// something else, dealing is by hand, cards do not fly and the delays are known.
class PlayedWindow : public ErrorBox,
                     public SoundOutput,
                     public ShellOpen,
                     public Clock,
                     public RandomSource
{
public:
    PlayedWindow();

    // Loads the window, whose first hand has these ten cards (see StackedDeck).
    bool start(std::string_view tenCards = jacks);
    // Runs the act when the virtual clock has come so many milliseconds further.
    void in(int milliseconds, std::function<void()> act) { m_due.emplace(now + milliseconds, act); }
    // A folder of its own, empty but for what the test puts there, in place of the program's.
    QString useOwnFolder();
    // There, a plain background of this size; without a size, one that cannot be read.
    void usePicture(QSize size = {});

    void clickDeck() { click(part("picDeal0")); }
    void clickCard(int slot) { click(part("picPoker" + std::to_string(slot))); }
    void choose(const char* menuEntry);
    // Holds the slots whose digits (1..5) are named and clicks the deck.
    void draw(std::string_view heldSlots);

    [[nodiscard]] QWidget& part(const std::string& name);
    // The counters, "total/hands/won".
    [[nodiscard]] std::string counters();
    // What a screen reader says of the card places, their numbers left out.
    [[nodiscard]] std::string cards();
    [[nodiscard]] bool waitsForDraw() const { return window->handState().handDealt; }
    // What the window shows on its display.
    [[nodiscard]] QImage picture();
    // Where a part lies in the window.
    [[nodiscard]] QRect placeOf(const std::string& name);
    // The background of a chart row, "#rrggbb".
    [[nodiscard]] std::string rowColor(int playCode);

    void showError(const std::string& text) override { errors.push_back(text); }
    void prepare() override {}
    void play(const std::string& path) override;
    void open(const std::string& verb, const std::string& file, const std::string& parameters,
              const std::string& directory, int showCommand) override;
    std::int64_t milliseconds() override { return now; }
    double processorSeconds() override; // moves on with every look, as on a very slow machine
    void reseed() override { failIf("random"); }
    double next() override { return random.next(); }

    static constexpr auto jacks = "Jc Jd 4h 7s 9c 2c 3d 5h 6s 8c";

    MemoryStore store;
    StackedDeck random;
    std::string failing; // the port that throws
    std::vector<std::string> errors, sounds, opened;
    std::vector<int> ended; // the codes with which the process was to end
    std::int64_t now = 0;
    Desktop desktop;
    std::unique_ptr<frmMain> window;

protected:
    virtual void pause(std::int32_t delayTime, const std::function<bool()>& cutShort);

private:
    void failIf(const std::string& port) const;

    QTemporaryDir m_ownFolder;
    std::multimap<std::int64_t, std::function<void()>> m_due;
};

// Opens a modal window and lets the act work in it. One that the act leaves open is closed.
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
