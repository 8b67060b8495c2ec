#include "error_number.h"
#include "maths/diferencial.h"
#include "maths/loga.h"
#include "maths/seggrado.h"
#include "maths/sucesiones.h"
#include "runtime/region.h"

#include <gtest/gtest.h>

namespace zafro {
namespace {

using test::errorNumber;
using namespace Qt::Literals::StringLiterals;

TEST(SegundoGrado, RootsRealAndComplexInBothRegions)
{
    const struct {
        const char *name;
        QChar mark;
        QString a, b, c, x1, x2;
        bool imaginarias;
    } rows[] = {
        {"pure imaginary", u'.', u"1"_s, u"0"_s, u"1"_s, u"0 + 1i"_s, u"0 + -1i"_s, true},
        {"double root", u'.', u"1"_s, u"2"_s, u"1"_s, u"-1"_s, u"-1"_s, false},
        {"two real", u'.', u"1"_s, u"-3"_s, u"2"_s, u"2"_s, u"1"_s, false},
        {"complex", u'.', u"1"_s, u"2"_s, u"5"_s, u"-1 + 2i"_s, u"-1 + -2i"_s, true},
        {"negative a", u'.', u"-1"_s, u"0"_s, u"-4"_s, u"0 + -2i"_s, u"0 + 2i"_s, true},
        {"general form", u'.', u"1"_s, u"-1e20"_s, u"0"_s, u"1E+20"_s, u"0"_s, false},
        // in double precision d would be +3E-09 and the roots real
        {"c is a single", u'.', u"1"_s, u"0.6324555344"_s, u"0.1"_s, u"-0.32 + 0i"_s,
         u"-0.32 + 0i"_s, true},
        {"comma region", u',', u"2"_s, u"-1"_s, u"0"_s, u"0,5"_s, u"0"_s, false},
        {"comma region, d below -1", u',', u"1"_s, u"1"_s, u"1"_s, u"-0,5 + 0,87i"_s,
         u"-0,5 + -0,87i"_s, true},
    };
    for (const auto &row : rows) {
        ScopedDecimalMark mark(row.mark);
        const RaicesSegundoGrado r = resolverSegundoGrado(row.a, row.b, row.c);
        EXPECT_EQ(r.x1, row.x1) << row.name;
        EXPECT_EQ(r.x2, row.x2) << row.name;
        EXPECT_EQ(r.imaginarias, row.imaginarias) << row.name;
    }
    EXPECT_TRUE(coeficienteANulo(u""_s));
    EXPECT_TRUE(coeficienteANulo(u"0.0abc"_s));
    EXPECT_FALSE(coeficienteANulo(u"1e-300"_s));
}

TEST(SegundoGrado, FaultsAreTheRuntimesErrors)
{
    ScopedDecimalMark comma(u',');
    // d = -0,2000000477: read back as 0, it goes on to the square root
    EXPECT_EQ(errorNumber([] { resolverSegundoGrado(u"1"_s, u"1"_s, u"0.3"_s); }), 5);
    EXPECT_EQ(errorNumber([] { resolverSegundoGrado(u"1"_s, u"1e200"_s, u"0"_s); }), 6);
    EXPECT_EQ(errorNumber([] { resolverSegundoGrado(u"1"_s, u"0"_s, u"1e39"_s); }), 6)
        << "c does not fit a single";
}

TEST(Sucesiones, TermAndSumAsTheButtonsComputeThem)
{
    EXPECT_EQ(terminoAn(u"1"_s, u"10"_s, u"1"_s), u"10"_s);
    EXPECT_EQ(terminoAn(u"2.5"_s, u"3"_s, u"-0.5"_s), u"1.5"_s);
    for (const auto &[a1, n, d] :
         {std::array{u"0"_s, u"10"_s, u"1"_s}, std::array{u"1"_s, u""_s, u"1"_s},
          std::array{u"1"_s, u"10"_s, u"abc"_s}})
        EXPECT_EQ(terminoAn(a1, n, d), std::nullopt) << a1.toStdString() << n.toStdString();

    const struct {
        const char *name;
        QString a1, n, d, an;
        bool sinDatos;
        QString nuevoAn, sn, nuevoD;
    } rows[] = {
        {"with d", u"1"_s, u"10"_s, u"1"_s, u""_s, false, u"10"_s, u"55"_s, u""_s},
        {"first term 0", u"0"_s, u"4"_s, u"2"_s, u"99"_s, false, u"6"_s, u"12"_s, u""_s},
        {"no d and no An", u"1"_s, u"10"_s, u"0"_s, u"0"_s, true, u""_s, u""_s, u""_s},
        {"d from An", u"1"_s, u"10"_s, u""_s, u"10"_s, false, u""_s, u"55"_s, u"1"_s},
        {"unrounded d", u"1"_s, u"4"_s, u"0"_s, u"2"_s, false, u""_s, u"6"_s,
         u"0.333333333333333"_s},
    };
    for (const auto &row : rows) {
        const SumaSucesion s = sumaNTerminos(row.a1, row.n, row.d, row.an);
        EXPECT_EQ(s.sinDatos, row.sinDatos) << row.name;
        EXPECT_EQ(s.an, row.nuevoAn) << row.name;
        EXPECT_EQ(s.sn, row.sn) << row.name;
        EXPECT_EQ(s.d, row.nuevoD) << row.name;
    }
    EXPECT_EQ(errorNumber([] { sumaNTerminos(u"1"_s, u"1"_s, u"0"_s, u"5"_s); }), 11);
    EXPECT_EQ(errorNumber([] { sumaNTerminos(u"5"_s, u"1"_s, u"0"_s, u"5"_s); }), 6);
}

TEST(Diferencial, PowerRuleBothWays)
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
        {"integral, third", u'.', integral, u"1"_s, u"2"_s, u"0.333333333333333"_s, u"3"_s},
        {"NUMERO reads 0", u'.', integral, kPalabraNumero, u"1"_s, u"0"_s, u"2"_s},
        // the exponent shown loses its fraction, the coefficient does not
        {"comma region", u',', integral, u"3"_s, u"0.5"_s, u"2"_s, u"1"_s},
    };
    for (const auto &row : rows) {
        ScopedDecimalMark mark(row.mark);
        const Monomio m = row.regla(row.a, row.n);
        EXPECT_EQ(m.coeficiente, row.coeficiente) << row.name;
        EXPECT_EQ(m.exponente, row.exponente) << row.name;
    }
    EXPECT_EQ(errorNumber([] { integral(u"3"_s, u"-1"_s); }), 11);
    EXPECT_EQ(errorNumber([] { integral(u"0"_s, u"-1"_s); }), 6);
}

TEST(Loga, BaseAndNaturalLogarithms)
{
    const struct {
        QString x, b, enBase, neperiano;
    } rows[] = {
        {u"100"_s, u"10"_s, u"2"_s, u"4.6052"_s},
        {u"1"_s, u"10"_s, u"0"_s, u"0"_s},
        {u"8"_s, u"2"_s, u"3"_s, u"2.0794"_s},
        {u"8"_s, u"1"_s, kLogaInvalido, kLogaInvalido},
        {u"8"_s, u"0.5"_s, kLogaInvalido, kLogaInvalido},
        {u"0"_s, u"10"_s, kLogaInvalido, kLogaInvalido},
        {u"NUMERO"_s, u"10"_s, kLogaInvalido, kLogaInvalido},
    };
    for (const auto &row : rows) {
        const Logaritmos l = logaritmos(row.x, row.b);
        EXPECT_EQ(l.enBase, row.enBase) << row.x.toStdString() << " base " << row.b.toStdString();
        EXPECT_EQ(l.neperiano, row.neperiano) << row.x.toStdString();
    }
}

} // namespace
} // namespace zafro
