#pragma once

// The monthly payment of a loan, worked out in single precision as the tool always did.

#include <QString>
#include <QtGlobal>

namespace zafro {

struct DatosPrestamo {
    float capitalPrestado = 0;
    float interesAnual = 0; // percent a year
    qint16 numeroMeses = 0;
};

// The three boxes read leniently; the months rounded half to even into 16 bits, which
// overflows beyond.
DatosPrestamo leerPrestamo(const QString &capital, const QString &interes, const QString &meses);

// C/n without interest, else C·i·x / ((x - 1)·1200) with x = (i/1200 + 1)^n. The window
// deals with n = 0 before it gets here.
float cuotaMensual(const DatosPrestamo &datos);

// The payment as shown: two decimals, a half away from zero (unlike Round).
QString cuotaMostrada(float cuota);

// Keys that the three boxes let through: digits, "." (twice too) and backspace.
bool teclaPrestamo(int keyAscii);

} // namespace zafro
