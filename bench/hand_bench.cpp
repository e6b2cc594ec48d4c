// Processor time of a hand in the real window with its real pauses, at the named flight delay. The
// difference from delay 0 is the cost of the counting loops. Only a real display shows the real
// cost; without one the hand is played off screen.
#include "coach/hold_coach.h"
#include "engine/random.h"
#include "main_window/frm_main.h"
#include "platform/browser_opener.h"
#include "platform/error_box.h"
#include "platform/short_delay.h"
#include "platform/system_clock.h"
#include "settings/text_file_store.h"
#include "sound/sdl_sound_output.h"

#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

namespace
{

using namespace quillet;

// Holds what the coach accepts.
void holdBestPlay(frmMain& window)
{
    const HandState& hand = window.handState();
    for (unsigned choice = 0; choice < 32; ++choice) {
        std::array<bool, 5> held{};
        for (std::size_t slot = 0; slot < held.size(); ++slot)
            held[slot] = (choice >> slot & 1U) != 0;
        if (!isCorrectHold(hand.hand, held, hand.handCode))
            continue;
        for (std::int16_t slot = 0; slot < 5; ++slot)
            if (held[static_cast<std::size_t>(slot)])
                window.picPoker_MouseDown(slot);
        return;
    }
}

void hand(benchmark::State& state)
{
    const QTemporaryDir config;
    TextFileStore store(config.path());
    store.save({{"Quillet", "Preferences", "prfAnimationDelay", std::to_string(state.range(0))},
                {"Quillet", "Preferences", "prfPokerAutoDeal", "False"},
                {"Quillet", "Preferences", "prfSound", "False"}});
    SdlSoundOutput sound;
    SystemClock clock;
    BlendingRandom random([] { return std::uint64_t{0}; }, 1);
    Surroundings surroundings{.store = store,
                              .openPage = openInBrowser,
                              .sound = sound,
                              .errorBox = showErrorBox,
                              .clock = clock,
                              .nextDeck = [&random] { return shuffledDeck(random); },
                              .programFolder = QUILLET_PROGRAM_FOLDER,
                              .shortDelay = shortDelay,
                              .endProcess = [](int code) { std::_Exit(code); }};
    frmMain window(surroundings);
    if (!window.Form_Load()) {
        state.SkipWithError("the window did not load");
        return;
    }
    const auto draw = [&window] {
        holdBestPlay(window);
        window.picDeal_Click(0);
    };
    draw(); // the program deals the first hand itself
    for ([[maybe_unused]] auto step : state) {
        window.picDeal_Click(0);
        draw();
    }
}

BENCHMARK(hand)
    ->Arg(0)
    ->Arg(300)
    ->ArgName("delay")
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Iterations(5);

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS); // closing the window would show the exit screen
}
