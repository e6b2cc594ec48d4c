#include "platform/settings_text.h"

#include <gtest/gtest.h>

#include <random>

namespace quillet::test
{

namespace
{

std::string nastyText(std::mt19937& random)
{
    static const std::vector<std::string> pieces = {"",
                                                    " ",
                                                    "\t",
                                                    "\n",
                                                    "\r",
                                                    "=",
                                                    "#",
                                                    ";",
                                                    "[",
                                                    "]",
                                                    "\\",
                                                    "\\n",
                                                    "\\x41",
                                                    "x",
                                                    "\"",
                                                    "%1",
                                                    "é",
                                                    "♥",
                                                    ",",
                                                    "/",
                                                    "..",
                                                    "\x7F",
                                                    "\x01",
                                                    "\xFF",
                                                    "\xC3",
                                                    "&H",
                                                    "-1",
                                                    "key",
                                                    "\xEF\xBB\xBF",
                                                    "\xE2\x80\xA8",
                                                    std::string(1, '\0')};
    std::string text;
    for (auto left = random() % 6; left > 0; --left)
        text += pieces[random() % pieces.size()];
    return text;
}

SettingsText parsed(std::string_view bytes)
{
    const std::optional<SettingsText> text = SettingsText::parse(bytes);
    EXPECT_TRUE(text.has_value()) << bytes;
    return text.value_or(SettingsText());
}

} // namespace

TEST(SettingsText, everyTextComesBack)
{
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        SettingsText text;
        std::vector<std::array<std::string, 3>> stored;
        for (int i = 0; i < 8; ++i) {
            auto& [section, key, value] = stored.emplace_back();
            section = nastyText(random);
            key = nastyText(random) + std::to_string(i);
            value = nastyText(random);
            text.setValue(section, key, value);
        }
        text = parsed(text.bytes());
        for (const auto& [section, key, value] : stored)
            EXPECT_EQ(text.value(section, key), value) << text.bytes();
    }
    SettingsText empty;
    empty.setValue("", "", "");
    EXPECT_EQ(parsed(empty.bytes()).value("", ""), "");
    EXPECT_EQ(parsed(empty.bytes()).value("", "x"), std::nullopt);
}

TEST(SettingsText, whatAPersonWroteIsUnderstoodAndKept)
{
    SettingsText text = parsed("# mine\nloose = 1\n\n [ Play ] \n;off=1\n  a = b = c # d \n"
                               "path=C:\\games\\x.jpg\na=second\n\n# tail\n[Other]\nz=1");
    EXPECT_EQ(text.value("", "loose"), "1");
    EXPECT_EQ(text.value("Play", "a"), "second");
    EXPECT_EQ(text.value("Play", "path"), "C:\\games\\x.jpg");
    EXPECT_EQ(text.value("Play", "off"), std::nullopt);
    EXPECT_EQ(text.value("Play", "z"), std::nullopt);

    text.setValue("Play", "a", "third");
    text.setValue("Play", "new", "2");
    text.setValue("Last", "k", "v");
    EXPECT_EQ(text.bytes(), "# mine\nloose = 1\n\n [ Play ] \n;off=1\n  a = b = c # d \n"
                            "path=C:\\games\\x.jpg\na=third\nnew=2\n\n# tail\n[Other]\nz=1\n"
                            "\n[Last]\nk=v\n");
}

TEST(SettingsText, lineEndsAndByteOrderMarkStay)
{
    SettingsText text = parsed("\xEF\xBB\xBF[A]\r\nk=1\r\n\r\n");
    EXPECT_EQ(text.value("A", "k"), "1");
    text.setValue("A", "k", "2");
    text.setValue("A", "l", "");
    EXPECT_EQ(text.bytes(), "\xEF\xBB\xBF[A]\r\nk=2\r\nl=\r\n\r\n");
}

TEST(SettingsText, otherFilesAreRefused)
{
    for (const std::string_view bytes : {"word", "[open", "[A]\nk=1\nword\n", "[A] # comment",
                                         "k=\xFF", "k=\x01", "k=a\rb", "\xFF\xFE[\0A\0"})
        EXPECT_FALSE(SettingsText::parse(bytes).has_value()) << bytes;
    EXPECT_FALSE(SettingsText::parse(std::string_view("k=\0", 3)).has_value());
    EXPECT_TRUE(SettingsText::parse("").has_value());
}

TEST(SettingsText, rubbishIsRefusedOrSettlesAtOnce)
{
    std::mt19937 random(2);
    const std::string alphabet = "[]==##;\\\\x4n\n\n\r\t ab\xC3\xA9";
    int understood = 0;
    for (int i = 0; i < 20'000; ++i) {
        std::string bytes;
        for (auto left = random() % 14; left > 0; --left)
            bytes += alphabet[random() % alphabet.size()];
        std::optional<SettingsText> text = SettingsText::parse(bytes);
        if (!text)
            continue;
        ++understood;
        text->setValue("a", "b", bytes);
        const SettingsText again = parsed(text->bytes());
        EXPECT_EQ(again.value("a", "b"), bytes);
        EXPECT_EQ(again.bytes(), text->bytes());
    }
    EXPECT_GT(understood, 500);
}

} // namespace quillet::test
