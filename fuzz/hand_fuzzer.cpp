#include "fuzz/fuzzer.h"
#include "odds/bad_input.h"
#include "odds/hand_text.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    using namespace quillet::odds;
    try {
        const auto places = parseHand(fuzz::textOf(data, size));
        fuzz::require(parseHand(holdText(places, holdAll)) == places);
    } catch (const BadInput& error) {
        fuzz::require(printable(error.what(), 4096) == error.what());
    }
    return 0;
}
