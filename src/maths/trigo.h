#pragma once

// Sine, cosine and tangent of an angle in degrees, each rounded to four decimals.

#include <QString>

namespace zafro {

// Two pi as the tool has always had it; the exact value would move the fourth
// decimal of some results.
inline constexpr double kDosPiTrigo = 6.283184;

double gradosARadianesTrigo(double grados);

// Whether the tangent is shown as "Error": only the odd multiples of 90 from 90 to
// 1350 are listed, so -90 and 1530 get a very large number instead.
bool tangenteIndefinida(double grados);

// The texts of the three result boxes for an angle.
struct RazonesTrigonometricas {
    QString seno;
    QString coseno;
    QString tangente;
};
RazonesTrigonometricas razonesTrigonometricas(double grados);

inline const QString kTangenteError = QStringLiteral("Error");

} // namespace zafro
