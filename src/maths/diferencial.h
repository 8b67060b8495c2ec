#pragma once

// The power rule on one monomial a·X^n, both ways: the derivative a·n·X^(n-1) and the
// integral (a/(n+1))·X^(n+1).

#include <QString>

namespace zafro {

struct Monomio {
    QString coeficiente; // the result's "Resultado:" box
    QString exponente;   // the X's exponent box
};

Monomio derivada(const QString &a, const QString &n);

// kept: the exponent is written, read back leniently and written again, so that a
// comma region shows 1.5 as "1" while the coefficient is worked out with 1.5. n = -1
// divides by zero.
Monomio integral(const QString &a, const QString &n);

// What the background click writes: the word in the number box and "10" in the
// result's exponent box.
inline const QString kPalabraNumero = QStringLiteral("NUMERO");
inline const QString kExponenteInicial = QStringLiteral("10");

} // namespace zafro
