#include "faults/run_time_error.h"
#include "fuzz/fuzzer.h"
#include "settings/numeric_text.h"

#include <string>

// A whole number is read back.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    try {
        const double number = toNumber(fuzz::textOf(data, size));
        const std::int32_t rounded = toInt32(number);
        fuzz::require(toNumber(std::to_string(rounded)) == rounded);
        (void)toInt16(number);
    } catch (const RunTimeError&) {
        // Not a number, or too large.
    }
    return 0;
}
