// The trainer with the known hand at every deal and the settings of the given folder, for
// tools/record-hand.sh, which plays and records it.

#include "assets/known_hand.h"
#include "main_window/frm_main.h"
#include "platform/browser_opener.h"
#include "platform/error_box.h"
#include "platform/short_delay.h"
#include "platform/system_clock.h"
#include "settings/text_file_store.h"
#include "sound/sdl_sound_output.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    using namespace quillet;

    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: known_table FOLDER\n");
        return 2;
    }
    TextFileStore store(QString::fromLocal8Bit(argv[1]));
    store.save({{"Quillet", "Preferences", "prfAnimationDelay", "60"}, // quick cards
                {"Quillet", "Preferences", "prfSound", "False"},
                {"Quillet", "Preferences", "prfPokerAutoDeal", "False"},
                {"Quillet", "Preferences", "prfShowPokerPlay", "False"}});
    SdlSoundOutput sound;
    SystemClock clock;
    Surroundings surroundings{.store = store,
                              .openPage = openInBrowser,
                              .sound = sound,
                              .errorBox = showErrorBox,
                              .clock = clock,
                              .nextDeck = known_hand::deck,
                              .programFolder = QUILLET_PROGRAM_FOLDER,
                              .shortDelay = shortDelay,
                              .endProcess = [](int code) { std::_Exit(code); }};
    frmMain window(surroundings);
    return window.Form_Load() ? QApplication::exec() : EXIT_FAILURE;
}
