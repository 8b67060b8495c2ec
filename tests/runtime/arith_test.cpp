#include "runtime/arith.h"
#include "runtime_test_helpers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zafro {
namespace {

using test::errorNumber;

constexpr qint32 kLongMin = std::numeric_limits<qint32>::min();
constexpr qint32 kLongMax = std::numeric_limits<qint32>::max();

using Op16 = qint16 (*)(qint16, qint16);
using Op32 = qint32 (*)(qint32, qint32);

struct Case16 {
    const char *name;
    Op16 op;
    qint16 a, b;
    qint16 expected; // meaningless when error is set
    int error;
};

struct Case32 {
    const char *name;
    Op32 op;
    qint32 a, b;
    qint32 expected;
    int error;
};

TEST(CheckedArithmetic, SixteenBitResultsOutOfRangeOverflow)
{
    const Case16 cases[] = {
        {"add", add16, 32766, 1, 32767, 0},   {"add", add16, 32767, 1, 0, 6},
        {"add", add16, -32768, -1, 0, 6},     {"add", add16, -32768, 32767, -1, 0},
        {"sub", sub16, -32767, 1, -32768, 0}, {"sub", sub16, -32768, 1, 0, 6},
        {"sub", sub16, 0, -32768, 0, 6},      {"mul", mul16, 181, 181, 32761, 0},
        {"mul", mul16, 182, 181, 0, 6},       {"mul", mul16, -256, 128, -32768, 0},
        {"mul", mul16, 256, 128, 0, 6},       {"div", div16, 7, 2, 3, 0},
        {"div", div16, -7, 2, -3, 0},         {"div", div16, 7, -2, -3, 0},
        {"div", div16, -32768, -1, 0, 6},     {"div", div16, 5, 0, 0, 11},
        {"div", div16, 0, 0, 0, 11},          {"mod", mod16, 7, 2, 1, 0},
        {"mod", mod16, -7, 2, -1, 0},         {"mod", mod16, 7, -2, 1, 0},
        {"mod", mod16, -32768, -1, 0, 0},     {"mod", mod16, 5, 0, 0, 11},
    };
    for (const auto &c : cases) {
        if (c.error == 0)
            EXPECT_EQ(c.op(c.a, c.b), c.expected) << c.name << ' ' << c.a << ' ' << c.b;
        else
            EXPECT_EQ(errorNumber([&] { c.op(c.a, c.b); }), c.error)
                << c.name << ' ' << c.a << ' ' << c.b;
    }
    EXPECT_EQ(neg16(32767), -32767);
    EXPECT_EQ(errorNumber([] { neg16(-32768); }), 6);
}

TEST(CheckedArithmetic, ThirtyTwoBitResultsOutOfRangeOverflow)
{
    const Case32 cases[] = {
        {"add", add32, kLongMax - 1, 1, kLongMax, 0},
        {"add", add32, kLongMax, 1, 0, 6},
        {"add", add32, kLongMin, -1, 0, 6},
        {"sub", sub32, kLongMin + 1, 1, kLongMin, 0},
        {"sub", sub32, kLongMin, 1, 0, 6},
        {"sub", sub32, 0, kLongMin, 0, 6},
        // A tick count that has wrapped past 31 bits, less a start near the top.
        {"sub", sub32, kLongMin + 5, kLongMax - 5, 0, 6},
        {"mul", mul32, 46340, 46340, 2147395600, 0},
        {"mul", mul32, 46341, 46341, 0, 6},
        {"mul", mul32, -65536, 32768, kLongMin, 0},
        {"mul", mul32, 65536, 32768, 0, 6},
        {"div", div32, -7, 2, -3, 0},
        {"div", div32, kLongMin, -1, 0, 6},
        {"div", div32, 1, 0, 0, 11},
        {"mod", mod32, -7, 2, -1, 0},
        {"mod", mod32, kLongMin, -1, 0, 0},
        {"mod", mod32, 1, 0, 0, 11},
    };
    for (const auto &c : cases) {
        if (c.error == 0)
            EXPECT_EQ(c.op(c.a, c.b), c.expected) << c.name << ' ' << c.a << ' ' << c.b;
        else
            EXPECT_EQ(errorNumber([&] { c.op(c.a, c.b); }), c.error)
                << c.name << ' ' << c.a << ' ' << c.b;
    }
    EXPECT_EQ(neg32(kLongMax), -kLongMax);
    EXPECT_EQ(errorNumber([] { neg32(kLongMin); }), 6);
}

TEST(CheckedArithmetic, IntegerDivisionAndModRoundTheirOperandsFirst)
{
    const struct {
        double a, b;
        qint32 quotient, remainder;
        int error;
    } cases[] = {
        {11, 4, 2, 3, 0},   {19, 6.7, 2, 5, 0}, // 6.7 is taken as 7
        {12, 4.3, 3, 0, 0},                     // 4.3 is taken as 4
        {12.6, 5, 2, 3, 0},                     // 12.6 is taken as 13
        {7.5, 2, 4, 0, 0},                      // 7.5 is taken as 8
        {6.5, 2, 3, 0, 0},                      // 6.5 is taken as 6
        {-7, 2, -3, -1, 0}, {5, 0.4, 0, 0, 11}, // 0.4 is taken as 0
        {3e9, 1, 0, 0, 6},  {1, -3e9, 0, 0, 6},
    };
    for (const auto &c : cases) {
        if (c.error == 0) {
            EXPECT_EQ(intDiv(c.a, c.b), c.quotient) << c.a << " \\ " << c.b;
            EXPECT_EQ(modulo(c.a, c.b), c.remainder) << c.a << " Mod " << c.b;
        } else {
            EXPECT_EQ(errorNumber([&] { intDiv(c.a, c.b); }), c.error) << c.a << " \\ " << c.b;
            EXPECT_EQ(errorNumber([&] { modulo(c.a, c.b); }), c.error) << c.a << " Mod " << c.b;
        }
    }
}

TEST(CheckedDoubles, DivisionTellsDivisionByZeroFromOverflow)
{
    EXPECT_EQ(divide(1, 4), 0.25);
    EXPECT_EQ(divide(-9, 3), -3.0);
    EXPECT_EQ(errorNumber([] { divide(1, 0); }), 11);
    EXPECT_EQ(errorNumber([] { divide(-1, 0); }), 11);
    EXPECT_EQ(errorNumber([] { divide(1, -0.0); }), 11);
    EXPECT_EQ(errorNumber([] { divide(0, 0); }), 6);
    EXPECT_EQ(errorNumber([] { divide(1e308, 1e-10); }), 6);
    EXPECT_EQ(divide(1e-300, 1e300), 0.0); // underflow is no error
}

TEST(CheckedDoubles, InfinitiesAndNaNsOverflow)
{
    EXPECT_EQ(checkDouble(-5.5), -5.5);
    EXPECT_EQ(checkDouble(1e308), 1e308);
    EXPECT_EQ(errorNumber([] { checkDouble(std::numeric_limits<double>::infinity()); }), 6);
    EXPECT_EQ(errorNumber([] { checkDouble(-std::numeric_limits<double>::infinity()); }), 6);
    EXPECT_EQ(errorNumber([] { checkDouble(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

TEST(CheckedDoubles, PowerHasNoRealResultOrOverflows)
{
    EXPECT_EQ(power(2, 10), 1024.0);
    EXPECT_EQ(power(-2, 3), -8.0);
    EXPECT_EQ(power(4, 0.5), 2.0);
    EXPECT_EQ(power(0, 0), 1.0);
    EXPECT_EQ(power(0, 2), 0.0);
    EXPECT_EQ(power(2, -1), 0.5);
    EXPECT_EQ(errorNumber([] { power(-8, 1.0 / 3.0); }), 5);
    EXPECT_EQ(errorNumber([] { power(0, -1); }), 5);
    EXPECT_EQ(errorNumber([] { power(10, 400); }), 6);
    EXPECT_EQ(errorNumber([] { power(-10, 401); }), 6);
}

TEST(CheckedDoubles, SqrLogAndExpCheckDomainAndRange)
{
    EXPECT_EQ(Sqr(16), 4.0);
    EXPECT_EQ(Sqr(0), 0.0);
    EXPECT_EQ(errorNumber([] { Sqr(-1); }), 5);
    EXPECT_EQ(Log(1), 0.0);
    EXPECT_DOUBLE_EQ(Log(std::exp(2.0)), 2.0);
    EXPECT_EQ(errorNumber([] { Log(0); }), 5);
    EXPECT_EQ(errorNumber([] { Log(-1); }), 5);
    EXPECT_EQ(Exp(0), 1.0);
    EXPECT_EQ(Exp(-1000), 0.0);
    EXPECT_EQ(errorNumber([] { Exp(710); }), 6);
}

} // namespace
} // namespace zafro
