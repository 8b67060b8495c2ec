#include "runtime/numtext.h"
#include "runtime/region.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <limits>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

struct DoubleText {
    double x;
    const char *text;
};

struct SingleText {
    float x;
    const char *text;
};

// --- CStr ---

TEST(CStr, WritesDoublesWithFifteenSignificantDigits)
{
    ScopedDecimalMark region(u'.');
    const double third = 1.0 / 3.0, big = 123456789012345678.0;
    // clang-format off
    const DoubleText cases[] = {
        {0.0, "0"}, {-0.0, "0"}, {0.1, "0.1"}, {0.1 + 0.2, "0.3"}, {third, "0.333333333333333"},
        {2 * third, "0.666666666666667"}, {-2.5, "-2.5"}, {100.0, "100"}, {123.456, "123.456"},
        {12345678901234.5, "12345678901234.5"}, {123456789012345.6, "123456789012346"},
        {999999999999999.0, "999999999999999"}, {999999999999999.9, "1E+15"},
        {1e14, "100000000000000"}, {1e15, "1E+15"}, {1e16, "1E+16"}, {big, "1.23456789012346E+17"},
        {1e20, "1E+20"}, {-1.5e20, "-1.5E+20"}, {0.0001, "0.0001"}, {0.00012345, "0.00012345"},
        {0.00001, "1E-05"}, {0.000015, "1.5E-05"}, {-0.000015, "-1.5E-05"}, {1e-300, "1E-300"},
        {DBL_MAX, "1.79769313486232E+308"},
    };
    // clang-format on
    for (const auto &c : cases)
        EXPECT_EQ(CStr(c.x), latin(c.text)) << c.text;
}

TEST(CStr, WritesSinglesWithSevenSignificantDigits)
{
    ScopedDecimalMark region(u'.');
    // clang-format off
    const SingleText cases[] = {
        {0.1f, "0.1"}, {1.1f, "1.1"}, {1.0f / 3.0f, "0.3333333"}, {3.14159265f, "3.141593"},
        {-2.5f, "-2.5"}, {1234567.0f, "1234567"}, {1e7f, "1E+07"}, {16777216.0f, "1.677722E+07"},
        {0.0001f, "0.0001"}, {0.00001f, "1E-05"}, {-0.0f, "0"},
    };
    // clang-format on
    for (const auto &c : cases)
        EXPECT_EQ(CStr(c.x), latin(c.text)) << c.text;
    // The same values through a double keep the digits the single does not have.
    EXPECT_EQ(CStr(double(1.1f)), u"1.10000002384186"_s);
}

TEST(CStr, WritesTheRegionsDecimalMark)
{
    ScopedDecimalMark region(u',');
    EXPECT_EQ(CStr(1.5), u"1,5"_s);
    EXPECT_EQ(CStr(-0.25), u"-0,25"_s);
    EXPECT_EQ(CStr(0.000015), u"1,5E-05"_s);
    EXPECT_EQ(CStr(1.5e20), u"1,5E+20"_s);
    EXPECT_EQ(CStr(1.0f / 3.0f), u"0,3333333"_s);
    EXPECT_EQ(CStr(1234567.0), u"1234567"_s); // never a thousands mark
}

TEST(CStr, WritesIntegersInFull)
{
    EXPECT_EQ(CStr(qint32(-2147483647 - 1)), u"-2147483648"_s);
    EXPECT_EQ(CStr(qint16(32767)), u"32767"_s);
    EXPECT_EQ(CStr(qint64(123456789012345678)), u"123456789012345678"_s);
}

// --- Str ---

TEST(Str, LeavesABlankForTheSignAndAlwaysWritesAPoint)
{
    const double third = 1.0 / 3.0;
    for (const QChar mark : {QChar(u'.'), QChar(u',')}) {
        ScopedDecimalMark region(mark);
        // clang-format off
        const DoubleText cases[] = {
            {5.0, " 5"}, {-5.0, "-5"}, {0.0, " 0"}, {-0.0, " 0"}, {1.5, " 1.5"}, {-1.5, "-1.5"},
            {0.5, " .5"}, {-0.5, "-.5"}, {1e20, " 1E+20"}, {0.000015, " 1.5E-05"},
            {third, " .333333333333333"},
        };
        // clang-format on
        for (const auto &c : cases)
            EXPECT_EQ(Str(c.x), latin(c.text)) << c.text << " in region " << mark.toLatin1();
        EXPECT_EQ(Str(0.1f), u" .1"_s);
        EXPECT_EQ(Str(-1.0f / 3.0f), u"-.3333333"_s);
    }
    EXPECT_EQ(Str(qint16(7)), u" 7"_s);
    EXPECT_EQ(Str(qint32(-7)), u"-7"_s);
    EXPECT_EQ(Str(0), u" 0"_s);
    EXPECT_EQ(Str(7u), u" 7"_s);
}

// --- Format ---

struct MaskCase {
    double x;
    const char *mask;
    const char *text;
};

// Placeholders, half away from zero on the decimal digits, literals, escapes and quotes
// (an escaped point is no decimal mark), sections for negative and zero values (an empty
// one falls back to the first), thousands, scaling, percent and the named masks.
// clang-format off
const MaskCase kMasks[] = {
    {5, "00", "05"}, {0, "00", "00"}, {123, "00", "123"}, {9.5, "00", "10"}, {99.5, "00", "100"},
    {3.14159, "0.00", "3.14"}, {-3.14159, "0.00", "-3.14"}, {1234.5, "0.00", "1234.50"},
    {0, "0.00", "0.00"}, {0.05, "0.00", "0.05"}, {0.004, "0.00", "0.00"}, {7.25, "00.0", "07.3"},
    {59.95, "00.0", "60.0"}, {0.04, "00.0", "00.0"}, {25.5, "#.#", "25.5"}, {25, "#.#", "25."},
    {0.5, "#.#", ".5"}, {0.25, "#.#", ".3"}, {0.04, "#.#", "."}, {12.5, ".00", "12.50"},
    {0.5, "#.00", ".50"}, {7, "0.##", "7."}, {7.1, "0.##", "7.1"}, {7.105, "0.#0", "7.11"},
    {5, "#", "5"}, {0, "#", ""}, {2.5, "0", "3"}, {-2.5, "0", "-3"}, {0.5, "0", "1"},
    {2.675, "0.00", "2.68"}, {0.285, "0.00", "0.29"}, {1.005, "0.00", "1.01"},
    {0.125, "0.00", "0.13"}, {-0.125, "0.00", "-0.13"}, {0.005, "0.00", "0.01"},
    {999.995, "0.00", "1000.00"}, {1415, "000\\ 0", "141 5"}, {592, "000\\ 0", "059 2"},
    {9265, "00\\ 00", "92 65"}, {3589, "0\\ 000\\ ", "3 589 "}, {7, "0\\ 000\\ ", "0 007 "},
    {12, "0\" kg\"", "12 kg"}, {12, "\"<\"0\">\"", "<12>"}, {5, "\\$0.00", "$5.00"},
    {-5, "$0", "-$5"}, {5, "0\\.0", "0.5"}, {3, "0\";\"0", "0;3"}, {42, "(0)", "(42)"},
    {5, "0;(0)", "5"}, {-5, "0;(0)", "(5)"}, {0, "0;(0)", "0"}, {-5, "0;;\"z\"", "-5"},
    {0, "0;;\"z\"", "z"}, {0, "0.0;(0.0);", "0.0"}, {1234567, "#,##0", "1,234,567"},
    {123, "#,##0", "123"}, {999.5, "#,##0", "1,000"}, {1234567, "0,", "1235"},
    {1500000, "0,,", "2"}, {0.1234, "0.00%", "12.34%"}, {1, "0%", "100%"}, {0.0005, "0.0%", "0.1%"},
    {1234.567, "Fixed", "1234.57"}, {0.5, "Fixed", "0.50"}, {-1.5, "fixed", "-1.50"},
    {0.5, "Standard", "0.50"}, {0.1234, "Percent", "12.34%"}, {0.1 + 0.2, "", "0.3"},
};
// clang-format on
// clang-format off
const MaskCase kLongMasks[] = {
    {123.5, "#################0", "124"}, {0.4, "#################0", "0"},
    {12345678901234.0, "#################0", "12345678901234"},
    {123456789012345678.0, "#################0", "123456789012346000"},
    {1.0 / 3.0, "0.0000000000000000", "0.3333333333333330"}, {-1.5, "0.0;\"neg \"0.0", "neg 1.5"},
    {0, "0.0;(0.0);\"zero\"", "zero"}, {-0.0, "0.0;(0.0);\"zero\"", "zero"},
    {2, "0.0;(0.0);\"zero\"", "2.0"}, {-2, "0.0;(0.0);\"zero\"", "(2.0)"},
    {-1234.5, "#,##0.00", "-1,234.50"}, {1234567, "#,##0,.0", "1,234.6"},
    {1234567.891, "Standard", "1,234,567.89"}, {-1234.5, "Standard", "-1,234.50"},
    {0.1 + 0.2, "General Number", "0.3"}, {1e20, "General Number", "1E+20"},
};
// clang-format on

TEST(Format, MasksInAPointRegion)
{
    ScopedDecimalMark region(u'.');
    const auto check = [](const auto &table) {
        for (const MaskCase &c : table)
            EXPECT_EQ(Format(c.x, latin(c.mask)), latin(c.text))
                << c.x << " with \"" << c.mask << '"';
    };
    check(kMasks);
    check(kLongMasks);
}

TEST(Format, SinglesRoundFromTheirSevenDigits)
{
    ScopedDecimalMark region(u'.');
    // 1.005f is 1.00499999523..., which is 1.005000 at seven digits.
    EXPECT_EQ(Format(1.005f, u"0.00"_s), u"1.01"_s);
    EXPECT_EQ(Format(double(1.005f), u"0.00"_s), u"1.00"_s);
    // 59.96f is 59.9599990844..., which is 59.96000 at seven digits.
    EXPECT_EQ(Format(59.96f, u"00.0"_s), u"60.0"_s);
    EXPECT_EQ(Format(5.04f, u"00.0"_s), u"05.0"_s);
    EXPECT_EQ(Format(88.848789f, u"0.00"_s), u"88.85"_s);
    EXPECT_EQ(Format(qint32(7), u"00"_s), u"07"_s);
    EXPECT_EQ(Format(qint16(-3), u"00"_s), u"-03"_s);
}

TEST(Format, WritesTheRegionsMarks)
{
    ScopedDecimalMark region(u',');
    const MaskCase cases[] = {
        {25.5, "#.#", "25,5"},          {3.14159, "0.00", "3,14"},
        {7.25, "00.0", "07,3"},         {1234567, "#,##0", "1.234.567"},
        {1234.567, "Fixed", "1234,57"}, {1234567.891, "Standard", "1.234.567,89"},
        {0.1234, "Percent", "12,34%"},  {1.5, "", "1,5"},
        {1415, "000\\ 0", "141 5"},
    };
    for (const MaskCase &c : cases)
        EXPECT_EQ(Format(c.x, latin(c.mask)), latin(c.text)) << c.x << " with \"" << c.mask << '"';
}

} // namespace
} // namespace zafro
