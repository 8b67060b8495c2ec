#include "formulas/coordenadas_muestreo.h"

#include "runtime/convert.h"
#include "runtime/runtime_error.h"

namespace zafro {

Muestreo::Muestreo(float desde, float hasta, float paso) : t_(desde), hasta_(hasta), paso_(paso) {}

bool Muestreo::terminado() const
{
    return paso_ >= 0 ? !(t_ <= hasta_) : !(t_ >= hasta_);
}

void Muestreo::avanzar(int muestras, QList<Punto> &puntos)
{
    // Once the counter is stuck every pass repeats the dots already given.
    if (sinAvance_)
        return;
    for (int i = 0; i < muestras && !terminado(); ++i) {
        muestra(t_, puntos);
        const float siguiente = sng(double(t_) + double(paso_));
        if (siguiente == t_) {
            sinAvance_ = true;
            return;
        }
        t_ = siguiente;
    }
}

QList<Punto> Muestreo::todos()
{
    QList<Punto> puntos;
    while (!terminado() && !sinAvance_)
        avanzar(4096, puntos);
    return puntos;
}

float sng(double x)
{
    return CSng(x);
}

double dividir(double numerador, double denominador)
{
    if (denominador == 0)
        throw numerador == 0 ? RuntimeError::overflow() : RuntimeError::divisionByZero();
    return numerador / denominador;
}

} // namespace zafro
