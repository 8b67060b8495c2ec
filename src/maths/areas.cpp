#include "maths/areas.h"

#include "runtime/arith.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/language.h"

namespace zafro {

namespace {

using namespace slot;

constexpr EtiquetaArea L(const char *letra)
{
    return {0, letra};
}
constexpr EtiquetaArea S(int numero)
{
    return {numero, ""};
}
constexpr EtiquetaArea N{};

// Reads field 1 to 4 anew at every use, as the formulas are written.
class Campos {
public:
    explicit Campos(const std::array<QString, 4> &textos) : textos_(textos) {}
    double operator()(int campo) const { return Val(textos_.at(campo - 1)); }

private:
    const std::array<QString, 4> &textos_;
};

// The formulas in table order; an infinity or a NaN on the way ends as an overflow.
double area(int numero, const Campos &t)
{
    constexpr double pi = kPiAreas;
    switch (numero) {
    case 1:
        return 6 * t(1) * t(1);
    case 2:
        return 2 * t(1) * t(2) + 2 * t(1) * t(3) + 2 * t(2) * t(3);
    case 3:
        return t(1) * t(2) + 2 * t(3);
    case 4:
        return t(1) * t(2) / 2 + t(3);
    case 5:
        return 2 * t(1) * t(2) * pi + 2 * t(1) * t(1) * pi;
    case 6:
        return t(1) * t(2) * pi + t(1) * t(1) * pi;
    case 7:
        return (t(1) + t(2)) * t(3) * pi + t(1) * t(1) * pi + t(2) * t(2) * pi;
    case 8:
        return t(1) * t(1) * kRaiz3Areas;
    case 9:
        return 2 * t(1) * t(1) * kRaiz3Areas;
    case 10:
        return t(1) * t(1) * 3 * kDodecaedroAreas;
    case 11:
        return t(1) * t(1) * kRaiz3Areas * 5;
    case 12:
        return t(1) * t(1) * pi * 4;
    case 13:
        return t(1) * t(1) * pi * t(2) / 90;
    case 14: // kept: the zone and the cap share one formula
    case 15:
        return 2 * t(1) * t(2) * pi;
    case 16:
        return t(1) * t(1);
    case 17:
        return t(1) * t(2);
    case 18:
        return t(1) * t(2) / 2;
    case 19:
        return t(1) * t(2) / 2;
    case 20:
        return (t(2) + t(3)) * t(1) / 2;
    case 21:
        return t(1) * t(2) / 2;
    case 22:
        return t(1) * t(1) * pi;
    case 23:
        return t(1) * t(1) * t(2) * pi / 360;
    default:
        return t(1) * t(2) * pi;
    }
}

} // namespace

const std::array<FiguraArea, kFigurasArea> &figurasArea()
{
    static const std::array<FiguraArea, kFigurasArea> figuras{{
        {1, "Command8", "cubo", "", AreaDel, Cubo, {S(Arista), N, N}, 1},
        {2, "Command7", "ortoedro", "", AreaDel, Ortoedro, {S(AAncho), S(BLargo), S(CAltura)}, 3},
        {3,
         "Command6",
         "prisma",
         "",
         AreaDel,
         Prisma,
         {S(PerimetroBase), S(HAltura), S(AreaBase)},
         3},
        {4,
         "Command5",
         "piramide",
         "",
         AreaDeLa,
         Piramide,
         {S(PerimetroBase), S(Arista), S(AreaBase)},
         3},
        {5, "Command13", "cilindro", "", AreaDel, Cilindro, {S(Radio), S(HAltura), N}, 2},
        {6, "Command19", "cono", "", AreaDel, Cono, {S(Radio), L("g:"), N}, 2},
        // kept: this one caption has a second blank before " del "
        {7,
         "Command20",
         "troncocono",
         " ",
         AreaDel,
         TroncoCono,
         {S(RadioMayor), S(RadioMenor), L("g:")},
         3},
        {8, "Command9", "tetraedro", "", AreaDel, Tetraedro, {S(Arista), N, N}, 1},
        {9, "Command21", "octaedro", "", AreaDel, Octaedro, {S(Arista), N, N}, 1},
        {10, "Command22", "dodecaedro", "", AreaDel, Dodecaedro, {S(Arista), N, N}, 1},
        {11, "Command23", "icosaedro", "", AreaDel, Icosaedro, {S(Arista), N, N}, 1},
        {12, "Command24", "esfera", "", AreaDeLa, Esfera, {S(Radio), N, N}, 1},
        {13, "Command25", "huso", " ", 0, HusoEsferico, {S(Radio), S(AGradosArea), N}, 2},
        {14, "Command26", "zonaesferica", " ", 0, ZonaEsferica, {S(Radio), S(HAltura), N}, 2},
        {15, "Command27", "casquete", "", AreaDel, Casquete, {S(Radio), S(HAltura), N}, 2},
        {16, "Command4", "cuadrado", "", AreaDel, Cuadrado, {S(Lado), N, N}, 1},
        {17, "Command18", "rectangulo", "", AreaDel, Rectangulo, {L("a:"), L("b:"), N}, 2},
        {18, "Command17", "rombo", "", AreaDel, Rombo, {L("d:"), L("d':"), N}, 2},
        {19, "Command16", "triangulo", "", AreaDel, Triangulo, {S(Base), S(Altura), N}, 2},
        {20, "Command15", "trapecio", "", AreaDel, Trapecio, {S(Altura), S(Base), S(BasePrima)}, 3},
        {21, "Command14", "poligono", " de un ", 0, Poligono, {L("a:"), S(Perimetro), N}, 2},
        {22, "Command12", "circulo", " de un ", 0, Circulo, {S(Radio), N, N}, 1},
        {23,
         "Command11",
         "sectorcircular",
         " de ",
         0,
         SectorCircular,
         {S(Radio), S(AGradosArea), N},
         2},
        {24, "Command10", "elipse", " de una ", 0, AreasElipse, {L("a:"), L("b:"), N}, 2},
    }};
    return figuras;
}

QString captionFigura(const FiguraArea &figura)
{
    QString caption = texto(slot::Area) + QString::fromUtf8(figura.antes);
    if (figura.slotUnion != 0)
        caption += texto(figura.slotUnion);
    return caption + texto(figura.slotNombre);
}

QString etiquetaCampo(const EtiquetaArea &etiqueta)
{
    if (etiqueta.slot == 0)
        return QString::fromUtf8(etiqueta.letra);
    return texto(etiqueta.slot) + QLatin1Char(':');
}

std::optional<QString> calcularArea(const QString &numeroFigura,
                                    const std::array<QString, 4> &campos)
{
    const Campos t(campos);
    for (int numero = 1; numero <= kFigurasArea; ++numero)
        if (numeroFigura == CStr(numero))
            return CStr(checkDouble(area(numero, t)));
    return std::nullopt;
}

bool campoSinDato(const QString &campo)
{
    return Val(campo) == 0;
}

QString datoCampo(int campo)
{
    return texto(slot::Dato) + CStr(campo);
}

} // namespace zafro
