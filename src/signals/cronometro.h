#pragma once

#include <QString>
#include <QtGlobal>

namespace zafro {

// A stopwatch with pauses, measured from the clock's tick count: the running time
// leaves the pauses out, the total keeps them. Every subtraction and the sum of the
// pauses are the runtime's checked 32-bit arithmetic, so a tick count that wraps
// around raises an overflow.
class Cronometro {
public:
    static constexpr qint16 kFalse = 0;
    static constexpr qint16 kTrue = -1;

    void inicio(qint32 ticks); // the start button with its "Inicio" caption
    void parada(qint32 ticks); // the same button as "Parada"
    void reinicio();           // the next start measures anew

    QString marcha(qint32 ticks) const; // the running time, pauses left out
    QString total(qint32 ticks) const;  // since the start, pauses included

    qint32 tiempoInicio = 0;
    qint32 tiempoParada = 0;
    qint32 tiempoPausas = 0;
    // kept: False when the window opens, so the first start adds the whole tick
    // count to the pauses instead of starting afresh.
    qint16 puestoACero = kFalse;
};

// Hours, minutes and seconds to the tenth ("00:00:00.0") of a count of milliseconds,
// worked in single-precision seconds.
QString formatoCronometro(qint32 milisegundos);

inline const QString kCronometroCero = QStringLiteral("00:00:00.0");

} // namespace zafro
