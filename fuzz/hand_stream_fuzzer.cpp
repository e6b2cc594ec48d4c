#include "fuzz/fuzzer.h"
#include "odds/bad_input.h"
#include "odds_program/hand_stream.h"

#include <sstream>
#include <string>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    using namespace quillet::odds;
    using namespace quillet::odds_program;
    static const HeldCards heldCards;
    std::istringstream hands{std::string(fuzz::textOf(data, size))};
    const Style style{size % 3 == 0 ? Format::text : size % 3 == 1 ? Format::csv : Format::json};
    std::ostringstream out;
    try {
        answerHands(hands, out, heldCards, false, style);
    } catch (const BadInput& error) {
        fuzz::require(printable(error.what(), 4096) == error.what());
    }
    return 0;
}
