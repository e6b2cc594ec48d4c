#include "faults/run_time_error.h"
#include "settings/numeric_text.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace quillet::test
{

namespace
{

// The converted number as a text, or the error of the conversion.
template <typename Convert>
std::string outcome(const std::string& text, Convert convert)
{
    try {
        return std::to_string(convert(toNumber(text)));
    } catch (const RunTimeError& error) {
        return error.what();
    }
}

// Each row is a text and its outcome. Z is four hundred zeros.
template <typename Convert>
void expectOutcomes(std::string rows, Convert convert)
{
    for (std::size_t at = rows.find('Z'); at != std::string::npos; at = rows.find('Z'))
        rows.replace(at, 1, 400, '0');
    std::istringstream words(rows);
    for (std::string text, result; words >> text >> result;)
        EXPECT_EQ(outcome(text, convert), result) << text;
}

} // namespace

TEST(NumericText, integersAreExact)
{
    expectOutcomes("65 65  -12 -12  +7 7  2. 2  .5 0  .05 0  12.5 12  13.5 14  -1.5 -2  -0.5 0 "
                   "Z1 1  0.Ze401 0  0.Z1e401 1 "
                   "1Ze-400 1  25E-1 2  1E+2 100  1e-400 0  0e99999999999999999999 0 "
                   "5e-99999999999999999999 0  2147483647.4 2147483647  1.499 1  1.501 2  "
                   "2147483647.5 Overflow "
                   "-2147483648.5 -2147483648  -2147483649 Overflow  1e400 Overflow "
                   "99999999999999999999 Overflow  1e99999999999999999999 Overflow",
                   toInt32);
    expectOutcomes("32767.49 32767  32767.5 Overflow  -32768.5 -32768  -32769 Overflow", toInt16);
}

TEST(NumericText, bitPatternsTakeTheirSignFromTheTopBit)
{
    expectOutcomes("&H0000FF00& 65280  &hfF 255  &HFFFF 65535  &HFFFF& 65535  &HFFFFFFFF& -1 "
                   "&H80000008 -2147483640  &H100000000 Overflow  &HZ1 1  &H1Z Overflow "
                   "&o17 15  &O37777777777& -1",
                   toInt32);
    expectOutcomes("&HFFFF Overflow  &HFFFF& Overflow  &H8000 Overflow  &H7FFF 32767 "
                   "&HFFFFFFFF -1  &O177777 Overflow",
                   toInt16);
}

TEST(NumericText, otherTextsAreNoNumbers)
{
    for (const std::string text :
         {"",     " 1",    "abc",  "1x",    "+",   "-",    ".",     "-.",  "+-1", "1 2",     "1,5",
          "1e",   "1e+",   "e5",   "1.2.3", "&H",  "&H&",  "&O&",   "&HG", "&O8", "&17",     "-&H1",
          "& H1", "&H1&&", "0x1F", "inf",   "nan", "True", "1e2.5", "1D2", "1\n", "\xD9\xA1"})
        EXPECT_EQ(outcome(text, toInt32), "Type mismatch") << text;
    EXPECT_EQ(outcome(std::string("1\0", 2), toInt32), "Type mismatch");
}

} // namespace quillet::test
