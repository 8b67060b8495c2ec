#include "maths/radian.h"

#include "runtime/arith.h"
#include "runtime/rounding.h"

namespace zafro {

double aRadianes(double grados)
{
    return Round(checkDouble(grados * kPiRadian) / 180, 4);
}

double aGrados(double radianes)
{
    return Round(checkDouble(radianes * 180) / kPiRadian, 4);
}

} // namespace zafro
