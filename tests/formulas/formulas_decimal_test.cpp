#include "error_number.h"
#include "formulas/cformulas_decimal.h"
#include "runtime/region.h"

#include <gtest/gtest.h>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;

using test::errorNumber;

ScaledDecimal dec(const char *text)
{
    return ScaledDecimal::fromText(QString::fromUtf8(text));
}

QString text(const ScaledDecimal &value)
{
    return value.toText();
}

TEST(ScaledDecimal, ReadsAndWritesPlainDigits)
{
    ScopedDecimalMark region(u'.');
    // clang-format off
    const struct {
        const char *entrada, *salida;
    } rows[] = {
        {"0", "0"}, {"-0", "0"}, {"2.50", "2.5"}, {" -1.25 ", "-1.25"}, {"007", "7"}, {".5", "0.5"},
        {"1E+20", "100000000000000000000"}, {"1.5E-05", "0.000015"}, {"1E-40", "0"},
        {"79228162514264337593543950335", "79228162514264337593543950335"},
        {"-79228162514264337593543950335", "-79228162514264337593543950335"},
        {"0.12345678901234567890123456789", "0.1234567890123456789012345679"},
        {"0.00000000000000000000000000005", "0"},
        {"0.00000000000000000000000000015", "0.0000000000000000000000000002"},
        {"0.000000000000000000000000000050001", "0.0000000000000000000000000001"},
    };
    // clang-format on
    for (const auto &row : rows)
        EXPECT_EQ(text(dec(row.entrada)), QString::fromUtf8(row.salida)) << row.entrada;
}

TEST(ScaledDecimal, FollowsTheRegionsMark)
{
    ScopedDecimalMark region(u',');
    EXPECT_EQ(text(dec("1,5") + dec("1,25")), u"2,75"_s);
    EXPECT_EQ(text(dec("1,5E+01")), u"15"_s);
    EXPECT_EQ(errorNumber([] { dec("1.5"); }), 13);
}

TEST(ScaledDecimal, RejectsTextThatIsNoNumber)
{
    ScopedDecimalMark region(u'.');
    for (const char *bad : {"", "abc", "1.2.3", "1E", "1E+", "--1", "1-", "1 2", "E5"})
        EXPECT_EQ(errorNumber([&] { dec(bad); }), 13) << bad;
}

TEST(ScaledDecimal, OverflowsBeyondNinetySixBits)
{
    ScopedDecimalMark region(u'.');
    EXPECT_EQ(errorNumber([] { dec("79228162514264337593543950336"); }), 6);
    EXPECT_EQ(errorNumber([] { dec("1E+29"); }), 6);
    EXPECT_EQ(errorNumber([] { dec("1E+999999999999"); }), 6);
    const ScaledDecimal max = dec("79228162514264337593543950335");
    EXPECT_EQ(errorNumber([&] { max + dec("1"); }), 6);
    EXPECT_EQ(errorNumber([&] { max - dec("-1"); }), 6);
    EXPECT_EQ(errorNumber([&] { max *dec("1.1"); }), 6);
    EXPECT_EQ(errorNumber([&] { max / dec("0.5"); }), 6);
    // a fraction that no longer fits is rounded away, not an overflow
    EXPECT_EQ(text(max + dec("0.4")), u"79228162514264337593543950335"_s);
    EXPECT_EQ(text(dec("7922816251426433759354395033.5") * dec("1")),
              u"7922816251426433759354395033.5"_s);
}

TEST(ScaledDecimal, KeepsTwentyEightDecimals)
{
    ScopedDecimalMark region(u'.');
    EXPECT_EQ(text(dec("1") / dec("3")), u"0.3333333333333333333333333333"_s);
    EXPECT_EQ(text(dec("2") / dec("3")), u"0.6666666666666666666666666667"_s);
    EXPECT_EQ(text(dec("10") / dec("3")), u"3.3333333333333333333333333333"_s);
    EXPECT_EQ(text(dec("100") / dec("3")), u"33.333333333333333333333333333"_s);
    EXPECT_EQ(text(dec("-1") / dec("8")), u"-0.125"_s);
    EXPECT_EQ(text(dec("0.1") + dec("0.2")), u"0.3"_s);
    EXPECT_EQ(text(dec("1.5") * dec("-1.5")), u"-2.25"_s);
    EXPECT_EQ(text(dec("5") - dec("7.25")), u"-2.25"_s);
    EXPECT_EQ(errorNumber([] { dec("1") / dec("0"); }), 11);
    EXPECT_TRUE(dec("0.000").isZero());
    EXPECT_EQ(dec("2.5").toDouble(), 2.5);
    EXPECT_EQ(dec("-1E+28").toDouble(), -1e28);
    EXPECT_EQ(ScaledDecimal::fromInteger(-42), dec("-42"));
}

} // namespace
} // namespace zafro
