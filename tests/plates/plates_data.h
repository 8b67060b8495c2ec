#pragma once

// A month data set for the tests, written to the store the way an update writes it.
// Its totals follow the public counts of the national series: 0000 CBB was reached
// in October 2002, and the 2002 running totals are the published ones.

#include "plates/matriculas.h"
#include "shell/settings.h"

namespace zafro::test {

// September 2000 is a part month; then an even estimate up to December 2001.
inline constexpr double kSeptiembre2000 = 52000;
inline constexpr double kMesHasta2001 = 165000;

// Running totals at the end of each month of 2002.
inline constexpr double kTotales2002[12] = {2686587, 2831647, 2999656, 3161974, 3340503, 3515032,
                                            3719036, 3834663, 3953684, 4117042, 4259549, 4415896};

inline void escribirMes(int k, double coches)
{
    EscribirClave(configPath(matriculas::nombreValorMes(k), QStringLiteral("Matriculas")),
                  QString::number(coches, 'f', 0));
}

// Months up to December 2002; the later ones stay unstored.
inline void escribirDatos2002()
{
    escribirMes(0, kSeptiembre2000);
    for (int k = 1; k <= 15; ++k)
        escribirMes(k, kMesHasta2001);
    double anterior = kSeptiembre2000 + 15 * kMesHasta2001;
    for (int m = 0; m < 12; ++m) {
        escribirMes(16 + m, kTotales2002[m] - anterior);
        anterior = kTotales2002[m];
    }
}

inline void escribirFecha(const char *dia, const char *mes, const char *ano)
{
    writeConfig(QStringLiteral("act1"), QLatin1String(dia), QStringLiteral("Matriculas"));
    writeConfig(QStringLiteral("act2"), QLatin1String(mes), QStringLiteral("Matriculas"));
    writeConfig(QStringLiteral("act3"), QLatin1String(ano), QStringLiteral("Matriculas"));
    writeConfig(QStringLiteral("entrado"), QStringLiteral("1"), QStringLiteral("Matriculas"));
}

} // namespace zafro::test
