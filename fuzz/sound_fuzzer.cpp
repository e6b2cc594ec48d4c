#include "fuzz/fuzzer.h"
#include "fuzz/memory_file.h"
#include "sound/cue_library.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    const fuzz::MemoryFile file(fuzz::textOf(data, size));
    (void)CueLibrary().find(file.path());
    return 0;
}
