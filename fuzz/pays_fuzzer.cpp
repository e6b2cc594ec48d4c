#include "fuzz/fuzzer.h"
#include "odds/bad_input.h"
#include "odds/pays.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    using namespace quillet::odds;
    try {
        const Pays pays = parsePays(fuzz::textOf(data, size));
        fuzz::require(looksLikePays(paysText(pays)) && parsePays(paysText(pays)) == pays);
    } catch (const BadInput& error) {
        fuzz::require(printable(error.what(), 4096) == error.what());
    }
    return 0;
}
