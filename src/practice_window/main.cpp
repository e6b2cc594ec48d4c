#include "platform/browser_opener.h"
#include "platform/window_icon.h"
#include "platform/window_loss.h"
#include "practice_window/practice_window.h"
#include "settings/text_file_store.h"
#include "settings/user_folder.h"
#include "sound/sdl_sound_output.h"

#include <QApplication>
#include <QFile>

#include <filesystem>
#include <random>

namespace
{

using namespace quillet;

std::filesystem::path journalPath()
{
    const QString folder = userFolder("XDG_STATE_HOME", ".local/state") + "/Quillet";
    return std::filesystem::path(QFile::encodeName(folder).toStdString()) / "practice.csv";
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

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillet Practice"));
    QGuiApplication::setDesktopFileName(QStringLiteral("quillet-practice"));
    useWindowIcon("quillet-practice");
    TextFileStore store;
    SdlSoundOutput sound;
    std::random_device seed;
    practice_window::PracticeWindow window(
        {.store = store,
         .openPage = openInBrowser,
         .sound = sound,
         .rules = losslessChart(),
         .journal = journalPath(),
         .programFolder = QCoreApplication::applicationDirPath().toStdString(),
         .seed = seed(),
         .now = now});
    const WindowLoss loss;
    window.show();
    return QApplication::exec();
}
