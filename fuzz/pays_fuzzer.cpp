#include "fuzz/fuzzer.h"
#include "odds/bad_input.h"
#include "odds/pays.h"

#include <algorithm>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    using namespace quillet::odds;
    try {
        const Pays pays = parsePays(fuzz::textOf(data, size));
        fuzz::require(std::ranges::all_of(
            pays, [](std::int64_t credits) { return credits >= 0 && credits <= maxPay; }));
    } catch (const BadInput& error) {
        fuzz::require(printable(error.what(), 4096) == error.what());
    }
    return 0;
}
