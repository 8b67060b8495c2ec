#pragma once

// What the Cartesian and the polar graphs share: the dots they compute and the
// single-precision counting loop that samples a curve.
//
// A graph is a loop over a 32-bit float from one end to the other in steps of a
// given size, each sample giving none, one or two dots in logical coordinates.
// The loop runs a slice at a time, so that a window can let its events through
// between slices: a step of 0, or one too small to move the counter, never ends,
// and the window must stay alive while it runs.

#include <QList>

namespace zafro {

struct Punto {
    float x = 0;
    float y = 0;
    bool operator==(const Punto &) const = default;
};

class Muestreo {
public:
    virtual ~Muestreo() = default;

    // The loop's test, as a counting loop makes it before each pass: with a step that
    // is not negative the counter must not be above the end, otherwise not below it.
    bool terminado() const;
    // The counter no longer moves: the loop goes on for ever without new dots.
    bool sinAvance() const { return sinAvance_; }
    float contador() const { return t_; }

    // Runs up to `muestras` passes of the loop, adding their dots.
    void avanzar(int muestras, QList<Punto> &puntos);
    // The whole loop; only for steps that end (tests and tools that know the step).
    QList<Punto> todos();

protected:
    Muestreo(float desde, float hasta, float paso);
    virtual void muestra(float t, QList<Punto> &puntos) const = 0;

private:
    float t_;
    float hasta_;
    float paso_;
    bool sinAvance_ = false;
};

// The rounding of a double to single precision that the original's assignments
// make: a value beyond the single range is an overflow.
float sng(double x);
// Division as the original's floating point meets it: by 0 a run-time error (11),
// and 0 by 0 an overflow (6).
double dividir(double numerador, double denominador);

} // namespace zafro
