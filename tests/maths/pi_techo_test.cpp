// Whole runs at the ceiling of the 32-bit arithmetic, which take seconds.

#include "error_number.h"
#include "maths/pi.h"

#include <gtest/gtest.h>

namespace zafro {
namespace {

TEST(PiTecho, OneHundredFiftyThousandDigitsFinishAndOneHundredFiftyOneThousandOverflow)
{
    std::vector<qint32> suma;
    const PiTamano tamano = tamanoPi(150000);
    EXPECT_EQ(test::errorNumber([&] { calcularSumaPi(tamano.grupos, suma); }), 0);
    EXPECT_EQ(test::errorNumber([&] { calcularSumaPi(tamanoPi(151000).grupos, suma); }), 6);
}

} // namespace
} // namespace zafro
