#include "maths/bisiesto.h"

#include "runtime/arith.h"
#include "runtime/convert.h"

namespace zafro {

qint32 leerAno(const QString &texto)
{
    return CLng(Val(texto));
}

Bisiesto esBisiesto(qint32 ano)
{
    if (ano == 0)
        return Bisiesto::Error;
    if (mod32(ano, 4) != 0)
        return Bisiesto::No;
    if (mod32(ano, 100) == 0 && mod32(ano, 400) != 0)
        return Bisiesto::No;
    return Bisiesto::Si;
}

bool avisarAnoCero(const QString &texto)
{
    return texto == QLatin1String("0");
}

} // namespace zafro
