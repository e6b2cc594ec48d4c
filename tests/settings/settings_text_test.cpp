#include "settings/settings_text.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace quillet::test
{

namespace
{

std::string madeUp(std::mt19937& random, std::size_t length)
{
    using namespace std::literals;
    static constexpr auto pieces = std::to_array<std::string_view>(
        {" ",    "\t",   "\n",           "\r",    "=", "=",  "#", ";",    "[",
         "]",    "\\",   "\\n",          "\\x41", "x", "\"", "é", "\x7F", "\x01",
         "\xFF", "\xC3", "\xEF\xBB\xBF", "\0"sv});
    std::string text;
    for (auto left = random() % length; left > 0; --left)
        text += pieces[random() % pieces.size()];
    return text;
}

SettingsText parsed(std::string_view bytes)
{
    const std::optional<SettingsText> text = SettingsText::parse(bytes);
    EXPECT_TRUE(text.has_value()) << bytes;
    return text.value_or(SettingsText());
}

std::string value(const SettingsText& text, const std::string& section, const std::string& key)
{
    return readSetting(text.settings("Quillet"), "Quillet", section, key, "missing");
}

} // namespace

TEST(SettingsText, everyTextComesBackFromWhateverCouldBeParsed)
{
    std::mt19937 random(1);
    int files = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::optional<SettingsText> text = SettingsText::parse(madeUp(random, 8));
        if (!text)
            continue;
        ++files;
        const std::string section = madeUp(random, 5), key = madeUp(random, 5);
        const std::string first = madeUp(random, 6), second = madeUp(random, 6);
        text->setValue(section, key, first);
        text->setValue(section, key + "2", second);
        const SettingsText again = parsed(text->bytes());
        EXPECT_EQ(value(again, section, key), first) << text->bytes();
        EXPECT_EQ(value(again, section, key + "2"), second) << text->bytes();
        EXPECT_EQ(again.bytes(), text->bytes());
    }
    EXPECT_GT(files, 2'000);
}

TEST(SettingsText, whatAPersonWroteIsUnderstoodAndKept)
{
    SettingsText text = parsed("# mine\nloose = 1\n\n [ Play ] \n;off\n  a = b = c # d \n"
                               "path=C:\\games\\x.jpg\na=second\n\n# tail\n[Other]\nz=1");
    EXPECT_EQ(value(text, "", "loose"), "1");
    EXPECT_EQ(value(text, "Play", "a"), "second");
    EXPECT_EQ(value(text, "Play", "path"), "C:\\games\\x.jpg");
    EXPECT_EQ(value(text, "Play", "z"), "missing");

    text.setValue("Play", "a", "third");
    text.setValue("Play", "new", "2");
    text.setValue("Last", "k", "");
    EXPECT_EQ(text.bytes(), "# mine\nloose = 1\n\n [ Play ] \n;off\n  a = b = c # d \n"
                            "path=C:\\games\\x.jpg\na=third\nnew=2\n\n# tail\n[Other]\nz=1\n"
                            "\n[Last]\nk=\n");
    text = parsed("[E]\n\tt\t=\t\\x5a\\x5B\n[F]\n# tail\n");
    EXPECT_EQ(value(text, "E", "t"), "Z[") << "small digits and large ones, between tabs";
    text.setValue("F", "k", "\x80");
    EXPECT_TRUE(text.bytes().ends_with("[F]\nk=\\x80\n# tail\n")) << text.bytes();
    text = parsed("\xEF\xBB\xBF[A]\r\nk=1\r\n\r\n");
    EXPECT_EQ(value(text, "A", "k"), "1");
    text.setValue("A", "l", "2");
    EXPECT_EQ(text.bytes(), "\xEF\xBB\xBF[A]\r\nk=1\r\nl=2\r\n\r\n");
}

} // namespace quillet::test
