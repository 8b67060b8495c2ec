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
constexpr double kInf = std::numeric_limits<double>::infinity();

// One checked operation, its result, or the error it raises instead (then 0 in `expected`).
struct Row {
    const char *name;
    double (*f)();
    double expected;
    int error;
};

void check(const Row *begin, const Row *end)
{
    for (const Row *row = begin; row != end; ++row) {
        SCOPED_TRACE(row->name);
        if (row->error == 0)
            EXPECT_EQ(row->f(), row->expected);
        else
            EXPECT_EQ(errorNumber(row->f), row->error);
    }
}

TEST(CheckedArithmetic, IntegerResultsOutOfRangeOverflowAndDivisionByZeroIsCaught)
{
    const Row rows[] = {
        {"add16 up to the top", [] { return double(add16(32766, 1)); }, 32767, 0},
        {"add16 past the top", [] { return double(add16(32767, 1)); }, 0, 6},
        {"add16 past the bottom", [] { return double(add16(-32768, -1)); }, 0, 6},
        {"sub16 down to the bottom", [] { return double(sub16(-32767, 1)); }, -32768, 0},
        {"sub16 0 - min", [] { return double(sub16(0, -32768)); }, 0, 6},
        {"mul16 most", [] { return double(mul16(181, 181)); }, 32761, 0},
        {"mul16 down to min", [] { return double(mul16(-256, 128)); }, -32768, 0},
        {"mul16 past the top", [] { return double(mul16(256, 128)); }, 0, 6},
        {"div16 truncates", [] { return double(div16(-7, 2)); }, -3, 0},
        {"div16 by a negative", [] { return double(div16(7, -2)); }, -3, 0},
        {"div16 min / -1", [] { return double(div16(-32768, -1)); }, 0, 6},
        {"div16 by 0", [] { return double(div16(5, 0)); }, 0, 11},
        {"div16 0 / 0", [] { return double(div16(0, 0)); }, 0, 11},
        {"mod16 keeps the left sign", [] { return double(mod16(-7, 2)); }, -1, 0},
        {"mod16 by a negative", [] { return double(mod16(7, -2)); }, 1, 0},
        {"mod16 min / -1 is 0", [] { return double(mod16(-32768, -1)); }, 0, 0},
        {"mod16 by 0", [] { return double(mod16(5, 0)); }, 0, 11},
        {"neg16", [] { return double(neg16(32767)); }, -32767, 0},
        {"neg16 of min", [] { return double(neg16(-32768)); }, 0, 6},
        {"add32 up to the top", [] { return double(add32(kLongMax - 1, 1)); }, kLongMax, 0},
        {"add32 past the top", [] { return double(add32(kLongMax, 1)); }, 0, 6},
        {"add32 past the bottom", [] { return double(add32(kLongMin, -1)); }, 0, 6},
        {"sub32 down to min", [] { return double(sub32(kLongMin + 1, 1)); }, kLongMin, 0},
        {"sub32 0 - min", [] { return double(sub32(0, kLongMin)); }, 0, 6},
        // A tick count that has wrapped past 31 bits, less a start near the top.
        {"sub32 wrapped ticks", [] { return double(sub32(kLongMin + 5, kLongMax - 5)); }, 0, 6},
        {"mul32 most", [] { return double(mul32(46340, 46340)); }, 2147395600, 0},
        {"mul32 down to min", [] { return double(mul32(-65536, 32768)); }, kLongMin, 0},
        {"mul32 past the top", [] { return double(mul32(46341, 46341)); }, 0, 6},
        {"div32 truncates", [] { return double(div32(-7, 2)); }, -3, 0},
        {"div32 min / -1", [] { return double(div32(kLongMin, -1)); }, 0, 6},
        {"div32 by 0", [] { return double(div32(1, 0)); }, 0, 11},
        {"mod32 keeps the left sign", [] { return double(mod32(-7, 2)); }, -1, 0},
        {"mod32 min / -1 is 0", [] { return double(mod32(kLongMin, -1)); }, 0, 0},
        {"mod32 by 0", [] { return double(mod32(1, 0)); }, 0, 11},
        {"neg32", [] { return double(neg32(kLongMax)); }, -kLongMax, 0},
        {"neg32 of min", [] { return double(neg32(kLongMin)); }, 0, 6},
    };
    check(std::begin(rows), std::end(rows));
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

TEST(CheckedDoubles, DomainAndRangeErrorsAreTheRuntimes)
{
    const Row rows[] = {
        {"1 / 4", [] { return divide(1, 4); }, 0.25, 0},
        {"1 / 0", [] { return divide(1, 0); }, 0, 11},
        {"1 / -0", [] { return divide(1, -0.0); }, 0, 11},
        {"0 / 0 is an overflow", [] { return divide(0, 0); }, 0, 6},
        {"a quotient too big", [] { return divide(1e308, 1e-10); }, 0, 6},
        {"underflow is no error", [] { return divide(1e-300, 1e300); }, 0, 0},
        {"finite", [] { return checkDouble(-5.5); }, -5.5, 0},
        {"infinite", [] { return checkDouble(kInf); }, 0, 6},
        {"minus infinite", [] { return checkDouble(-kInf); }, 0, 6},
        {"not a number", [] { return checkDouble(std::nan("")); }, 0, 6},
        {"2 ^ 10", [] { return power(2, 10); }, 1024, 0},
        {"-2 ^ 3", [] { return power(-2, 3); }, -8, 0},
        {"4 ^ 0.5", [] { return power(4, 0.5); }, 2, 0},
        {"0 ^ 0", [] { return power(0, 0); }, 1, 0},
        {"2 ^ -1", [] { return power(2, -1); }, 0.5, 0},
        {"no real cube root", [] { return power(-8, 1.0 / 3.0); }, 0, 5},
        {"0 ^ -1", [] { return power(0, -1); }, 0, 5},
        {"10 ^ 400", [] { return power(10, 400); }, 0, 6},
        {"Sqr(16)", [] { return Sqr(16); }, 4, 0},
        {"Sqr(-1)", [] { return Sqr(-1); }, 0, 5},
        {"Log(1)", [] { return Log(1); }, 0, 0},
        {"Log(0)", [] { return Log(0); }, 0, 5},
        {"Log(-1)", [] { return Log(-1); }, 0, 5},
        {"Exp(0)", [] { return Exp(0); }, 1, 0},
        {"Exp(-1000)", [] { return Exp(-1000); }, 0, 0},
        {"Exp(710)", [] { return Exp(710); }, 0, 6},
    };
    check(std::begin(rows), std::end(rows));
    EXPECT_DOUBLE_EQ(Log(std::exp(2.0)), 2.0);
}

} // namespace
} // namespace zafro
