// The cost of the table: a frame of a flight, a repaint, the calibration.
#include "bench/busy_load.h"
#include "platform/system_clock.h"
#include "table/counting_loop.h"
#include "table/init_anim_delay.h"
#include "table/picture_file.h"
#include "tests/kit/painted_table.h"

#include <QApplication>
#include <benchmark/benchmark.h>

namespace
{

using namespace quillet;

// The wood table.
struct Painted : test::PaintedTable {
    explicit Painted(double scale)
    {
        paint(loadPictureFile(QStringLiteral(QUILLET_ASSETS "/pics/vpokerwood.jpg"), scale), scale);
        QApplication::processEvents();
    }

    SystemClock clock;
};

// Counts the milliseconds from its creation, as if the program had just started.
class ClockFromNow : public SystemClock
{
public:
    [[nodiscard]] std::int64_t milliseconds() const override
    {
        return SystemClock::milliseconds() - m_start;
    }

private:
    const std::int64_t m_start = SystemClock::milliseconds();
};

// Without delay. The counter shows the time of one frame.
void flight(benchmark::State& state)
{
    Painted painted(static_cast<double>(state.range(0)));
    painted.preferences.prfAnimation = true;
    for ([[maybe_unused]] auto step : state) {
        std::int32_t x = 209;
        std::int32_t y = 95;
        painted.flight.AnimateCard(x, y, 482, 284, 1, Painted::sleeve, drawBack);
    }
    state.counters["frame"] = benchmark::Counter(
        273, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void repaintOfTheTable(benchmark::State& state)
{
    Painted painted(static_cast<double>(state.range(0)));
    for ([[maybe_unused]] auto step : state)
        painted.painter.repaint(Painted::measures, Painted::sleeve);
}

void oneDelayUnit(benchmark::State& state)
{
    for ([[maybe_unused]] auto step : state)
        countingLoop(1);
}

// The range is the number of busy programs beside it.
void firstStartCalibration(benchmark::State& state)
{
    const BusyLoad load(state.range(0));
    Painted painted(1.0);
    for ([[maybe_unused]] auto step : state) {
        const ClockFromNow clock;
        painted.preferences.prfBannerDelay = 0;
        InitAnimDelay(
            painted.canvas, painted.library, Painted::measures, painted.preferences, clock,
            [&painted](const std::string& text) { painted.errors.push_back(text); }, [] {});
    }
    state.counters["flight delay"] = painted.preferences.prfAnimationDelay;
    state.counters["banner delay"] = painted.preferences.prfBannerDelay;
}

BENCHMARK(flight)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(repaintOfTheTable)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(oneDelayUnit)->Unit(benchmark::kMicrosecond);
BENCHMARK(firstStartCalibration)
    ->Arg(0)
    ->Arg(8)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
