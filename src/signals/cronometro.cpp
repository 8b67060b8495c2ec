#include "signals/cronometro.h"

#include "runtime/arith.h"
#include "runtime/numtext.h"
#include "runtime/rounding.h"

namespace zafro {

void Cronometro::inicio(qint32 ticks)
{
    if (puestoACero) {
        puestoACero = kFalse;
        tiempoInicio = ticks;
        tiempoPausas = 0;
    } else {
        tiempoPausas = add32(tiempoPausas, sub32(ticks, tiempoParada));
    }
}

void Cronometro::parada(qint32 ticks)
{
    tiempoParada = ticks;
}

void Cronometro::reinicio()
{
    puestoACero = kTrue;
}

QString Cronometro::marcha(qint32 ticks) const
{
    return formatoCronometro(sub32(sub32(ticks, tiempoInicio), tiempoPausas));
}

QString Cronometro::total(qint32 ticks) const
{
    return formatoCronometro(sub32(ticks, tiempoInicio));
}

QString formatoCronometro(qint32 milisegundos)
{
    // Single precision throughout, so tenths are lost after some 23 days of count.
    const float segundos = static_cast<float>(milisegundos / 1000.0);
    const auto entero = [](float x) { return static_cast<float>(Int(x)); };
    const float horas = entero(segundos / 3600.0f);
    const float resto = segundos - horas * 3600.0f;
    const float minutos = entero(resto / 60.0f);
    const float restoSegundos = resto - minutos * 60.0f;
    return Format(horas, QStringLiteral("00")) + QStringLiteral(":") +
           Format(minutos, QStringLiteral("00")) + QStringLiteral(":") +
           Format(restoSegundos, QStringLiteral("00.0"));
}

} // namespace zafro
