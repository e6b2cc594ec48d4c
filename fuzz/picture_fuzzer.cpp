#include "fuzz/fuzzer.h"
#include "table/picture_integrity.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto text = quillet::fuzz::textOf(data, size);
    (void)quillet::goesOnToItsEnd(QByteArray(text.data(), static_cast<qsizetype>(size)));
    return 0;
}
