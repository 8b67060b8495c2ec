#include "maths/seggrado.h"

#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "runtime/rounding.h"

namespace zafro {

bool coeficienteANulo(const QString &a)
{
    return Val(a) == 0;
}

RaicesSegundoGrado resolverSegundoGrado(const QString &textoA, const QString &textoB,
                                        const QString &textoC)
{
    const double a = Val(textoA);
    const double b = Val(textoB);
    const float c = CSng(Val(textoC));
    double d = checkDouble(checkDouble(b * b) - checkDouble(checkDouble(4 * a) * c));
    const double dosA = checkDouble(2 * a);

    RaicesSegundoGrado raices;
    // kept: the sign is read back from the text of d, so a comma region loses the
    // fraction and a d between -1 and 0 reaches the square root, which fails.
    if (Val(CStr(d)) >= 0) {
        raices.x1 = CStr(Round(divide(Sqr(d) - b, dosA), 4));
        raices.x2 = CStr(Round(divide(checkDouble(-Sqr(d) - b), dosA), 4));
        return raices;
    }
    d = -d;
    const double i = Round(divide(Sqr(d), dosA), 2);
    const QString r = CStr(Round(divide(0 - b, dosA), 2));
    raices.x1 = r + QStringLiteral(" + ") + CStr(i) + QLatin1Char('i');
    raices.x2 = r + QStringLiteral(" + ") + CStr(-1 * i) + QLatin1Char('i');
    raices.imaginarias = true;
    return raices;
}

} // namespace zafro
