#include "fuzz/fuzzer.h"
#include "odds_program/command_line.h"

#include <algorithm>
#include <string_view>
#include <vector>

// Each line is an argument.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    using namespace quillet::odds;
    using namespace quillet::odds_program;
    std::vector<std::string_view> arguments;
    for (std::string_view left = fuzz::textOf(data, size); !left.empty();) {
        arguments.push_back(left.substr(0, left.find('\n')));
        left.remove_prefix(std::min(arguments.back().size() + 1, left.size()));
    }
    try {
        const Request request = parseArguments(arguments);
        fuzz::require(request.minLines <= request.maxLines && request.hands >= 0);
    } catch (const BadUsage& error) {
        const std::string_view why = error.what();
        const std::string_view line = why.substr(0, why.find('\n'));
        fuzz::require(printable(line, 4096) == line);
    }
    return 0;
}
