#include "maths/diferencial.h"

#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"

namespace zafro {

Monomio derivada(const QString &a, const QString &n)
{
    return {CStr(checkDouble(Val(a) * Val(n))), CStr(checkDouble(Val(n) - 1))};
}

Monomio integral(const QString &a, const QString &n)
{
    const double e = checkDouble(Val(n) + 1);
    const QString escrito = CStr(e);
    return {CStr(divide(Val(a), e)), CStr(Val(escrito))};
}

} // namespace zafro
