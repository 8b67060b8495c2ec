#include "maths/calculadora.h"

#include "maths/romanos.h"
#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"

namespace zafro {

ResultadoOperacion operar(Operacion op, double a, double b)
{
    using Estado = ResultadoOperacion::Estado;
    switch (op) {
    case Operacion::Suma:
        return {Estado::Hecho, checkDouble(a + b)};
    case Operacion::Resta:
        return {Estado::Hecho, checkDouble(a - b)};
    case Operacion::Producto:
        return {Estado::Hecho, checkDouble(a * b)};
    case Operacion::Division:
        if (b == 0)
            return {Estado::DivisionPorCero, 0};
        return {Estado::Hecho, divide(a, b)};
    case Operacion::Potencia:
        // Only 0^0 is caught; 0 to a negative power and the like reach the runtime.
        if (a == 0 && b == 0)
            return {Estado::Indeterminacion, 0};
        return {Estado::Hecho, power(a, b)};
    }
    return {};
}

QString signoDe(Operacion op)
{
    switch (op) {
    case Operacion::Suma:
        return QStringLiteral("+");
    case Operacion::Resta:
        return QStringLiteral("-");
    case Operacion::Producto:
        return QStringLiteral("x");
    case Operacion::Division:
        return QStringLiteral("/");
    case Operacion::Potencia:
        return QStringLiteral("^");
    }
    return {};
}

QString textoHexadecimal(double valor)
{
    const auto bits = static_cast<quint32>(CLng(valor));
    return QString::number(bits, 16).toUpper();
}

QString convertirAHexadecimal(const QString &resultado, const QString &base)
{
    if (base == kBaseDecimal)
        return textoHexadecimal(Val(resultado));
    // kept: anything but decimal is taken for binary, hexadecimal included.
    return textoHexadecimal(BinADec(resultado));
}

QString convertirADecimal(const QString &resultado, const QString &base)
{
    if (base == kBaseHexadecimal)
        return CStr(HexADec(resultado));
    return CStr(BinADec(resultado));
}

QString convertirABinario(const QString &resultado, const QString &base)
{
    // The box goes to the 32-bit parameter as text, so it is read strictly in the
    // region's form: a word in it is a type mismatch, not a zero.
    if (base == kBaseDecimal)
        return DecABin(CLng(resultado));
    // kept: anything but decimal is taken for hexadecimal, binary included.
    return DecABin(CLng(HexADec(resultado)));
}

} // namespace zafro
