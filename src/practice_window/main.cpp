#include "platform/browser_opener.h"
#include "platform/window_loss.h"
#include "practice_window/practice_window.h"
#include "settings/text_file_store.h"
#include "sound/sdl_sound_output.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace
{

using namespace quillet;

// Where programs keep what they have noted.
std::filesystem::path stateFolder()
{
    const char* state = std::getenv("XDG_STATE_HOME");
    if (state != nullptr && *state == '/')
        return state;
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home != nullptr ? home : "/") / ".local" / "state";
}

charts::Chart losslessChart()
{
    QFile file(":/charts/perfect.chart");
    if (!file.open(QIODevice::ReadOnly))
        return charts::trainersChart();
    return charts::parseChart(file.readAll().toStdString());
}

std::chrono::sys_seconds now()
{
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

void useIcons()
{
    QTimer::singleShot(0, [] {
        QIcon icon;
        for (const int size : {16, 22, 24, 32, 48, 64, 128})
            icon.addFile(QString(":/icons/quillet-practice-%1.png").arg(size));
        QApplication::setWindowIcon(icon);
    });
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillet Practice"));
    QGuiApplication::setDesktopFileName(QStringLiteral("quillet-practice"));
    useIcons();
    TextFileStore store;
    BrowserOpener pages;
    SdlSoundOutput sound;
    std::random_device seed;
    practice_window::PracticeWindow window(
        {.store = store,
         .pages = pages,
         .sound = sound,
         .rules = losslessChart(),
         .journal = stateFolder() / "Quillet" / "practice.csv",
         .programFolder = QCoreApplication::applicationDirPath().toStdString(),
         .seed = seed(),
         .now = now});
    const WindowLoss loss;
    window.show();
    return QApplication::exec();
}
