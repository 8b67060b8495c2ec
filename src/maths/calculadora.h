#pragma once

// The simple calculator: two numbers, five operations, and the result shown in
// hexadecimal, decimal or binary.
//
// The operations work on the lenient readings of the two boxes and leave the result
// as a decimal number. The conversions rewrite the result box from the base that
// the window believes it is in; that belief is a text ("1" hexadecimal, "2" decimal,
// "3" binary) that only the conversion buttons change, so after an operation it can
// lag behind what the box really shows.

#include <QString>

namespace zafro {

enum class Operacion { Suma, Resta, Producto, Division, Potencia };

// What an operation button leaves: a value to show, or one of the two cases that
// are caught and told to the user instead.
struct ResultadoOperacion {
    enum class Estado { Hecho, DivisionPorCero, Indeterminacion };
    Estado estado = Estado::Hecho;
    double valor = 0;
};

// a op b with the runtime's checked double arithmetic: a result beyond the double
// range, or a power with no real value, raises the run-time error.
ResultadoOperacion operar(Operacion op, double a, double b);

// The sign shown beside the numbers: "+", "-", "x", "/", "^".
QString signoDe(Operacion op);

// The texts and titles of the two messages.
inline const QString kDivisionPorCeroTexto =
    QStringLiteral("No se puede dividir por cero, lo siento");
inline const QString kDivisionPorCeroTitulo = QStringLiteral("División por cero");
inline const QString kIndeterminacionTexto = QStringLiteral(
    "Se produce una indeterminación matemática, sería necesario resolverlo por límites");
inline const QString kIndeterminacionTitulo = QStringLiteral("Indeterminación");

// The bases as the window keeps them.
inline const QString kBaseHexadecimal = QStringLiteral("1");
inline const QString kBaseDecimal = QStringLiteral("2");
inline const QString kBaseBinaria = QStringLiteral("3");

// A number in hexadecimal as the runtime's Hex writes it: rounded to a 32-bit
// integer (half to even, an overflow beyond), upper-case digits, and a negative
// value as its 32-bit complement.
QString textoHexadecimal(double valor);

// The result box rewritten by "Hex", "Dec" and "Bin", given the base the window
// believes the box is in. Whatever does not suit that base reads as a wrong number
// or raises the run-time conversion error.
QString convertirAHexadecimal(const QString &resultado, const QString &base);
QString convertirADecimal(const QString &resultado, const QString &base);
QString convertirABinario(const QString &resultado, const QString &base);

} // namespace zafro
