#pragma once

// The logarithm of a number in a base, and its natural logarithm, as the user types.

#include <QString>

namespace zafro {

struct Logaritmos {
    QString enBase;
    QString neperiano;
};

// Both rounded to 4 decimals. A number not above 0 or a base not above 1 gives
// "Inválido" in both. kept: a base between 0 and 1 is refused though it is computable.
Logaritmos logaritmos(const QString &numero, const QString &base);

// The same word in every language.
inline const QString kLogaInvalido = QStringLiteral("Inválido");
inline const QString kBaseInicial = QStringLiteral("10");

} // namespace zafro
