#include "identifiers/nif.h"

#include "identifiers/identifiers.h"
#include "platform/random.h"
#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"

namespace zafro {

ResultadoNif calcularNif(double numero)
{
    const qint32 resto = modulo(numero, 23); // beyond 32 bits this is the overflow error
    if (numero < 0)
        return {};
    const QString letra = kLetrasNif.mid(resto, 1);
    return {letra, CStr(numero) + letra};
}

qint32 dniAlAzar(Random &random, bool limitesLogicos)
{
    random.randomize();
    QString digitos;
    for (int i = 0; i < 8; ++i) {
        int d = digitoAlAzar(random);
        if (i == 0 && limitesLogicos && d >= 6)
            d = 2;
        else if (i == 0 && !limitesLogicos && d == 10)
            d = 3;
        else if (i > 0 && d == 10)
            d = 0;
        digitos += QString::number(d);
    }
    return CLng(digitos);
}

} // namespace zafro
