#include "engine/random.h"
#include "main_window/frm_main.h"
#include "platform/browser_opener.h"
#include "platform/error_box.h"
#include "platform/short_delay.h"
#include "platform/system_clock.h"
#include "platform/window_icon.h"
#include "platform/window_loss.h"
#include "settings/text_file_store.h"
#include "sound/sdl_sound_output.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{

// Loads the main window and runs the program to its end.
int Main()
{
    using namespace quillet;

    TextFileStore store;
    SdlSoundOutput sound;
    SystemClock clock;
    BlendingRandom random(timeOfDay);
    const std::string folder = QCoreApplication::applicationDirPath().toStdString();
    Surroundings surroundings{.store = store,
                              .openPage = openInBrowser,
                              .sound = sound,
                              .errorBox = showErrorBox,
                              .clock = clock,
                              .nextDeck = [&random] { return shuffledDeck(random); },
                              .programFolder = folder,
                              .shortDelay = shortDelay,
                              // Nested event loops may be waiting, so nothing is unwound.
                              .endProcess =
                                  [&sound](int code) {
                                      sound.stop();
                                      std::fflush(nullptr);
                                      std::_Exit(code);
                                  }};
    frmMain window(surroundings);
    const WindowLoss loss;
    const int code = window.Form_Load() ? QApplication::exec() : EXIT_FAILURE;
    surroundings.endProcess(code);
    return code;
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillet"));
    QGuiApplication::setDesktopFileName(QStringLiteral("quillet"));
    quillet::useWindowIcon("quillet");
    return Main();
}
