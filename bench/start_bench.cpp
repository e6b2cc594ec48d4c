// Starts the trainer on an X display and measures the wall time to the visible table: for an empty
// window for comparison, for a second start, and for the very first start, which measures the
// machine. Then it leaves the trainer idle for a minute. The counter "main ms" is the processor
// time of the main thread, on which other programs have little influence.
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

enum class Start { emptyWindow, first, second };

class Trainer
{
public:
    explicit Trainer(Start start)
    {
        QDir(m_config.path()).mkdir("Quillet");
        QFile settings(m_config.path() + "/Quillet/settings.ini");
        // After the first start the flights are calibrated.
        if (start == Start::second && settings.open(QIODevice::WriteOnly))
            settings.write("[Preferences]\nprfAnimationDelay=300\nprfBannerDelay=300\n"
                           "prfPokerAutoDeal=False\n");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", m_config.path());
        m_process.setProcessEnvironment(environment);
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(start == Start::emptyWindow ? QUILLET_EMPTY_WINDOW : QUILLET_PROGRAM,
                        QStringList());
    }

    ~Trainer()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    // Processor time of the main thread so far, in milliseconds.
    [[nodiscard]] double mainThreadTime() const
    {
        QFile times(QStringLiteral("/proc/%1/task/%1/schedstat").arg(m_process.processId()));
        if (!times.open(QIODevice::ReadOnly))
            return 0;
        return times.readLine().split(' ').value(0).toDouble() / 1e6;
    }

    // The same of all threads.
    [[nodiscard]] double processorTime() const
    {
        clockid_t clock = 0;
        timespec time{};
        clock_getcpuclockid(static_cast<pid_t>(m_process.processId()), &clock);
        clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    // Resident memory in megabytes.
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

// Whether the middle of the screen, where the window opens, shows wood.
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

// Waits until the trainer has been idle for three seconds. No pause of the first deal is that long.
void waitUntilIdle(const Trainer& trainer)
{
    double before = -1;
    for (int attempt = 0; attempt < 40 && trainer.processorTime() > before + 1; ++attempt) {
        before = trainer.processorTime();
        QThread::sleep(3);
    }
}

void startToVisibleTable(benchmark::State& state, Start start)
{
    for ([[maybe_unused]] auto step : state) {
        QElapsedTimer waited;
        waited.start();
        const Trainer trainer(start);
        while (!tableIsVisible() && !waited.hasExpired(30'000))
            QThread::usleep(500);
        state.SetIterationTime(static_cast<double>(waited.nsecsElapsed()) / 1e9);
        state.counters["main ms"] = trainer.mainThreadTime();
        state.counters["processor ms"] = trainer.processorTime();
    }
}

void aMinuteOfWaiting(benchmark::State& state)
{
    for ([[maybe_unused]] auto step : state) {
        const Trainer trainer(Start::second);
        waitUntilIdle(trainer);
        const double before = trainer.processorTime();
        QThread::sleep(60);
        state.counters["processor ms"] = trainer.processorTime() - before;
        state.counters["resident MB"] = trainer.memory();
    }
}

// Single starts. The median ignores a start that other programs delayed.
void manyStarts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);
    benchmark->ReportAggregatesOnly();
}

BENCHMARK_CAPTURE(startToVisibleTable, emptyWindow, Start::emptyWindow)
    ->Apply(manyStarts)
    ->Repetitions(15);
BENCHMARK_CAPTURE(startToVisibleTable, second, Start::second)->Apply(manyStarts)->Repetitions(15);
BENCHMARK_CAPTURE(startToVisibleTable, first, Start::first)->Apply(manyStarts)->Repetitions(3);
BENCHMARK(aMinuteOfWaiting)->Unit(benchmark::kSecond)->UseRealTime()->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
