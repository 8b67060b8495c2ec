#include "runtime/numtext.h"
#include "runtime/region.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <limits>

namespace zafro {
namespace {

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
    const DoubleText cases[] = {
        {0.0, "0"},
        {-0.0, "0"},
        {0.1, "0.1"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3.0, "0.333333333333333"},
        {2.0 / 3.0, "0.666666666666667"},
        {-2.5, "-2.5"},
        {100.0, "100"},
        {123.456, "123.456"},
        {12345678901234.5, "12345678901234.5"},
        {123456789012345.6, "123456789012346"},
        {999999999999999.0, "999999999999999"},
        {999999999999999.9, "1E+15"},
        {1e14, "100000000000000"},
        {1e15, "1E+15"},
        {1e16, "1E+16"},
        {123456789012345678.0, "1.23456789012346E+17"},
        {1e20, "1E+20"},
        {-1.5e20, "-1.5E+20"},
        {0.0001, "0.0001"},
        {0.00012345, "0.00012345"},
        {0.00001, "1E-05"},
        {0.000015, "1.5E-05"},
        {-0.000015, "-1.5E-05"},
        {1e-300, "1E-300"},
        {DBL_MAX, "1.79769313486232E+308"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(CStr(c.x), latin(c.text)) << c.text;
}

TEST(CStr, WritesSinglesWithSevenSignificantDigits)
{
    ScopedDecimalMark region(u'.');
    const SingleText cases[] = {
        {0.1f, "0.1"},
        {1.1f, "1.1"},
        {1.0f / 3.0f, "0.3333333"},
        {3.14159265f, "3.141593"},
        {-2.5f, "-2.5"},
        {1234567.0f, "1234567"},
        {1e7f, "1E+07"},
        {16777216.0f, "1.677722E+07"},
        {0.0001f, "0.0001"},
        {0.00001f, "1E-05"},
        {-0.0f, "0"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(CStr(c.x), latin(c.text)) << c.text;
    // The same values through a double keep the digits the single does not have.
    EXPECT_EQ(CStr(double(1.1f)), QStringLiteral("1.10000002384186"));
}

TEST(CStr, WritesTheRegionsDecimalMark)
{
    ScopedDecimalMark region(u',');
    EXPECT_EQ(CStr(1.5), QStringLiteral("1,5"));
    EXPECT_EQ(CStr(-0.25), QStringLiteral("-0,25"));
    EXPECT_EQ(CStr(0.000015), QStringLiteral("1,5E-05"));
    EXPECT_EQ(CStr(1.5e20), QStringLiteral("1,5E+20"));
    EXPECT_EQ(CStr(1.0f / 3.0f), QStringLiteral("0,3333333"));
    EXPECT_EQ(CStr(1234567.0), QStringLiteral("1234567")); // never a thousands mark
}

TEST(CStr, WritesIntegersInFull)
{
    EXPECT_EQ(CStr(qint32(-2147483647 - 1)), QStringLiteral("-2147483648"));
    EXPECT_EQ(CStr(qint16(32767)), QStringLiteral("32767"));
    EXPECT_EQ(CStr(qint64(123456789012345678)), QStringLiteral("123456789012345678"));
}

// --- Str ---

TEST(Str, LeavesABlankForTheSignAndAlwaysWritesAPoint)
{
    for (const QChar mark : {QChar(u'.'), QChar(u',')}) {
        ScopedDecimalMark region(mark);
        const DoubleText cases[] = {
            {5.0, " 5"},
            {-5.0, "-5"},
            {0.0, " 0"},
            {-0.0, " 0"},
            {1.5, " 1.5"},
            {-1.5, "-1.5"},
            {0.5, " .5"},
            {-0.5, "-.5"},
            {1e20, " 1E+20"},
            {0.000015, " 1.5E-05"},
            {1.0 / 3.0, " .333333333333333"},
        };
        for (const auto &c : cases)
            EXPECT_EQ(Str(c.x), latin(c.text)) << c.text << " in region " << mark.toLatin1();
        EXPECT_EQ(Str(0.1f), QStringLiteral(" .1"));
        EXPECT_EQ(Str(-1.0f / 3.0f), QStringLiteral("-.3333333"));
    }
    EXPECT_EQ(Str(qint16(7)), QStringLiteral(" 7"));
    EXPECT_EQ(Str(qint32(-7)), QStringLiteral("-7"));
    EXPECT_EQ(Str(0), QStringLiteral(" 0"));
    EXPECT_EQ(Str(7u), QStringLiteral(" 7"));
}

// --- Format ---

struct MaskCase {
    double x;
    const char *mask;
    const char *text;
};

void expectFormats(const MaskCase *begin, const MaskCase *end)
{
    for (const MaskCase *c = begin; c != end; ++c)
        EXPECT_EQ(Format(c->x, latin(c->mask)), latin(c->text))
            << c->x << " with \"" << c->mask << '"';
}

TEST(Format, ZeroAndHashPlaceholders)
{
    ScopedDecimalMark region(u'.');
    const MaskCase cases[] = {
        {5, "00", "05"},
        {0, "00", "00"},
        {123, "00", "123"},
        {9.5, "00", "10"},
        {99.5, "00", "100"},
        {3.14159, "0.00", "3.14"},
        {-3.14159, "0.00", "-3.14"},
        {1234.5, "0.00", "1234.50"},
        {0, "0.00", "0.00"},
        {0.05, "0.00", "0.05"},
        {0.004, "0.00", "0.00"},
        {7.25, "00.0", "07.3"},
        {59.95, "00.0", "60.0"},
        {0.04, "00.0", "00.0"},
        {25.5, "#.#", "25.5"},
        {25, "#.#", "25."},
        {0.5, "#.#", ".5"},
        {0.25, "#.#", ".3"},
        {0.04, "#.#", "."},
        {12.5, ".00", "12.50"},
        {0.5, "#.00", ".50"},
        {7, "0.##", "7."},
        {7.1, "0.##", "7.1"},
        {7.105, "0.#0", "7.11"},
        {123.5, "#################0", "124"},
        {0.4, "#################0", "0"},
        {12345678901234.0, "#################0", "12345678901234"},
        {123456789012345678.0, "#################0", "123456789012346000"},
        {5, "#", "5"},
        {0, "#", ""},
    };
    expectFormats(std::begin(cases), std::end(cases));
}

TEST(Format, RoundsHalfAwayFromZeroOnTheDecimalDigits)
{
    ScopedDecimalMark region(u'.');
    const MaskCase cases[] = {
        {2.5, "0", "3"},
        {3.5, "0", "4"},
        {-2.5, "0", "-3"},
        {0.5, "0", "1"},
        {2.675, "0.00", "2.68"},
        {0.285, "0.00", "0.29"},
        {1.005, "0.00", "1.01"},
        {0.125, "0.00", "0.13"},
        {-0.125, "0.00", "-0.13"},
        {0.005, "0.00", "0.01"},
        {999.995, "0.00", "1000.00"},
        {1.0 / 3.0, "0.0000000000000000", "0.3333333333333330"},
    };
    expectFormats(std::begin(cases), std::end(cases));
}

TEST(Format, SinglesRoundFromTheirSevenDigits)
{
    ScopedDecimalMark region(u'.');
    // 1.005f is 1.00499999523..., which is 1.005000 at seven digits.
    EXPECT_EQ(Format(1.005f, QStringLiteral("0.00")), QStringLiteral("1.01"));
    EXPECT_EQ(Format(double(1.005f), QStringLiteral("0.00")), QStringLiteral("1.00"));
    // 59.96f is 59.9599990844..., which is 59.96000 at seven digits.
    EXPECT_EQ(Format(59.96f, QStringLiteral("00.0")), QStringLiteral("60.0"));
    EXPECT_EQ(Format(5.04f, QStringLiteral("00.0")), QStringLiteral("05.0"));
    EXPECT_EQ(Format(88.848789f, QStringLiteral("0.00")), QStringLiteral("88.85"));
    EXPECT_EQ(Format(qint32(7), QStringLiteral("00")), QStringLiteral("07"));
    EXPECT_EQ(Format(qint16(-3), QStringLiteral("00")), QStringLiteral("-03"));
}

TEST(Format, LiteralsEscapesAndQuotes)
{
    ScopedDecimalMark region(u'.');
    const MaskCase cases[] = {
        {1415, "000\\ 0", "141 5"},  {592, "000\\ 0", "059 2"},
        {9265, "00\\ 00", "92 65"},  {3589, "0\\ 000\\ ", "3 589 "},
        {7, "0\\ 000\\ ", "0 007 "}, {12, "0\" kg\"", "12 kg"},
        {12, "\"<\"0\">\"", "<12>"}, {5, "\\$0.00", "$5.00"},
        {-5, "$0", "-$5"},           {5, "0\\.0", "0.5"}, // an escaped point is no decimal mark
        {3, "0\";\"0", "0;3"},       {42, "(0)", "(42)"},
    };
    expectFormats(std::begin(cases), std::end(cases));
}

TEST(Format, SectionsForNegativeAndZeroValues)
{
    ScopedDecimalMark region(u'.');
    const MaskCase cases[] = {
        {5, "0;(0)", "5"},
        {-5, "0;(0)", "(5)"},
        {0, "0;(0)", "0"},
        {-1.5, "0.0;\"neg \"0.0", "neg 1.5"},
        {0, "0.0;(0.0);\"zero\"", "zero"},
        {-0.0, "0.0;(0.0);\"zero\"", "zero"},
        {2, "0.0;(0.0);\"zero\"", "2.0"},
        {-2, "0.0;(0.0);\"zero\"", "(2.0)"},
        {-5, "0;;\"z\"", "-5"}, // an empty negative section falls back to the first
        {0, "0;;\"z\"", "z"},
        {0, "0.0;(0.0);", "0.0"}, // and so does an empty zero section
    };
    expectFormats(std::begin(cases), std::end(cases));
}

TEST(Format, ThousandsGroupingScalingAndPercent)
{
    ScopedDecimalMark region(u'.');
    const MaskCase cases[] = {
        {1234567, "#,##0", "1,234,567"},    {123, "#,##0", "123"},       {999.5, "#,##0", "1,000"},
        {-1234.5, "#,##0.00", "-1,234.50"}, {1234567, "0,", "1235"},     {1500000, "0,,", "2"},
        {1234567, "#,##0,.0", "1,234.6"},   {0.1234, "0.00%", "12.34%"}, {1, "0%", "100%"},
        {0.0005, "0.0%", "0.1%"},
    };
    expectFormats(std::begin(cases), std::end(cases));
}

TEST(Format, NamedMasks)
{
    ScopedDecimalMark region(u'.');
    const MaskCase cases[] = {
        {1234.567, "Fixed", "1234.57"},    {0.5, "Fixed", "0.50"},
        {-1.5, "fixed", "-1.50"},          {1234567.891, "Standard", "1,234,567.89"},
        {0.5, "Standard", "0.50"},         {-1234.5, "Standard", "-1,234.50"},
        {0.1234, "Percent", "12.34%"},     {0.1 + 0.2, "General Number", "0.3"},
        {1e20, "General Number", "1E+20"}, {0.1 + 0.2, "", "0.3"},
    };
    expectFormats(std::begin(cases), std::end(cases));
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
    expectFormats(std::begin(cases), std::end(cases));
}

} // namespace
} // namespace zafro
