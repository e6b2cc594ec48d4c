// The time of Quillet Practice from an answer to the comment, and from there to the next question,
// including painting.
#include "platform/browser_opener.h"
#include "practice_window/practice_window.h"
#include "settings/text_file_store.h"
#include "sound/sdl_sound_output.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <cstdlib>

namespace
{

using namespace quillet;
using namespace quillet::practice_window;

class OpenWindow
{
public:
    OpenWindow()
    {
        m_store.save({{"Quillet", "Practice", "sound", "False"}});
        QFile rules(":/charts/perfect.chart");
        if (!rules.open(QIODevice::ReadOnly))
            std::exit(EXIT_FAILURE);
        m_window.emplace(Surroundings{.store = m_store,
                                      .openPage = openInBrowser,
                                      .sound = m_sound,
                                      .rules = charts::parseChart(rules.readAll().toStdString()),
                                      .journal = m_folder.filePath("practice.csv").toStdString(),
                                      .programFolder = m_folder.path().toStdString(),
                                      .seed = 1,
                                      .now = [] { return std::chrono::sys_seconds(); }});
        m_window->show();
        static_cast<void>(m_window->teacher());
        QApplication::processEvents();
    }

    void pressEnter()
    {
        m_window->answerOrGoOn();
        QApplication::processEvents();
    }

private:
    QTemporaryDir m_folder;
    TextFileStore m_store{m_folder.path()};
    SdlSoundOutput m_sound;
    std::optional<PracticeWindow> m_window;
};

// After this many answers.
void nextQuestion(benchmark::State& state)
{
    OpenWindow window;
    for (int i = 0; i < 2 * state.range(0); ++i)
        window.pressEnter();
    for ([[maybe_unused]] auto step : state) {
        state.PauseTiming();
        window.pressEnter();
        state.ResumeTiming();
        window.pressEnter();
    }
}

void comment(benchmark::State& state)
{
    OpenWindow window;
    for ([[maybe_unused]] auto step : state) {
        window.pressEnter();
        state.PauseTiming();
        window.pressEnter();
        state.ResumeTiming();
    }
}

BENCHMARK(nextQuestion)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(100);
BENCHMARK(comment)->Unit(benchmark::kMillisecond)->Iterations(100);

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
