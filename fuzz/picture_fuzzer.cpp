#include "faults/run_time_error.h"
#include "fuzz/fuzzer.h"
#include "fuzz/memory_file.h"
#include "table/picture_file.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    const fuzz::MemoryFile file(fuzz::textOf(data, size));
    try {
        (void)loadPictureFile(QString::fromStdString(file.path()), 1.0);
    } catch (const RunTimeError&) { // a refusal
    }
    return 0;
}
