#include "fuzz/fuzzer.h"
#include "settings/settings_text.h"

#include <string>

// Text is written back unchanged, except that the last line gets an end. New settings are read
// back.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quillet;
    const std::string_view text = fuzz::textOf(data, size);
    auto settings = SettingsText::parse(text);
    if (!settings)
        return 0;
    fuzz::require(settings->bytes() == text || settings->bytes() == std::string(text) + "\n");
    const std::string value(text.substr(0, size / 2));
    settings->setValue(value, "key", text);
    const auto again = SettingsText::parse(settings->bytes());
    fuzz::require(again &&
                  readSetting(again->settings("Quillet"), "Quillet", value, "key", "") == text);
    return 0;
}
