#pragma once

// Leap years of the Gregorian calendar, for any 32-bit year, negative ones included.

#include <QString>
#include <QtGlobal>

namespace zafro {

enum class Bisiesto { Si, No, Error };

// The year as the box gives it: its lenient reading held in 32 bits (half to even,
// an overflow beyond).
qint32 leerAno(const QString &texto);

// A multiple of 4 that is not a multiple of 100 unless it is of 400; the year 0,
// which is also what a box with no number reads as, is an error.
Bisiesto esBisiesto(qint32 ano);

// Only a box that says exactly "0" earns the joke about the year zero; "abc" or
// "0.0" just show the error.
bool avisarAnoCero(const QString &texto);

inline const QString kBisiestoError = QStringLiteral("Error");

} // namespace zafro
