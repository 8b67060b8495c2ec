#include "runtime/classic_random.h"

#include <gtest/gtest.h>

namespace zafro {
namespace {

TEST(ClassicRandom, FirstValuesOfAFreshGeneratorFollowTheRecurrence)
{
    ClassicRandom r;
    std::uint32_t x = 0x50000;
    for (int i = 0; i < 1000; ++i) {
        x = (x * 1140671485u + 12820163u) % (1u << 24);
        const float v = r.rnd();
        ASSERT_EQ(v, static_cast<float>(x) / 16777216.0f) << "draw " << i;
        ASSERT_GE(v, 0.0f);
        ASSERT_LT(v, 1.0f);
    }
}

TEST(ClassicRandom, RandomizeKeepsTheOuterByteAndMixesTheSeedIntoTheMiddle)
{
    ClassicRandom a;
    ClassicRandom b;
    a.randomize(12345.0);
    b.randomize(12345.0);
    EXPECT_EQ(a.state(), b.state());
    EXPECT_EQ(a.state() & 0xFFu, 0x00u);           // low byte of the start state stays
    EXPECT_NE(a.state(), ClassicRandom().state()); // the seed did change something
    ClassicRandom c;
    c.randomize(54321.0);
    EXPECT_NE(a.state(), c.state());
    // the same seed from different states keeps the states different
    ClassicRandom d;
    d.rnd();
    d.randomize(12345.0);
    EXPECT_NE(d.state(), a.state());
}

} // namespace
} // namespace zafro
