#include "maths/trigo.h"

#include "runtime/numtext.h"
#include "runtime/rounding.h"

#include <algorithm>
#include <cmath>

namespace zafro {

double gradosARadianesTrigo(double grados)
{
    return grados / 360 * kDosPiTrigo;
}

bool tangenteIndefinida(double grados)
{
    static constexpr double lista[] = {90, 270, 450, 630, 810, 990, 1170, 1350};
    return std::find(std::begin(lista), std::end(lista), grados) != std::end(lista);
}

RazonesTrigonometricas razonesTrigonometricas(double grados)
{
    const double r = gradosARadianesTrigo(grados);
    RazonesTrigonometricas razones;
    razones.seno = CStr(Round(std::sin(r), 4));
    razones.coseno = CStr(Round(std::cos(r), 4));
    razones.tangente = tangenteIndefinida(grados) ? kTangenteError : CStr(Round(std::tan(r), 4));
    return razones;
}

} // namespace zafro
