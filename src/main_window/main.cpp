#include "engine/random.h"
#include "main_window/frm_main.h"
#include "platform/browser_opener.h"
#include "platform/message_error_box.h"
#include "platform/short_delay.h"
#include "platform/system_clock.h"
#include "platform/window_loss.h"
#include "settings/text_file_store.h"
#include "sound/sdl_sound_output.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <cstdlib>

namespace
{

// The larger icons would take a good part of the time until the window shows, and no window
// manager asks a window for them.
void useIcons()
{
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/icons/quillet-%1.png").arg(size), QSize(size, size));
    QApplication::setWindowIcon(icon);
}

// Names the help file, loads the main window and runs the program to its end.
int Main(quillet::Surroundings& surroundings)
{
    surroundings.helpFile = surroundings.programFolder + "/quillet.hlp";
    quillet::frmMain window(surroundings);
    const quillet::WindowLoss loss;
    const int code = window.Form_Load() ? QApplication::exec() : EXIT_FAILURE;
    surroundings.endProcess(code);
    return code;
}

} // namespace

int main(int argc, char* argv[])
{
    using namespace quillet;

    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillet"));
    QGuiApplication::setDesktopFileName(QStringLiteral("quillet"));
    useIcons();

    TextFileStore store;
    BrowserOpener pages;
    SdlSoundOutput sound;
    MessageErrorBox errorBox;
    SystemClock clock;
    BlendingRandom random(timeOfDay);
    ShuffledDecks decks(random);
    Surroundings surroundings{
        store,
        pages,
        sound,
        errorBox,
        clock,
        decks,
        {},
        QCoreApplication::applicationDirPath().toStdString(),
        shortDelay,
        // Windows may be waiting in nested event loops, so nothing is unwound.
        [&sound](int code) {
            sound.stop();
            std::fflush(nullptr);
            std::_Exit(code);
        }};

    return Main(surroundings);
}
