#include "maths/prestamo.h"

#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"

namespace zafro {

namespace {

// A single-precision result: beyond the single range it overflows.
float sng(double x)
{
    return CSng(checkDouble(x));
}

} // namespace

DatosPrestamo leerPrestamo(const QString &capital, const QString &interes, const QString &meses)
{
    return {CSng(Val(capital)), CSng(Val(interes)), CInt(Val(meses))};
}

float cuotaMensual(const DatosPrestamo &datos)
{
    const float c = datos.capitalPrestado;
    const float i = datos.interesAnual;
    const qint16 n = datos.numeroMeses;
    if (i == 0)
        return sng(divide(c, n));
    const float x = sng(power(sng(sng(i / 1200.0) + 1.0), n));
    return sng(divide(sng(sng(double(c) * i) * double(x)), sng(sng(double(x) - 1) * 1200.0)));
}

QString cuotaMostrada(float cuota)
{
    return Format(cuota, QStringLiteral("0.00"));
}

bool teclaPrestamo(int keyAscii)
{
    return keyAscii == 8 || QStringLiteral("0123456789.").contains(QChar(keyAscii));
}

} // namespace zafro
