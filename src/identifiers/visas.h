#pragma once

#include <QString>
#include <QStringList>

#include <array>

namespace zafro {

class Random;

// Sixteen digits, d1 to d16; the fields hold whatever number their source gave.
using DigitosTarjeta = std::array<qint32, 16>;

// The tool's own doubling checksum, for the generator and the checker alike:
// twice the digits in odd places from d1 to d15, plus those in even places from d2
// to d14, plus d16. Kept: a doubled digit counts as it stands (5 adds 10), with no
// reduction above 9, so the rule is not the published one.
qint32 sumaControl(const DigitosTarjeta &d);

// A multiple of 10 and at most 150.
bool sumaValida(qint32 suma);

// The largest sum the generator lets through before d16.
inline constexpr qint32 kSumaMaxima = 150;
// How many times a number above the limit is drawn again before giving up, as the
// original ran out of stack when a type digit could never pass.
inline constexpr int kGeneracionesMaximas = 2000;

// A generated number: d1 is the type, d2 to d4 the first, second and last
// characters of the bank text, d5 to d15 random (a 10 becomes 2) and d16 the check
// digit. Kept: a number above the limit is drawn again from a fresh seed, whole;
// one that never passes ends with the runtime's out-of-stack error.
DigitosTarjeta generarTarjeta(Random &random, double tipo, const QString &banco);

// The four groups of four digits, as the result shows them.
QStringList gruposTarjeta(const DigitosTarjeta &d);

// Three random bank digits: a 10 becomes 2 in the first two, 0 in the third.
QString bancoAlAzar(Random &random);

// What the type list writes to the type box for an entry: its leading digit, or
// "4" for anything but 3 to 6.
QString digitoDeTipo(const QString &entrada);

// The digits a check reads from the four groups: the first, second, third and last
// characters of each, a missing or non-digit one counting 0.
DigitosTarjeta leerGrupos(const QStringList &grupos);

// The language slot of the message for a type digit, 0 for none.
int mensajeDeTipo(qint32 primerDigito);

} // namespace zafro
