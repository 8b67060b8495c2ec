#include "error_number.h"
#include "maths/areas.h"
#include "maths/prestamo.h"
#include "shell/language.h"

#include <gtest/gtest.h>

#include <QSet>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::errorNumber;

const FiguraArea &figura(int numero)
{
    return figurasArea().at(numero - 1);
}

TEST(Areas, FormulasWithTheToolsConstants)
{
    const struct {
        const char *name;
        QString numero;
        std::array<QString, 4> campos;
        std::optional<QString> area;
    } rows[] = {
        {"cube of 2", u"1"_s, {u"2"_s}, u"24"_s},
        {"cuboid", u"2"_s, {u"1"_s, u"2"_s, u"3"_s}, u"22"_s},
        {"pyramid", u"4"_s, {u"8"_s, u"3"_s, u"4"_s}, u"16"_s},
        {"truncated cone", u"7"_s, {u"2"_s, u"1"_s, u"1"_s}, u"25.132744"_s},
        {"octahedron of 1", u"9"_s, {u"1"_s}, u"3.4641"_s},
        {"dodecahedron of 1", u"10"_s, {u"1"_s}, u"20.64573"_s},
        {"sphere of 1", u"12"_s, {u"1"_s}, u"12.566372"_s},
        {"zone", u"14"_s, {u"2"_s, u"3"_s}, u"37.699116"_s},
        {"cap, the same", u"15"_s, {u"2"_s, u"3"_s}, u"37.699116"_s},
        {"trapezium: height first", u"20"_s, {u"2"_s, u"3"_s, u"5"_s}, u"8"_s},
        {"sector", u"23"_s, {u"1"_s, u"90"_s}, u"0.78539825"_s},
        {"lenient fields", u"17"_s, {u"2abc"_s, u"Dato 2"_s, u""_s, u"7"_s}, u"0"_s},
        {"no figure", u""_s, {u"2"_s}, std::nullopt},
        {"no such figure", u"25"_s, {u"2"_s}, std::nullopt},
    };
    for (const auto &row : rows)
        EXPECT_EQ(calcularArea(row.numero, row.campos), row.area) << row.name;
    EXPECT_EQ(errorNumber([] { calcularArea(u"1"_s, {u"1e200"_s}); }), 6);
}

TEST(Areas, CaptionsLabelsAndPlaceholdersFromTheLanguage)
{
    QSet<QString> botones, imagenes;
    for (int n = 1; n <= kFigurasArea; ++n) {
        EXPECT_EQ(figura(n).numero, n);
        botones << QLatin1String(figura(n).boton);
        imagenes << QLatin1String(figura(n).imagen);
    }
    EXPECT_EQ(botones.size(), kFigurasArea);
    EXPECT_EQ(imagenes.size(), kFigurasArea);

    CargarEspanol();
    const struct {
        int numero;
        QString caption;
    } rows[] = {{1, u"Área del Cubo"_s},        {4, u"Área de la Pirámide"_s},
                {7, u"Área  del T. de Cono"_s}, {9, u"Área del Octoedro"_s},
                {13, u"Área Huso Esférico"_s},  {21, u"Área de un Polígono"_s},
                {23, u"Área de S. Circular"_s}, {24, u"Área de una Elipse"_s}};
    for (const auto &row : rows)
        EXPECT_EQ(captionFigura(figura(row.numero)), row.caption);
    EXPECT_EQ(etiquetaCampo(figura(3).etiquetas[0]), u"Perímetro de la Base:"_s);
    EXPECT_EQ(etiquetaCampo(figura(18).etiquetas[1]), u"d':"_s);
    EXPECT_EQ(etiquetaCampo(figura(1).etiquetas[1]), QString());
    EXPECT_EQ(datoCampo(3), u"Dato 3"_s);
    EXPECT_TRUE(campoSinDato(u"Dato 3"_s));

    CargarIngles();
    EXPECT_EQ(captionFigura(figura(7)), u"Area  of the Truncated Cone"_s);
    EXPECT_EQ(captionFigura(figura(21)), u"Area de un Polygon"_s) << "the joiner stays";
    EXPECT_EQ(etiquetaCampo(figura(1).etiquetas[0]), u"edge:"_s);
}

TEST(Prestamo, MonthlyPaymentInSinglePrecision)
{
    const struct {
        const char *name;
        QString capital, interes, meses, cuota;
    } rows[] = {
        {"no interest", u"1000"_s, u"0"_s, u"10"_s, u"100.00"_s},
        {"12 percent", u"1000"_s, u"12"_s, u"12"_s, u"88.85"_s},
        {"two points typed", u"1000.5.5"_s, u""_s, u"2"_s, u"500.25"_s},
        {"months half to even", u"100"_s, u"0"_s, u"2.5"_s, u"50.00"_s},
        {"a half away from zero", u"0.125"_s, u"0"_s, u"1"_s, u"0.13"_s},
        {"negative", u"-1000"_s, u"0"_s, u"10"_s, u"-100.00"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(cuotaMostrada(cuotaMensual(leerPrestamo(row.capital, row.interes, row.meses))),
                  row.cuota)
            << row.name;
    EXPECT_EQ(leerPrestamo(u"0.1"_s, u""_s, u""_s).capitalPrestado, 0.1f);
    EXPECT_EQ(errorNumber([] { leerPrestamo(u"1"_s, u"1"_s, u"32767.5"_s); }), 6);
    EXPECT_EQ(errorNumber([] { leerPrestamo(u"1e39"_s, u"1"_s, u"1"_s); }), 6);
    EXPECT_EQ(errorNumber([] { cuotaMensual({1e38f, 1000, 100}); }), 6);

    for (char key : std::string("0123456789.\b"))
        EXPECT_TRUE(teclaPrestamo(key)) << int(key);
    for (char key : std::string("-,a+\r "))
        EXPECT_FALSE(teclaPrestamo(key)) << int(key);
}

} // namespace
} // namespace zafro
