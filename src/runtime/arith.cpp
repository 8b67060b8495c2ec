#include "runtime/arith.h"

#include "runtime/convert.h"
#include "runtime/runtime_error.h"

#include <cmath>
#include <limits>

namespace zafro {

namespace {

template <typename Int> Int narrow(qint64 wide)
{
    if (wide < std::numeric_limits<Int>::min() || wide > std::numeric_limits<Int>::max())
        throw RuntimeError::overflow();
    return static_cast<Int>(wide);
}

template <typename Int> Int quotient(Int a, Int b)
{
    if (b == 0)
        throw RuntimeError::divisionByZero();
    return narrow<Int>(qint64(a) / qint64(b));
}

template <typename Int> Int remainder(Int a, Int b)
{
    if (b == 0)
        throw RuntimeError::divisionByZero();
    return static_cast<Int>(qint64(a) % qint64(b));
}

} // namespace

qint16 add16(qint16 a, qint16 b)
{
    return narrow<qint16>(qint64(a) + b);
}
qint16 sub16(qint16 a, qint16 b)
{
    return narrow<qint16>(qint64(a) - b);
}
qint16 mul16(qint16 a, qint16 b)
{
    return narrow<qint16>(qint64(a) * b);
}
qint16 div16(qint16 a, qint16 b)
{
    return quotient(a, b);
}
qint16 mod16(qint16 a, qint16 b)
{
    return remainder(a, b);
}
qint16 neg16(qint16 a)
{
    return narrow<qint16>(-qint64(a));
}

qint32 add32(qint32 a, qint32 b)
{
    return narrow<qint32>(qint64(a) + b);
}
qint32 sub32(qint32 a, qint32 b)
{
    return narrow<qint32>(qint64(a) - b);
}
qint32 mul32(qint32 a, qint32 b)
{
    return narrow<qint32>(qint64(a) * b);
}
qint32 div32(qint32 a, qint32 b)
{
    return quotient(a, b);
}
qint32 mod32(qint32 a, qint32 b)
{
    return remainder(a, b);
}
qint32 neg32(qint32 a)
{
    return narrow<qint32>(-qint64(a));
}

qint32 intDiv(double a, double b)
{
    const qint32 left = CLng(a);
    return div32(left, CLng(b));
}

qint32 modulo(double a, double b)
{
    const qint32 left = CLng(a);
    return mod32(left, CLng(b));
}

double divide(double a, double b)
{
    if (b == 0.0) {
        // kept: 0/0 is an overflow there, not a division by zero
        if (a == 0.0)
            throw RuntimeError::overflow();
        throw RuntimeError::divisionByZero();
    }
    return checkDouble(a / b);
}

double checkDouble(double x)
{
    if (!std::isfinite(x))
        throw RuntimeError::overflow();
    return x;
}

double power(double base, double exponent)
{
    if (base == 0.0 && exponent < 0.0)
        throw RuntimeError::invalidProcedureCall();
    const double result = std::pow(base, exponent);
    if (std::isnan(result))
        throw RuntimeError::invalidProcedureCall();
    return checkDouble(result);
}

double Sqr(double x)
{
    if (x < 0.0)
        throw RuntimeError::invalidProcedureCall();
    return std::sqrt(x);
}

double Log(double x)
{
    if (!(x > 0.0))
        throw RuntimeError::invalidProcedureCall();
    return std::log(x);
}

double Exp(double x)
{
    return checkDouble(std::exp(x));
}

} // namespace zafro
