#include "maths/sucesiones.h"

#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"

namespace zafro {

namespace {

double enesimo(double a1, double n, double d)
{
    return checkDouble(a1 + checkDouble((n - 1) * d));
}

} // namespace

std::optional<QString> terminoAn(const QString &a1, const QString &n, const QString &d)
{
    if (Val(a1) == 0 || Val(n) == 0 || Val(d) == 0)
        return std::nullopt;
    return CStr(enesimo(Val(a1), Val(n), Val(d)));
}

SumaSucesion sumaNTerminos(const QString &textoA1, const QString &textoN, const QString &textoD,
                           const QString &textoAn)
{
    const double a1 = Val(textoA1);
    const double n = Val(textoN);
    const double d = Val(textoD);
    SumaSucesion suma;
    if (d != 0) {
        const double an = enesimo(a1, n, d);
        suma.an = CStr(an);
        suma.sn = CStr(checkDouble(n * (checkDouble(an + a1) / 2)));
        return suma;
    }
    const double an = Val(textoAn);
    if (an == 0) {
        suma.sinDatos = true;
        return suma;
    }
    suma.sn = CStr(checkDouble(checkDouble(a1 + an) / 2 * n));
    suma.d = CStr(divide(checkDouble(an - a1), n - 1));
    return suma;
}

} // namespace zafro
