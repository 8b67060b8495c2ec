#include "identifiers/isbn.h"

#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"

namespace zafro {

void DigitosIsbn::leerCampo(int campo, const QString &texto)
{
    // Where each field's digits start, and how many it reads from its front.
    static constexpr struct {
        int primero, delante;
    } campos[] = {{0, 1}, {2, 2}, {5, 3}};
    const auto &c = campos[campo - 1];
    for (int i = 0; i < c.delante; ++i)
        d_[c.primero + i] = texto.mid(i, 1);
    d_[c.primero + c.delante] = texto.right(1);
}

qint32 DigitosIsbn::sumaPonderada() const
{
    qint32 suma = 0;
    for (int i = 0; i < 9; ++i)
        suma = add32(suma, mul32(i + 1, CLng(Val(d_[i]))));
    return suma;
}

QString DigitosIsbn::caracterControl() const
{
    const qint32 resto = mod32(sumaPonderada(), 11);
    return resto == 10 ? QStringLiteral("X") : CStr(resto);
}

} // namespace zafro
