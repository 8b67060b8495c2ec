#include "runtime/rounding.h"
#include "runtime_test_helpers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zafro {
namespace {

using test::errorNumber;

TEST(Round, HalvesGoToTheEvenNeighbour)
{
    const double justBelow = 0.5 - 0x1p-54, odd = 0x1p52 + 1; // odd: no fraction left
    const struct {
        double x;
        double expected;
    } cases[] = {{0.5, 0.0}, {1.5, 2.0}, {2.5, 2.0},   {-0.5, 0.0},      {-1.5, -2.0}, {-2.5, -2.0},
                 {2.4, 2.0}, {2.6, 3.0}, {-2.6, -3.0}, {justBelow, 0.0}, {odd, odd}};
    for (const auto &c : cases)
        EXPECT_EQ(Round(c.x), c.expected) << c.x;
}

TEST(Round, ScalesInBinaryBeforeRoundingToDecimals)
{
    const struct {
        double x;
        int decimals;
        double expected;
    } cases[] = {
        {2.675, 2, 2.68},       // 2.675 * 100 is exactly 267.5, and 268 is even
        {1233.715, 2, 1233.71}, // 1233.715 * 100 is 123371.49999999999
        {0.285, 2, 0.28},       // 0.285 * 100 is 28.499999999999996
        {2.345, 2, 2.35},       // 2.345 * 100 is 234.50000000000003
        {1.005, 2, 1.0},        // 1.005 * 100 is 100.49999999999999
        {0.125, 2, 0.12},       // 12.5 exactly: to the even 12
        {0.375, 2, 0.38},       // 37.5 exactly: to the even 38
        {-0.125, 2, -0.12},     {-2.675, 2, -2.68}, {1.23456789, 4, 1.2346},
        {3.14159, 0, 3.0},      {1e20, 2, 1e20}, // nothing left to round at that scale
        {1e300, 10, 1e300},                      // the scaled value would not be finite
        {0.1, 400, 0.1},
    };
    for (const auto &c : cases)
        EXPECT_EQ(Round(c.x, c.decimals), c.expected) << c.x << " to " << c.decimals;
    EXPECT_EQ(errorNumber([] { Round(12.5, -1); }), 5) << "negative decimals";
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Round(inf, 2), inf);
    EXPECT_TRUE(std::isnan(Round(std::numeric_limits<double>::quiet_NaN())));
}

TEST(IntAndFix, DifferOnlyForNegativeFractions)
{
    const struct {
        double x;
        double intValue;
        double fixValue;
    } cases[] = {{1.5, 1.0, 1.0}, {-1.5, -2.0, -1.0}, {-0.5, -1.0, 0.0},    {-2.0, -2.0, -2.0},
                 {0.0, 0.0, 0.0}, {1e20, 1e20, 1e20}, {-1e20, -1e20, -1e20}};
    for (const auto &c : cases) {
        EXPECT_EQ(Int(c.x), c.intValue) << c.x;
        EXPECT_EQ(Fix(c.x), c.fixValue) << c.x;
    }
}

} // namespace
} // namespace zafro
