// Starts the trainer itself on the display and tells how long the player waits for the table, at a
// second start and at the very first one, which measures the machine; then leaves it alone for a
// minute. Needs an X display.
#include "bench/busy_load.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>
#include <benchmark/benchmark.h>

#include <ctime>

namespace
{

enum class Start { first, second };

class Trainer
{
public:
    explicit Trainer(Start start)
    {
        QDir(m_config.path()).mkdir("Quillet");
        QFile settings(m_config.path() + "/Quillet/settings.ini");
        // One that has been started before has calibrated flights.
        if (start == Start::second && settings.open(QIODevice::WriteOnly))
            settings.write("[Preferences]\nprfAnimationDelay=300\nprfBannerDelay=300\n"
                           "prfPokerAutoDeal=False\n");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", m_config.path());
        m_process.setProcessEnvironment(environment);
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(QUILLET_PROGRAM, QStringList());
    }

    ~Trainer()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    // Milliseconds on the processor so far.
    [[nodiscard]] double processorTime() const
    {
        clockid_t clock = 0;
        timespec time{};
        clock_getcpuclockid(static_cast<pid_t>(m_process.processId()), &clock);
        clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    // Resident megabytes.
    [[nodiscard]] double memory() const
    {
        constexpr double pageSize = 4096;
        QFile pages(QStringLiteral("/proc/%1/statm").arg(m_process.processId()));
        if (!pages.open(QIODevice::ReadOnly))
            return 0;
        return pages.readLine().split(' ').value(1).toDouble() * pageSize / 1e6;
    }

private:
    QTemporaryDir m_config;
    QProcess m_process;
};

// Whether wood shows across the middle of the screen, where the table's window comes up.
bool tableIsVisible()
{
    QScreen* screen = QGuiApplication::primaryScreen();
    const QRect all = screen->geometry();
    const QImage row = screen->grabWindow(0, 0, all.height() / 2, all.width(), 1).toImage();
    int warm = 0;
    for (int x = 0; x < row.width(); ++x)
        warm += qRed(row.pixel(x, 0)) > qBlue(row.pixel(x, 0)) + 15;
    return warm > 300;
}

// The range is the number of other programs at work.
void startToVisibleTable(benchmark::State& state, Start start)
{
    const BusyLoad load(state.range(0));
    double processor = 0;
    for ([[maybe_unused]] auto step : state) {
        QElapsedTimer waited;
        waited.start();
        const Trainer trainer(start);
        while (!tableIsVisible() && !waited.hasExpired(30'000))
            QThread::usleep(500);
        state.SetIterationTime(static_cast<double>(waited.nsecsElapsed()) / 1e9);
        processor += trainer.processorTime();
    }
    state.counters["processor ms"] =
        benchmark::Counter(processor, benchmark::Counter::kAvgIterations);
}

// From the moment when the first hand lies on the table.
void aMinuteOfWaiting(benchmark::State& state)
{
    for ([[maybe_unused]] auto step : state) {
        const Trainer trainer(Start::second);
        QThread::sleep(8);
        const double before = trainer.processorTime();
        QThread::sleep(60);
        state.counters["processor ms"] = trainer.processorTime() - before;
        state.counters["resident MB"] = trainer.memory();
    }
}

BENCHMARK_CAPTURE(startToVisibleTable, second, Start::second)
    ->Arg(0)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);
BENCHMARK_CAPTURE(startToVisibleTable, first, Start::first)
    ->Arg(0)
    ->Arg(8)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK(aMinuteOfWaiting)->Unit(benchmark::kSecond)->UseRealTime()->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
