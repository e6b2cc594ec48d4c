#include "charts/chart.h"
#include "fuzz/fuzzer.h"
#include "odds/bad_input.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    using namespace quillet::odds;
    try {
        const charts::Chart chart = charts::parseChart(fuzz::textOf(data, size));
        fuzz::require(charts::parseChart(charts::chartText(chart)) == chart);
    } catch (const BadInput& error) {
        fuzz::require(printable(error.what(), 4096) == error.what());
    }
    return 0;
}
