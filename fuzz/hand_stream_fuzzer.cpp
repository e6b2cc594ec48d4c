#include "fuzz/fuzzer.h"
#include "fuzz/memory_file.h"
#include "odds/bad_input.h"
#include "odds_program/hand_stream.h"

#include <sstream>
#include <string>

namespace
{

using namespace quillet;
using namespace quillet::odds;
using namespace quillet::odds_program;

// Lines are what there is in the whole text.
void compareLines(const fuzz::MemoryFile& file, std::size_t size)
{
    std::string text, line;
    TextInput lines(file.path());
    while (lines.takeLine(line, size))
        text += line + '\n';
    std::string all = TextInput(file.path()).all(size);
    if (!all.empty() && all.back() != '\n')
        all += '\n';
    // A byte order mark alone is an empty line.
    fuzz::require(text == all || (all.empty() && text == "\n"));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const HeldCards heldCards;
    const fuzz::MemoryFile file(fuzz::textOf(data, size));
    const Style style{size % 3 == 0 ? Format::text : size % 3 == 1 ? Format::csv : Format::json};
    std::ostringstream out;
    try {
        compareLines(file, size);
        TextInput hands(file.path(), &out);
        answerHands(hands, out, heldCards, false, style);
    } catch (const BadInput& error) {
        fuzz::require(printable(error.what(), 4096) == error.what());
    }
    return 0;
}
