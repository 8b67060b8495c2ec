#include "formulas/coordenadas.h"

#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/language.h"

#include <cmath>

namespace zafro {

namespace {

constexpr float kDesde = -100;
constexpr float kHasta = 100;

bool valida(qint16 ecuacion)
{
    return ecuacion >= Recta && ecuacion <= Tangente;
}

// The step of the loop; an equation that is not drawn gets a loop that never runs.
float pasoDe(const Coordenadas &estado)
{
    return valida(estado.ecuacion) ? CSng(estado.densidad) : 1.0f;
}

float desdeDe(const Coordenadas &estado)
{
    return valida(estado.ecuacion) ? kDesde : kHasta + 1;
}

// Powers of 2 are the platform's power operator: double precision.
double cuadrado(double x)
{
    return x * x;
}

Coordenadas &enmendar(Coordenadas &estado)
{
    switch (estado.ecuacion) {
    case Recta:
        if (estado.b == 0 && estado.a == 0)
            estado.a = 1;
        break;
    case Elipse:
        if (estado.e < 0)
            estado.e = -estado.e;
        break;
    case ParabolaHorizontal:
    case ParabolaVertical:
        if (estado.b == 0)
            estado.b = 1;
        break;
    default:
        break;
    }
    return estado;
}

} // namespace

Coordenadas &coordenadas()
{
    static Coordenadas modulo;
    return modulo;
}

QStringList textosDeEcuaciones()
{
    return {texto(slot::Recta),
            texto(slot::Circunferencia),
            texto(slot::CoordenadasElipse),
            texto(slot::ParabolaHorizontal),
            texto(slot::ParabolaVertical),
            texto(slot::Hiperbola),
            texto(slot::CoordenadasSeno),
            texto(slot::CoordenadasCoseno),
            texto(slot::CoordenadasTangente)};
}

qint16 ecuacionDeTexto(const QString &texto)
{
    if (texto.isEmpty())
        return 0;
    return qint16(textosDeEcuaciones().indexOf(texto) + 1);
}

QString formulaDeEcuacion(qint16 ecuacion)
{
    static const char *const formulas[] = {
        "y = mx + n",        "(x-a)^2+(y-b)^2=c^2", "d*(x-a)^2+e*(y-b)^2=c^2",
        "b*(y-d)^2= ax+c",   "a*(x-d)^2= by+c",     "x^2/a^2 - y^2/b^2 = 1",
        "sen (ax) + bx + c", "cos (ax) + bx + c",   "tan (ax) + bx + c",
    };
    return valida(ecuacion) ? QString::fromLatin1(formulas[ecuacion - 1]) : QString();
}

QString notaDeEcuacion(qint16 ecuacion)
{
    if (ecuacion >= Seno && ecuacion <= Tangente)
        return QStringLiteral("(") + texto(slot::Radianes) + QStringLiteral(")");
    return {};
}

QString densidadDeTexto(const QString &box)
{
    return CStr(Val(box));
}

MuestreoCartesiano::MuestreoCartesiano(Coordenadas &estado)
    : Muestreo(desdeDe(estado), kHasta, pasoDe(estado)), estado_(enmendar(estado))
{}

void MuestreoCartesiano::muestra(float t, QList<Punto> &puntos) const
{
    const float a = estado_.a, b = estado_.b, c = estado_.c, d = estado_.d, e = estado_.e;
    const auto par = [&](float x, double centro, double desvio) {
        puntos.append({x, sng(centro + desvio)});
        puntos.append({x, sng(centro - desvio)});
    };
    switch (estado_.ecuacion) {
    case Recta:
        // kept: with b = 0 the form is b*y = a*x + c, a vertical line
        if (b == 0)
            puntos.append({sng(dividir(-c, a)), t});
        else
            puntos.append({t, sng(dividir(sng(sng(double(a) * t) + c), b))});
        break;
    case Circunferencia: {
        // kept: c is the square of the radius, and the test is on the single value
        const float p = sng(cuadrado(sng(double(t) - a)));
        if (p <= c)
            par(t, b, std::sqrt(double(sng(double(c) - p))));
        break;
    }
    case Elipse: {
        const double q = dividir(cuadrado(c) - d * cuadrado(sng(double(t) - a)), e);
        if (q >= 0)
            par(t, b, std::sqrt(q));
        break;
    }
    case ParabolaHorizontal: {
        // kept: c is subtracted where the text adds it
        const float q = sng(dividir(sng(sng(double(a) * t) - c), b));
        if (q >= 0)
            par(t, d, std::sqrt(double(q)));
        break;
    }
    case ParabolaVertical:
        puntos.append({t, sng(dividir(a * cuadrado(sng(double(t) - d)) - c, b))});
        break;
    case Hiperbola: {
        const double q = dividir(cuadrado(t), cuadrado(a)) - 1;
        if (q >= 0) {
            const double y = b * std::sqrt(q);
            puntos.append({t, sng(y)});
            puntos.append({t, sng(-y)});
        }
        break;
    }
    case Seno:
        puntos.append({t, sng(std::sin(sng(double(a) * t)) + sng(double(b) * t) + c)});
        break;
    case Coseno:
        puntos.append({t, sng(std::cos(sng(double(a) * t)) + sng(double(b) * t) + c)});
        break;
    case Tangente:
        puntos.append({t, sng(std::tan(sng(double(a) * t)) + sng(double(b) * t) + c)});
        break;
    default:
        break;
    }
}

} // namespace zafro
