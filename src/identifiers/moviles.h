#pragma once

#include <QString>

#include <optional>

namespace zafro {

struct Operadora {
    QString nombre;
    quint32 color; // text colour, blue-green-red
};

// The operator that a mobile prefix belonged to when the table was written. The
// text is compared numerically ("6e2" is 600) with the groups in order and the
// first group holding it wins. Kept: 647 and 650 stand in two groups, and both of
// Moviline's prefixes are taken by MoviStar first, so Moviline never shows.
std::optional<Operadora> operadoraDePrefijo(const QString &prefijo);

} // namespace zafro
