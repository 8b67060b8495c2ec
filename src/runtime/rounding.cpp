#include "runtime/rounding.h"

#include "runtime/runtime_error.h"

#include <cmath>

namespace zafro {

double Round(double x, int decimals)
{
    if (decimals < 0)
        throw RuntimeError::invalidProcedureCall();
    if (!std::isfinite(x))
        return x;
    // The default rounding mode is to nearest, ties to even.
    if (decimals == 0)
        return std::nearbyint(x);
    const double factor = std::pow(10.0, decimals);
    const double scaled = x * factor;
    // Beyond 2^52 a double has no fraction left at that scale: nothing to round.
    if (!std::isfinite(scaled) || std::fabs(scaled) >= 0x1p52)
        return x;
    return std::nearbyint(scaled) / factor;
}

double Int(double x)
{
    return std::floor(x);
}

double Fix(double x)
{
    return std::trunc(x);
}

} // namespace zafro
