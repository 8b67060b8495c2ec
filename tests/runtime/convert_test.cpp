#include "runtime/convert.h"
#include "runtime/region.h"
#include "runtime_test_helpers.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;

using test::errorNumber;
using test::withNul;

struct TextToNumber {
    const char *text;
    double expected;
};

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

// --- Val ---

// Leniently: the longest leading number; blanks, tabs and line feeds dropped anywhere; an
// exponent after E or D only with digits; hexadecimal and octal in sixteen bits while they
// fit, then 32 (of &H123456789 only the low 32 bits stay).
const TextToNumber kVal[] = {
    {"", 0.0},          {"abc", 0.0},       {"12abc", 12.0},       {"24 and 57", 24.0},
    {"1.5", 1.5},       {".5", 0.5},        {"-.5", -0.5},         {"+7", 7.0},
    {"-", 0.0},         {".", 0.0},         {"--7", 0.0},          {"1.5.3", 1.5},
    {"1..5", 1.0},      {"$5", 0.0},        {"1,5", 1.0},          {"1,234", 1.0},
    {"007", 7.0},       {"3.", 3.0},        {"  42", 42.0},        {"- 3", -3.0},
    {"1 2 3", 123.0},   {"\t1\n2", 12.0},   {"1 . 5", 1.5},        {"1 e 3", 1000.0},
    {"& H F F", 255.0}, {"1e3", 1000.0},    {"1E3", 1000.0},       {"1D3", 1000.0},
    {"1d-2", 0.01},     {"2E-3", 0.002},    {"1.5E+20", 1.5e20},   {".5e1", 5.0},
    {"1e", 1.0},        {"1e+", 1.0},       {"1e-x", 1.0},         {"1ex", 1.0},
    {"1E+05abc", 1e5},  {"e5", 0.0},        {"1e-400", 0.0},       {"&HFF", 255},
    {"&hff", 255},      {"&H7FFF", 32767},  {"&H8000", -32768},    {"&HFFFF", -1},
    {"&H0000FFFF", -1}, {"&H10000", 65536}, {"&H80C0FF", 8438015}, {"&HFFFFFFFF", -1},
    {"&HFG", 15},       {"&H", 0},          {"&O17", 15},          {"&o17", 15},
    {"&O77777", 32767}, {"&O177777", -1},   {"&O200000", 65536},   {"&O8", 0},
    {"&X12", 0},        {"&", 0},           {"-&HFF", 0},
};
const TextToNumber kValLong[] = {
    {"12345678901234567890", 12345678901234567890.0},
    {" 1615 198th Street N.E.", 1615198.0},
    {"&H7FFFFFFF", 2147483647.0},
    {"&H80000000", -2147483648.0},
    {"&H123456789", 591751049.0},
};

TEST(Val, ReadsLenientlyInEitherRegionClampsAndStopsAtANul)
{
    for (const QChar mark : {QChar(u'.'), QChar(u',')}) {
        ScopedDecimalMark region(mark);
        const auto check = [&](const auto &table) {
            for (const auto &c : table)
                EXPECT_EQ(Val(latin(c.text)), c.expected)
                    << '"' << c.text << "\" " << mark.toLatin1();
        };
        check(kVal);
        check(kValLong);
    }
    EXPECT_EQ(Val(u"1e400"_s), DBL_MAX);
    EXPECT_EQ(Val(u"-1e400"_s), -DBL_MAX);
    EXPECT_EQ(Val(QString(400, u'9')), DBL_MAX);
    EXPECT_EQ(Val(withNul("12.5", "7")), 12.5);
    EXPECT_EQ(Val(withNul("&HFF", "F")), 255.0);
    EXPECT_EQ(Val(withNul("", "5")), 0.0);
}

// --- Strict conversions ---

// What the strict grammar accepts the same way in both regions.
const TextToNumber kStrictEitherRegion[] = {
    {"12", 12.0},   {"  -3  ", -3.0}, {"+4", 4.0},     {"4-", -4.0},     {"4 -", -4.0},
    {"- 4", -4.0},  {"(2)", -2.0},    {"( 2 )", -2.0}, {"1E+20", 1e20},  {"2e-3", 0.002},
    {"1D2", 100.0}, {"&HFF", 255.0},  {"&hff", 255.0}, {"&HFFFF", -1.0}, {"&H10000", 65536.0},
    {"&O17", 15.0}, {"\t7\r\n", 7.0}, {"007", 7.0},
};

const char *const kNotNumbers[] = {
    "",  "   ", "abc", "12abc", "1 2",  "--1", "+-1", "(-1)", "-(1)", "(1", "1)",    "(1)-", ".",
    "-", "1e",  "1e+", "e5",    "1 e5", "&H",  "&HG", "&H F", "&X1",  "&",  "-&HFF", "$5",   "1-2",
};

TEST(StrictConversion, ReadsSignsBracketsExponentsAndRadixPrefixes)
{
    for (const QChar mark : {QChar(u'.'), QChar(u',')}) {
        ScopedDecimalMark region(mark);
        for (const auto &c : kStrictEitherRegion) {
            EXPECT_EQ(CDbl(latin(c.text)), c.expected)
                << '"' << c.text << "\" in region " << mark.toLatin1();
            EXPECT_TRUE(IsNumeric(latin(c.text))) << '"' << c.text << '"';
        }
    }
}

TEST(StrictConversion, TextThatIsNoNumberIsATypeMismatch)
{
    for (const QChar mark : {QChar(u'.'), QChar(u',')}) {
        ScopedDecimalMark region(mark);
        for (const char *text : kNotNumbers) {
            const QString t = latin(text);
            EXPECT_EQ(errorNumber([&] { CDbl(t); }), 13) << '"' << text << '"';
            EXPECT_EQ(errorNumber([&] { CSng(t); }), 13) << '"' << text << '"';
            EXPECT_EQ(errorNumber([&] { CLng(t); }), 13) << '"' << text << '"';
            EXPECT_EQ(errorNumber([&] { CInt(t); }), 13) << '"' << text << '"';
            EXPECT_FALSE(IsNumeric(t)) << '"' << text << '"';
        }
    }
}

TEST(StrictConversion, TheRegionsMarksDecideDecimalsAndGrouping)
{
    // clang-format off
    const struct {
        char mark;
        const char *text;
        double expected; // when no error
        int error;
    } cases[] = {
        {'.', "1.5", 1.5, 0}, {'.', ".5", 0.5, 0}, {'.', "5.", 5.0, 0}, {'.', "-0.25", -0.25, 0},
        {'.', "1,234.5", 1234.5, 0}, {'.', "1,5", 15.0, 0}, {'.', "1,234,567", 1234567.0, 0},
        {'.', "1.5E+2", 150.0, 0}, {'.', ",5", 0, 13}, {'.', "1.2,3", 0, 13}, {'.', "1.5.3", 0, 13},
        {',', "1,5", 1.5, 0}, {',', ",5", 0.5, 0}, {',', "5,", 5.0, 0}, {',', "-0,25", -0.25, 0},
        {',', "1.234,5", 1234.5, 0}, {',', "1.5", 15.0, 0}, {',', "1.234.567", 1234567.0, 0},
        {',', "1,5E+2", 150.0, 0}, {',', "(1,5)", -1.5, 0}, {',', ".5", 0, 13},
        {',', "1,2.3", 0, 13}, {',', "1,5,3", 0, 13},
    };
    // clang-format on
    for (const auto &c : cases) {
        ScopedDecimalMark region(QChar::fromLatin1(c.mark));
        const QString t = latin(c.text);
        if (c.error == 0)
            EXPECT_EQ(CDbl(t), c.expected) << '"' << c.text << "\" in " << c.mark;
        else
            EXPECT_EQ(errorNumber([&] { CDbl(t); }), c.error)
                << '"' << c.text << "\" in " << c.mark;
        EXPECT_EQ(IsNumeric(t), c.error == 0) << '"' << c.text << "\" in " << c.mark;
    }
}

TEST(StrictConversion, IgnoresEverythingAfterANul)
{
    EXPECT_EQ(CDbl(withNul("7")), 7.0);
    EXPECT_EQ(CLng(withNul(" &H80C0FF ", "garbage")), 8438015);
    EXPECT_EQ(CInt(withNul("12", "34")), 12);
    EXPECT_TRUE(IsNumeric(withNul("5", "x")));
    EXPECT_EQ(errorNumber([] { CLng(withNul("", "5")); }), 13);
    EXPECT_FALSE(IsNumeric(withNul("", "5")));
}

TEST(StrictConversion, OutOfTheDoubleOrRadixRangeIsAnOverflow)
{
    for (const char *text : {"1e400", "-1e400", "&H100000000", "&O40000000000"}) {
        const QString t = latin(text);
        EXPECT_EQ(errorNumber([&] { CDbl(t); }), 6) << '"' << text << '"';
        EXPECT_FALSE(IsNumeric(t)) << '"' << text << '"';
    }
    EXPECT_EQ(CDbl(u"1e-400"_s), 0.0);
}

TEST(StrictConversion, CLngAndCIntRoundHalfToEvenAndCheckTheirRange)
{
    ScopedDecimalMark region(u'.');
    // clang-format off
    const struct {
        bool lng; // CLng, else CInt
        const char *text;
        qint32 expected; // meaningless when error is set
        int error;
    } cases[] = {
        {true, "2147483647", 2147483647, 0}, {true, "-2147483648", -2147483647 - 1, 0},
        {true, "2147483648", 0, 6}, {true, "-2147483649", 0, 6},
        {true, "2147483647.4", 2147483647, 0}, {true, "2147483647.5", 0, 6},
        {true, "-2147483648.5", -2147483647 - 1, 0}, {true, "2.5", 2, 0}, {true, "3.5", 4, 0},
        {true, "-0.5", 0, 0}, {true, "-1.5", -2, 0}, {true, "0.5000001", 1, 0},
        {true, "&H80C0FF", 8438015, 0}, {true, "&HFFFF", -1, 0}, {true, "&HFFFFFFFF", -1, 0},
        {true, "1e10", 0, 6}, {false, "32767", 32767, 0}, {false, "-32768", -32768, 0},
        {false, "32768", 0, 6}, {false, "-32769", 0, 6}, {false, "32767.5", 0, 6},
        {false, "32767.4", 32767, 0}, {false, "-32768.5", -32768, 0}, {false, "2.5", 2, 0},
        {false, "3.5", 4, 0}, {false, "-2.5", -2, 0}, {false, "&HFFFF", -1, 0},
        {false, "&H8000", -32768, 0}, {false, "&H10000", 0, 6}, {false, "&HFFFFFFFF", -1, 0},
        {false, "40000", 0, 6},
    };
    // clang-format on
    for (const auto &c : cases) {
        const QString t = latin(c.text);
        const auto convert = [&] { return c.lng ? CLng(t) : qint32(CInt(t)); };
        if (c.error == 0)
            EXPECT_EQ(convert(), c.expected) << (c.lng ? "CLng " : "CInt ") << c.text;
        else
            EXPECT_EQ(errorNumber(convert), c.error) << (c.lng ? "CLng " : "CInt ") << c.text;
    }
}

TEST(StrictConversion, CSngRoundsToSingleAndChecksItsRange)
{
    ScopedDecimalMark region(u'.');
    EXPECT_EQ(CSng(u"0.1"_s), 0.1f);
    EXPECT_EQ(CSng(u"3.4e38"_s), 3.4e38f);
    EXPECT_EQ(CSng(u"1e-50"_s), 0.0f);
    EXPECT_EQ(errorNumber([] { CSng(u"3.5e38"_s); }), 6);
    EXPECT_EQ(errorNumber([] { CSng(u"-3.5e38"_s); }), 6);
}

// --- Numeric conversions ---

TEST(NumericConversion, CLngAndCIntRoundHalfToEvenAtTheBoundaries)
{
    // clang-format off
    const struct {
        double x;
        qint32 lng;
        int lngError;
        qint16 integer;
        int intError;
    } cases[] = {
        {0.5, 0, 0, 0, 0}, {1.5, 2, 0, 2, 0}, {2.5, 2, 0, 2, 0}, {3.5, 4, 0, 4, 0},
        {-0.5, 0, 0, 0, 0}, {-2.5, -2, 0, -2, 0}, {-2.6, -3, 0, -3, 0}, {32767.5, 32768, 0, 0, 6},
        {32766.5, 32766, 0, 32766, 0}, {-32768.5, -32768, 0, -32768, 0},
        {-32768.6, -32769, 0, 0, 6}, {2147483647.4, 2147483647, 0, 0, 6},
        {2147483647.5, 0, 6, 0, 6}, {2147483646.5, 2147483646, 0, 0, 6},
        {-2147483648.5, -2147483647 - 1, 0, 0, 6}, {-2147483648.6, 0, 6, 0, 6},
        {std::numeric_limits<double>::infinity(), 0, 6, 0, 6},
        {std::numeric_limits<double>::quiet_NaN(), 0, 6, 0, 6},
    };
    // clang-format on
    for (const auto &c : cases) {
        if (c.lngError == 0)
            EXPECT_EQ(CLng(c.x), c.lng) << c.x;
        else
            EXPECT_EQ(errorNumber([&] { CLng(c.x); }), c.lngError) << c.x;
        if (c.intError == 0)
            EXPECT_EQ(CInt(c.x), c.integer) << c.x;
        else
            EXPECT_EQ(errorNumber([&] { CInt(c.x); }), c.intError) << c.x;
    }
}

TEST(NumericConversion, CSngRaisesOnlyWhereTheSingleWouldBeInfinite)
{
    EXPECT_EQ(CSng(double(FLT_MAX)), FLT_MAX);
    EXPECT_EQ(CSng(-double(FLT_MAX)), -FLT_MAX);
    // Up to just under half an ulp above the largest single, rounding still gives it.
    EXPECT_EQ(CSng(std::nextafter(0x1.ffffffp127, 0.0)), FLT_MAX);
    EXPECT_EQ(errorNumber([] { CSng(0x1.ffffffp127); }), 6);
    EXPECT_EQ(errorNumber([] { CSng(1e39); }), 6);
    EXPECT_EQ(errorNumber([] { CSng(std::numeric_limits<double>::infinity()); }), 6);
    EXPECT_EQ(errorNumber([] { CSng(std::numeric_limits<double>::quiet_NaN()); }), 6);
    EXPECT_EQ(CSng(1e-60), 0.0f);
    EXPECT_EQ(CSng(0.1), 0.1f);
}

// --- Region ---

TEST(Region, ForcedMarksComeInPairsAndScopesNest)
{
    const QChar systemMark = decimalMark();
    {
        ScopedDecimalMark comma(u',');
        EXPECT_EQ(decimalMark(), QChar(u','));
        EXPECT_EQ(thousandsMark(), QChar(u'.'));
        {
            ScopedDecimalMark point(u'.');
            EXPECT_EQ(decimalMark(), QChar(u'.'));
            EXPECT_EQ(thousandsMark(), QChar(u','));
        }
        EXPECT_EQ(decimalMark(), QChar(u',')) << "the outer region comes back";
        EXPECT_EQ(CDbl(u"2,5"_s), 2.5);
    }
    EXPECT_EQ(decimalMark(), systemMark);
    EXPECT_NE(thousandsMark(), decimalMark());
}

} // namespace
} // namespace zafro
