#include "maths/loga.h"

#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "runtime/rounding.h"

namespace zafro {

Logaritmos logaritmos(const QString &numero, const QString &base)
{
    const double x = Val(numero);
    const double b = Val(base);
    if (!(x > 0) || !(b > 1))
        return {kLogaInvalido, kLogaInvalido};
    return {CStr(Round(divide(Log(x), Log(b)), 4)), CStr(Round(Log(x), 4))};
}

} // namespace zafro
