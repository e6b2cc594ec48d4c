#include "engine/run_time_error.h"
#include "shell/numeric_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace quillet::test
{

namespace
{

// The converted number as a text, or what the conversion raised.
template <typename Convert>
std::string outcome(const std::string& text, Convert convert)
{
    try {
        return std::to_string(convert(toNumber(text)));
    } catch (const RunTimeError& error) {
        return error.what();
    }
}

struct Row {
    std::string text, as16, as32;
};

void expectRows(const std::vector<Row>& rows)
{
    for (const auto& [text, as16, as32] : rows) {
        EXPECT_EQ(outcome(text, toInt16), as16) << text;
        EXPECT_EQ(outcome(text, toInt32), as32) << text;
    }
}

} // namespace

TEST(NumericText, decimalTextsConvertExactly)
{
    const std::string o = "Overflow";
    const std::string zeros(400, '0');
    expectRows({
        {"65", "65", "65"},
        {" \t-12 ", "-12", "-12"},
        {"+7", "7", "7"},
        {"2.", "2", "2"},
        {"12.5", "12", "12"},
        {"13.5", "14", "14"},
        {".5", "0", "0"},
        {"-1.5", "-2", "-2"},
        {".05", "0", "0"},
        {"0.5" + zeros + "1", "1", "1"},
        {"12.4999999999999999999999999", "12", "12"},
        {zeros + "1", "1", "1"},
        {"0." + zeros + "1e401", "1", "1"},
        {"1" + zeros + "e-400", "1", "1"},
        {"1e3", "1000", "1000"},
        {"25E-1", "2", "2"},
        {"1D+2", "100", "100"},
        {"1e-400", "0", "0"},
        {"0e99999999999999999999", "0", "0"},
        {"5e-99999999999999999999", "0", "0"},
        {"32767.49", "32767", "32767"},
        {"32767.5", o, "32768"},
        {"-32768.5", "-32768", "-32768"},
        {"2147483647.4", o, "2147483647"},
        {"2147483647.5", o, o},
        {"-2147483648.5", o, "-2147483648"},
        {"-2147483649", o, o},
        {"99999999999999999999", o, o},
        {"1e400", o, o},
        {"1e99999999999999999999", o, o},
    });
}

TEST(NumericText, bitPatternsTakeTheirSignFromTheTopBit)
{
    const std::string o = "Overflow";
    expectRows({
        {"&H0000FF00&", o, "65280"},
        {"&HFF&", "255", "255"},
        {" &hfF ", "255", "255"},
        {"&HFFFF", "-1", "65535"},
        {"&HFFFF&", o, "65535"},
        {"&H00008000", "-32768", "32768"},
        {"&H10000", o, "65536"},
        {"&HFFFFFFFF&", "-1", "-1"},
        {"&HFFFFFFFF", "-1", "-1"},
        {"&H80000008", o, "-2147483640"},
        {"&H100000000", o, o},
        {"&H" + std::string(60, 'F'), o, o},
        {"&O17", "15", "15"},
        {"&o177777", "-1", "65535"},
        {"&O37777777777&", "-1", "-1"},
    });
}

TEST(NumericText, otherTextsAreNoNumbers)
{
    for (const std::string text :
         {"",     " ",     "abc",  "1x",    "+",   "-",    ".",     "-.",  "+-1",     "1 2", "1,5",
          "1e",   "1e+",   "e5",   "1.2.3", "&H",  "&H&",  "&O&",   "&HG", "&O8",     "&17", "-&H1",
          "& H1", "&H1&&", "0x1F", "inf",   "nan", "True", "1e2.5", "1\n", "\xD9\xA1"})
        EXPECT_EQ(outcome(text, toInt32), "Type mismatch") << text;
    EXPECT_FALSE(isNumeric(std::string("1\0", 2)));
    EXPECT_TRUE(isNumeric("1e400"));
}

TEST(NumericText, zeroIsTestedBeforeRounding)
{
    for (const char* text : {"0", "-0", "0.000", ".0e5", "&H0"})
        EXPECT_TRUE(toNumber(text).isZero) << text;
    for (const char* text : {"0.4", "-0.4", "1e-400", "&H1"})
        EXPECT_FALSE(toNumber(text).isZero) << text;
}

TEST(NumericText, thousandthsRoundAsIntegersDo)
{
    std::mt19937_64 random(20240229);
    for (int i = 0; i < 20'000; ++i) {
        // Halves and their neighbours.
        const auto size =
            static_cast<std::int64_t>(random() % 3'000'000 * 500 + 499 + random() % 3);
        const std::int64_t rest = size % 1000, whole = size / 1000;
        const std::int64_t nearest = whole + (rest > 500 || (rest == 500 && whole % 2 == 1));
        const std::string point =
            std::to_string(whole) + "." + std::to_string(1000 + rest).substr(1);
        EXPECT_EQ(toNumber("-" + point).rounded, -nearest) << point;
        EXPECT_EQ(toNumber(std::to_string(size) + "e-3").rounded, nearest) << size;
    }
}

TEST(NumericText, rubbishIsReadOrRefusedButNeverWorse)
{
    std::mt19937 random(7);
    const std::string alphabet = "0159.+-eEdD&HhOoFf \tx";
    for (int i = 0; i < 20'000; ++i) {
        std::string text;
        for (auto left = random() % 12; left > 0; --left)
            text += alphabet[random() % alphabet.size()];
        const std::string result = outcome(text, toInt32);
        EXPECT_EQ(result == "Type mismatch", !isNumeric(text)) << text;
        EXPECT_EQ(outcome(" " + text + "\t", toInt32), result) << text;
    }
}

} // namespace quillet::test
