#pragma once

// The roots of a·x² + b·x + c = 0, real or complex, as the result boxes show them.

#include <QString>

namespace zafro {

// An equation with no a is no quadratic: the window refuses it before anything else.
bool coeficienteANulo(const QString &a);

struct RaicesSegundoGrado {
    QString x1;
    QString x2;
    bool imaginarias = false; // the window adds its note about i
};

// a and b are read as doubles, c as a single, so 0.1 enters as 0.100000001. Real roots
// are rounded to 4 decimals, complex ones to 2, written "r + i" with the " + " kept
// before a negative part ("-1 + -2i").
RaicesSegundoGrado resolverSegundoGrado(const QString &a, const QString &b, const QString &c);

} // namespace zafro
