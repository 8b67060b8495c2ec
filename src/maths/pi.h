#pragma once

// The digits of pi by Machin's formula, pi = 16 arctan(1/5) - 4 arctan(1/239).
//
// Numbers are fixed point in base 10000, one group of four digits per element, the
// integer part at index 1. Each series advances two powers per round (by 25 and by
// 57121), adding and subtracting its terms into Suma; a carry pass then brings every
// group into 0 to 9999 and the printing rounds and lays out the decimals. The
// arithmetic is 32-bit as it always was: a count of digits whose divisors no longer
// fit is an overflow, near 150000 digits.
//
// The rounds run several terms in one pass over the groups (a term at a group needs
// only the term before it at that group), each with a reciprocal of its divisor, so
// that the quotients, the bounds of each term and the point of stopping are the ones
// that one term at a time gives. CalculoPi runs this on a thread of its own.

#include "runtime/runtime_error.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace zafro {

struct PiTamano {
    qint32 cifras = 0; // digits asked for plus 8 guard digits
    qint32 grupos = 0; // Cifras \ 4 + 1
};

// The sizes for the whole part of a count of digits; raises 6 where Cifras leaves
// 32 bits, and at once above a million digits, which would overflow later anyway.
PiTamano tamanoPi(double digitos);

// Suma from 1 to grupos + 1 (index 0 unused) after both series and the carry pass.
// progreso gets 0 to 100 as the work goes on; parar, when it turns true, stops the
// work between passes and the result is false. Raises 6 where a product of a
// remainder and the base leaves 32 bits.
bool calcularSumaPi(qint32 grupos, std::vector<qint32> &suma,
                    const std::atomic<bool> *parar = nullptr,
                    const std::function<void(int)> &progreso = {});

// The text of the result box from the groups: " PI = 3, " and the decimals in blocks
// of three, 60 to a line. The last group printed is rounded by the next one without
// carrying further.
QString imprimirPi(std::vector<qint32> suma, qint32 grupos);

// The seconds between two readings of the clock, as written in the footer; a time
// of 0 or less (a run over midnight too) is written "0,00002".
QString tiempoPi(float inicio, float fin);

// One computation at a time on a worker thread that touches nothing but its arrays.
// The signals arrive on the owner's thread; a stop or the owner's end joins the
// thread first, and nothing of a stopped run arrives afterwards.
class CalculoPi : public QObject {
    Q_OBJECT
public:
    explicit CalculoPi(QObject *parent = nullptr);
    ~CalculoPi() override;

    void iniciar(qint32 grupos);
    void parar();
    bool enCurso() const { return enCurso_; }

Q_SIGNALS:
    void progreso(int porcentaje);
    void terminado(const QString &texto);           // the printed digits
    void fallado(const zafro::RuntimeError &error); // of the arithmetic

private:
    void trabajar(qint32 grupos, int ronda);

    std::thread hilo_;
    std::atomic<bool> parar_{false};
    int ronda_ = 0; // tells a stopped run's late signals from the current one's
    bool enCurso_ = false;
};

} // namespace zafro
