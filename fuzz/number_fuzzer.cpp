#include "faults/run_time_error.h"
#include "fuzz/fuzzer.h"
#include "settings/numeric_text.h"

#include <string>

// A whole number is read back, and blanks around it do not count.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    const std::string text(fuzz::textOf(data, size));
    const auto number = parseNumber(text);
    fuzz::require(number.has_value() == parseNumber(" " + text + "\t").has_value());
    if (!number || !fitsInt32(*number))
        return 0;
    const std::int32_t rounded = toInt32(*number);
    fuzz::require(parseNumber(std::to_string(rounded)) == rounded);
    try {
        (void)toInt16(*number);
    } catch (const RunTimeError&) {
        // Does not fit.
    }
    return 0;
}
