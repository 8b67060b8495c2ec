#include "formulas/polares.h"

#include <cmath>
#include <optional>

namespace zafro {

namespace {

bool valida(qint16 ecuacion)
{
    return ecuacion >= 1 && ecuacion <= 10;
}

Polaress &enmendar(Polaress &estado)
{
    if (estado.ecuacion == 1 && estado.c == 0)
        estado.c = 1;
    return estado;
}

// r for one z, or nothing where the curve's condition skips the sample.
std::optional<double> radio(const Polaress &p, float z)
{
    const double c = p.c;
    const double seno = std::sin(double(p.s) * z);
    const double coseno = std::cos(double(p.k) * z);
    switch (p.ecuacion) {
    case 1:
        return z / (c * 10);
    case 2:
        if (coseno == 0)
            return std::nullopt;
        return seno / coseno + c;
    case 3:
        return c + coseno;
    case 4:
        return c + seno + coseno;
    case 5:
        if (coseno == 0)
            return std::nullopt;
        return 1 / coseno + c;
    case 6:
        return coseno * seno + c;
    case 7:
        // kept: the cosine sits inside the sine's argument, while the test for zero
        // looks at the two factors apart
        if (seno == 0 || coseno == 0)
            return std::nullopt;
        return dividir(1, std::sin(double(p.s) * z * coseno)) + c;
    case 8:
        return c * coseno + c * seno;
    case 9:
        if (coseno == 0)
            return std::nullopt;
        return coseno + seno / coseno + c;
    case 10:
        if (coseno == 0)
            return std::nullopt;
        return coseno * seno + seno * seno / coseno + c;
    default:
        return std::nullopt;
    }
}

} // namespace

Polaress &polaress()
{
    static Polaress modulo;
    return modulo;
}

const QStringList &textosPolares()
{
    static const QStringList textos{
        QStringLiteral("z/c"),
        QStringLiteral("sin(z)/cos(z)+c"),
        QStringLiteral("cos(z)"),
        QStringLiteral("cos(z)+sin(z)+c"),
        QStringLiteral("1/cos(z)+c"),
        QStringLiteral("cos(z)*sin(z)+c"),
        QStringLiteral("1/(sin(z)*cos(z))+c"),
        QStringLiteral("c*sin(z)+c*cos(z)"),
        QStringLiteral("cos(z)+sin(z)/cos(z)+c"),
        QStringLiteral("cos(z)*sin(z)+sin(z)*sin(z)/cos(z)+c"),
    };
    return textos;
}

qint16 ecuacionPolarDeTexto(const QString &texto)
{
    return qint16(textosPolares().indexOf(texto) + 1);
}

MuestreoPolar::MuestreoPolar(Polaress &estado)
    : Muestreo(valida(estado.ecuacion) ? 0.0f : 201.0f, 200.0f, 0.01f), estado_(enmendar(estado))
{}

void MuestreoPolar::muestra(float z, QList<Punto> &puntos) const
{
    const std::optional<double> r = radio(estado_, z);
    if (!r)
        return;
    const double rs = sng(*r);
    const float x = sng(rs * std::cos(double(z)));
    const float y = sng(rs * std::sin(double(z)));
    // kept: the last two curves come out mirrored about the diagonal
    if (estado_.ecuacion >= 9)
        puntos.append({y, x});
    else
        puntos.append({x, y});
}

} // namespace zafro
