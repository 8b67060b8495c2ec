#include "error_number.h"
#include "maths/areas.h"
#include "maths/diferencial.h"
#include "maths/loga.h"
#include "maths/prestamo.h"
#include "maths/seggrado.h"
#include "maths/sucesiones.h"
#include "runtime/region.h"
#include "shell/language.h"

#include <gtest/gtest.h>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::errorNumber;

TEST(Calculos, QuadraticRootsInBothRegions)
{
    const struct {
        const char *name;
        QChar mark;
        QString a, b, c, x1, x2;
        bool imaginarias;
    } rows[] = {
        {"pure imaginary", u'.', u"1"_s, u"0"_s, u"1"_s, u"0 + 1i"_s, u"0 + -1i"_s, true},
        {"double root", u'.', u"1"_s, u"2"_s, u"1"_s, u"-1"_s, u"-1"_s, false},
        {"complex", u'.', u"1"_s, u"2"_s, u"5"_s, u"-1 + 2i"_s, u"-1 + -2i"_s, true},
        {"negative a", u'.', u"-1"_s, u"0"_s, u"-4"_s, u"0 + -2i"_s, u"0 + 2i"_s, true},
        {"general form", u'.', u"1"_s, u"-1e20"_s, u"0"_s, u"1E+20"_s, u"0"_s, false},
        // d is +3E-09 with c in double precision, and the roots would be real
        {"c is a single", u'.', u"1"_s, u"0.6324555344"_s, u"0.1"_s, u"-0.32 + 0i"_s,
         u"-0.32 + 0i"_s, true},
        {"comma region", u',', u"2"_s, u"-1"_s, u"0"_s, u"0,5"_s, u"0"_s, false},
        {"comma region, d below -1", u',', u"1"_s, u"1"_s, u"1"_s, u"-0,5 + 0,87i"_s,
         u"-0,5 + -0,87i"_s, true},
    };
    for (const auto &row : rows) {
        ScopedDecimalMark mark(row.mark);
        const RaicesSegundoGrado r = resolverSegundoGrado(row.a, row.b, row.c);
        EXPECT_EQ(std::tuple(r.x1, r.x2, r.imaginarias),
                  std::tuple(row.x1, row.x2, row.imaginarias))
            << row.name;
    }
    EXPECT_TRUE(coeficienteANulo(u"0.0abc"_s));
    EXPECT_FALSE(coeficienteANulo(u"1e-300"_s));

    ScopedDecimalMark comma(u',');
    // d = -0,2000000477 reads back as 0 and goes on to the square root
    EXPECT_EQ(errorNumber([] { resolverSegundoGrado(u"1"_s, u"1"_s, u"0.3"_s); }), 5);
    EXPECT_EQ(errorNumber([] { resolverSegundoGrado(u"1"_s, u"1e200"_s, u"0"_s); }), 6);
    EXPECT_EQ(errorNumber([] { resolverSegundoGrado(u"1"_s, u"0"_s, u"1e39"_s); }), 6);
}

TEST(Calculos, ArithmeticSequences)
{
    EXPECT_EQ(terminoAn(u"2.5"_s, u"3"_s, u"-0.5"_s), u"1.5"_s);
    EXPECT_EQ(terminoAn(u"0"_s, u"10"_s, u"1"_s), std::nullopt) << "a first term 0 is missing";
    EXPECT_EQ(terminoAn(u"1"_s, u"10"_s, u"abc"_s), std::nullopt);
    const struct {
        const char *name;
        QString a1, n, d, an;
        bool sinDatos;
        QString nuevoAn, sn, nuevoD;
    } rows[] = {
        {"with d", u"1"_s, u"10"_s, u"1"_s, u""_s, false, u"10"_s, u"55"_s, u""_s},
        {"first term 0", u"0"_s, u"4"_s, u"2"_s, u"99"_s, false, u"6"_s, u"12"_s, u""_s},
        {"no d and no An", u"1"_s, u"10"_s, u"0"_s, u"0"_s, true, u""_s, u""_s, u""_s},
        {"d from An", u"1"_s, u"4"_s, u""_s, u"2"_s, false, u""_s, u"6"_s, u"0.333333333333333"_s},
    };
    for (const auto &row : rows) {
        const SumaSucesion s = sumaNTerminos(row.a1, row.n, row.d, row.an);
        EXPECT_EQ(std::tuple(s.sinDatos, s.an, s.sn, s.d),
                  std::tuple(row.sinDatos, row.nuevoAn, row.sn, row.nuevoD))
            << row.name;
    }
    EXPECT_EQ(errorNumber([] { sumaNTerminos(u"1"_s, u"1"_s, u"0"_s, u"5"_s); }), 11);
    EXPECT_EQ(errorNumber([] { sumaNTerminos(u"5"_s, u"1"_s, u"0"_s, u"5"_s); }), 6);
}

TEST(Calculos, PowerRuleAndLogarithms)
{
    const struct {
        const char *name;
        QChar mark;
        Monomio (*regla)(const QString &, const QString &);
        QString a, n, coeficiente, exponente;
    } rows[] = {
        {"derivative of 3X^2", u'.', derivada, u"3"_s, u"2"_s, u"6"_s, u"1"_s},
        {"integral of 3X^2", u'.', integral, u"3"_s, u"2"_s, u"1"_s, u"3"_s},
        {"derivative, n = 0", u'.', derivada, u"3"_s, u"0"_s, u"0"_s, u"-1"_s},
        {"NUMERO reads 0", u'.', integral, kPalabraNumero, u"2"_s, u"0"_s, u"3"_s},
        // the exponent shown loses its fraction, the coefficient does not
        {"comma region", u',', integral, u"3"_s, u"0.5"_s, u"2"_s, u"1"_s},
    };
    for (const auto &row : rows) {
        ScopedDecimalMark mark(row.mark);
        const Monomio m = row.regla(row.a, row.n);
        EXPECT_EQ(std::pair(m.coeficiente, m.exponente), std::pair(row.coeficiente, row.exponente))
            << row.name;
    }
    EXPECT_EQ(errorNumber([] { integral(u"3"_s, u"-1"_s); }), 11);
    EXPECT_EQ(errorNumber([] { integral(u"0"_s, u"-1"_s); }), 6);

    const QString no = kLogaInvalido;
    const struct {
        QString x, b, enBase, neperiano;
    } logs[] = {{u"100"_s, u"10"_s, u"2"_s, u"4.6052"_s},
                {u"1"_s, u"10"_s, u"0"_s, u"0"_s},
                {u"8"_s, u"2"_s, u"3"_s, u"2.0794"_s},
                {u"8"_s, u"1"_s, no, no},
                {u"8"_s, u"0.5"_s, no, no},
                {u"NUMERO"_s, u"10"_s, no, no}};
    for (const auto &row : logs) {
        const Logaritmos l = logaritmos(row.x, row.b);
        EXPECT_EQ(std::pair(l.enBase, l.neperiano), std::pair(row.enBase, row.neperiano))
            << row.x.toStdString() << " base " << row.b.toStdString();
    }
}

TEST(Calculos, AreasWithTheToolsConstants)
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

    const auto caption = [](int n) { return captionFigura(figurasArea().at(n - 1)); };
    CargarEspanol();
    const struct {
        int numero;
        QString caption;
    } captions[] = {{1, u"Área del Cubo"_s},        {4, u"Área de la Pirámide"_s},
                    {7, u"Área  del T. de Cono"_s}, {9, u"Área del Octoedro"_s},
                    {13, u"Área Huso Esférico"_s},  {21, u"Área de un Polígono"_s},
                    {23, u"Área de S. Circular"_s}, {24, u"Área de una Elipse"_s}};
    for (const auto &row : captions)
        EXPECT_EQ(caption(row.numero), row.caption);
    EXPECT_EQ(datoCampo(3), u"Dato 3"_s);
    CargarIngles();
    EXPECT_EQ(caption(7), u"Area  of the Truncated Cone"_s);
    EXPECT_EQ(caption(21), u"Area de un Polygon"_s) << "the joiner stays as written";
}

TEST(Calculos, MonthlyPaymentInSinglePrecision)
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
    };
    for (const auto &row : rows)
        EXPECT_EQ(cuotaMostrada(cuotaMensual(leerPrestamo(row.capital, row.interes, row.meses))),
                  row.cuota)
            << row.name;
    EXPECT_EQ(errorNumber([] { leerPrestamo(u"1"_s, u"1"_s, u"32767.5"_s); }), 6);
    EXPECT_EQ(errorNumber([] { leerPrestamo(u"1e39"_s, u"1"_s, u"1"_s); }), 6);
    EXPECT_EQ(errorNumber([] { cuotaMensual({1e38f, 1000, 100}); }), 6);
}

} // namespace
} // namespace zafro
