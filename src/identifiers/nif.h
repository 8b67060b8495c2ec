#pragma once

#include <QString>

namespace zafro {

class Random;

// 24 letters, of which the remainder of a division by 23 reaches the first 23.
inline const QString kLetrasNif = QStringLiteral("TRWAGMYFPDXBNJZSQVHLCKEI");

struct ResultadoNif {
    QString letra; // Text11
    QString nif;   // Text1
};

// The letter of an identity number and the number with it. The number is written
// as read, so typed leading zeros are gone. A negative number has no letter and
// no result; a fractional one takes the letter of its value rounded half to even;
// one beyond 32 bits is the runtime's overflow.
ResultadoNif calcularNif(double numero);

// A made-up identity number, eight digits drawn in order. With the logical limits
// the first digit stays below 6, as in the numbers really issued. A first 0 makes
// the number shorter.
qint32 dniAlAzar(Random &random, bool limitesLogicos);

} // namespace zafro
