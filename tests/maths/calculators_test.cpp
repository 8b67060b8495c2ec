#include "error_number.h"
#include "maths/bisiesto.h"
#include "maths/calculadora.h"
#include "maths/radian.h"
#include "maths/temperatura.h"
#include "maths/trigo.h"
#include "runtime/numtext.h"
#include "runtime/region.h"
#include "runtime/runtime_error.h"

#include <gtest/gtest.h>

#include <functional>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;

// --- calculadora ---------------------------------------------------------------------

TEST(CalculadoraOperar, GivesTheFiveOperationsAndCatchesOnlyTheTwoCasesItTells)
{
    using Estado = ResultadoOperacion::Estado;
    // clang-format off
    const struct {
        Operacion op;
        double a, b;
        Estado estado;
        double valor;
    } rows[] = {
        {Operacion::Suma, 2, 3, Estado::Hecho, 5}, {Operacion::Resta, 2, 3, Estado::Hecho, -1},
        {Operacion::Producto, 2.5, 4, Estado::Hecho, 10},
        {Operacion::Division, 7, 2, Estado::Hecho, 3.5},
        {Operacion::Potencia, 2, 10, Estado::Hecho, 1024},
        {Operacion::Potencia, 5, 0, Estado::Hecho, 1},
        {Operacion::Division, 5, 0, Estado::DivisionPorCero, 0},
        {Operacion::Division, 0, 0, Estado::DivisionPorCero, 0},
        {Operacion::Potencia, 0, 0, Estado::Indeterminacion, 0},
    };
    // clang-format on
    for (const auto &row : rows) {
        const ResultadoOperacion r = operar(row.op, row.a, row.b);
        const std::string what =
            std::to_string(row.a) + signoDe(row.op).toStdString() + std::to_string(row.b);
        EXPECT_EQ(r.estado, row.estado) << what;
        if (row.estado == Estado::Hecho) {
            EXPECT_EQ(r.valor, row.valor) << what;
        }
    }
    EXPECT_EQ(test::errorNumber([] { operar(Operacion::Potencia, -8, 1.0 / 3); }), 5);
    EXPECT_EQ(test::errorNumber([] { operar(Operacion::Potencia, 0, -1); }), 5)
        << "only 0^0 is caught";
    EXPECT_EQ(test::errorNumber([] { operar(Operacion::Potencia, 10, 400); }), 6);
    EXPECT_EQ(test::errorNumber([] { operar(Operacion::Suma, 1e308, 1e308); }), 6);
    EXPECT_EQ(test::errorNumber([] { operar(Operacion::Producto, 1e308, 10); }), 6);
    EXPECT_EQ(test::errorNumber([] { operar(Operacion::Division, 1e308, 1e-10); }), 6);
}

TEST(CalculadoraBases, HexadecimalRoundsToThirtyTwoBitsAndComplementsNegatives)
{
    // clang-format off
    const struct {
        double valor;
        const char *hexa;
    } rows[] = {
        {0, "0"}, {255, "FF"}, {1024, "400"}, {2.5, "2"}, {3.5, "4"}, {-0.4, "0"}, {-1, "FFFFFFFF"},
        {2147483647, "7FFFFFFF"}, {-2147483648.0, "80000000"},
    };
    // clang-format on
    for (const auto &row : rows)
        EXPECT_EQ(textoHexadecimal(row.valor), QLatin1String(row.hexa)) << row.valor;
    EXPECT_EQ(test::errorNumber([] { textoHexadecimal(2147483648.0); }), 6);
    EXPECT_EQ(test::errorNumber([] { textoHexadecimal(-2147483649.0); }), 6);
}

TEST(CalculadoraBases, ConvertFromTheBaseTheWindowBelievesTheResultIsIn)
{
    const QString hexa = kBaseHexadecimal, dec = kBaseDecimal, bin = kBaseBinaria;
    using Conversion = QString (*)(const QString &, const QString &);
    const Conversion aHex = &convertirAHexadecimal, aDec = &convertirADecimal,
                     aBin = &convertirABinario;
    const struct {
        Conversion conversion;
        const char *resultado;
        const QString &base;
        const char *esperado;
    } rows[] = {// 2 ^ 10 through the three bases and back
                {aHex, "1024", dec, "400"},
                {aBin, "400", hexa, "10000000000"},
                {aDec, "10000000000", bin, "1024"},
                {aDec, "400", hexa, "1024"},
                {aBin, "1024", dec, "10000000000"},
                {aHex, "10000000000", bin, "400"},
                {aDec, "ff", hexa, "255"},
                {aDec, "FFFFFFFF", hexa, "4294967295"},
                // a decimal result still believed hexadecimal or binary
                {aHex, "12", hexa, "4"},
                {aHex, "1024", bin, "10"},
                {aBin, "12", bin, "10010"},
                {aBin, "1024", hexa, "1000000100100"},
                {aDec, "1024", bin, "16"},
                // the lenient reading makes a word 0; negatives keep their odd forms
                {aHex, "RESULTADO", dec, "0"},
                {aHex, "-1", dec, "FFFFFFFF"},
                {aBin, "-5", dec, "-10-1"},
                {aBin, "0", dec, "0"}};
    for (const auto &row : rows)
        EXPECT_EQ(row.conversion(QLatin1String(row.resultado), row.base),
                  QLatin1String(row.esperado))
            << row.resultado << " in base " << row.base.toStdString();

    EXPECT_EQ(test::errorNumber([&] { convertirABinario(u"RESULTADO"_s, dec); }), 13);
    EXPECT_EQ(test::errorNumber([&] { convertirADecimal(u"FF"_s, bin); }), 13);
    EXPECT_EQ(test::errorNumber([&] { convertirAHexadecimal(u"1E+20"_s, dec); }), 6);
    EXPECT_EQ(test::errorNumber([&] { convertirABinario(u"3000000000"_s, dec); }), 6);
    EXPECT_EQ(test::errorNumber([&] { convertirABinario(u"FFFFFFFF"_s, hexa); }), 6);
}

TEST(CalculadoraBases, TheRegionDecidesHowAFractionalResultIsRead)
{
    const QString dec = kBaseDecimal;
    {
        ScopedDecimalMark point(u'.');
        EXPECT_EQ(convertirAHexadecimal(u"3.5"_s, dec), u"4"_s);
        EXPECT_EQ(convertirABinario(u"3.5"_s, dec), u"100"_s);
        EXPECT_EQ(convertirABinario(u"2.5"_s, dec), u"10"_s);
    }
    // The box shows "3,5" here: the lenient reading stops at the comma, while the
    // strict one takes it for the decimal mark and a point for grouping.
    ScopedDecimalMark comma(u',');
    EXPECT_EQ(convertirAHexadecimal(u"3,5"_s, dec), u"3"_s);
    EXPECT_EQ(convertirABinario(u"3,5"_s, dec), u"100"_s);
    EXPECT_EQ(convertirABinario(u"3.5"_s, dec), u"100011"_s);
}

// --- trigo, radian -------------------------------------------------------------------

TEST(Trigo, RatiosAreRoundedToFourDecimalsWithTheToolsTwoPi)
{
    ScopedDecimalMark point(u'.');
    // clang-format off
    const struct {
        double grados;
        const char *seno, *coseno, *tangente;
    } rows[] = {
        {0, "0", "1", "0"}, {90, "1", "0", "Error"}, {180, "0", "-1", "0"},
        {270, "-1", "0", "Error"}, {360, "0", "1", "0"}, {30, "0.5", "0.866", "0.5774"},
        {135, "0.7071", "-0.7071", "-1"}, {-45, "-0.7071", "0.7071", "-1"},
        {-90, "-1", "0", "-3060023.307"}, {1530, "1", "0", "180001.371"},
    };
    // clang-format on
    for (const auto &row : rows) {
        const RazonesTrigonometricas r = razonesTrigonometricas(row.grados);
        EXPECT_EQ(r.seno, QLatin1String(row.seno)) << row.grados;
        EXPECT_EQ(r.coseno, QLatin1String(row.coseno)) << row.grados;
        EXPECT_EQ(r.tangente, QLatin1String(row.tangente)) << row.grados;
    }
    EXPECT_DOUBLE_EQ(gradosARadianesTrigo(360), 6.283184);
    for (double grados : {90.0, 270.0, 450.0, 630.0, 810.0, 990.0, 1170.0, 1350.0})
        EXPECT_TRUE(tangenteIndefinida(grados)) << grados;
    for (double grados : {-90.0, -270.0, 1530.0, 90.5, 89.99999, 180.0})
        EXPECT_FALSE(tangenteIndefinida(grados)) << grados;
}

TEST(Radian, ConvertsWithTheToolsPiAndRoundsToFourDecimals)
{
    // clang-format off
    const struct {
        double valor, radianes, grados;
    } rows[] = {
        {180, 3.1416, 10313.2403}, {3.1416, 0.0548, 180.0004}, {1, 0.0175, 57.2958},
        {-45, -0.7854, -2578.3101}, {0, 0, 0},
    };
    // clang-format on
    for (const auto &row : rows) {
        EXPECT_DOUBLE_EQ(aRadianes(row.valor), row.radianes) << row.valor;
        EXPECT_DOUBLE_EQ(aGrados(row.valor), row.grados) << row.valor;
    }
    EXPECT_EQ(test::errorNumber([] { aRadianes(1e308); }), 6);
    EXPECT_EQ(test::errorNumber([] { aGrados(1e307); }), 6);
    EXPECT_EQ(test::errorNumber([] { aRadianes(5e307); }), 0);
}

// --- temperatura ---------------------------------------------------------------------

TEST(Temperatura, EachEntryUsesItsOwnFactorsAndIsNotRounded)
{
    ScopedDecimalMark point(u'.');
    // clang-format off
    const struct {
        int entrada;
        double x;
        const char *resultado;
    } rows[] = {
        {0, 100, "212.0118"}, {0, -40, "-40.0022"}, {1, 100, "373.15"}, {2, 212, "99.9882"},
        {2, 32, "-0.00179999999999936"}, {3, 100, "310.8966"}, {4, 100, "-173.15"},
        {5, 100, "-279.685515"},
    };
    // clang-format on
    for (const auto &row : rows)
        EXPECT_EQ(CStr(convertirTemperatura(row.entrada, row.x)), QLatin1String(row.resultado))
            << row.entrada << " with " << row.x;
    // Only the entries into Farenhait multiply 1e308 past the range.
    for (int entrada : {0, 1, 2, 3, 4, 5})
        EXPECT_EQ(test::errorNumber([entrada] { convertirTemperatura(entrada, 1e308); }),
                  entrada == 0 || entrada == 5 ? 6 : 0)
            << entrada;
}

// --- bisiesto ------------------------------------------------------------------------

TEST(Bisiesto, TheGregorianRuleForEveryYearButZero)
{
    // clang-format off
    const struct {
        qint32 ano;
        Bisiesto esperado;
    } rows[] = {
        {1900, Bisiesto::No}, {2000, Bisiesto::Si}, {2004, Bisiesto::Si}, {2003, Bisiesto::No},
        {-4, Bisiesto::Si}, {-100, Bisiesto::No}, {-400, Bisiesto::Si}, {-1, Bisiesto::No},
        {0, Bisiesto::Error}, {2147483647, Bisiesto::No}, {-2147483647 - 1, Bisiesto::Si},
    };
    // clang-format on
    for (const auto &row : rows)
        EXPECT_EQ(esBisiesto(row.ano), row.esperado) << row.ano;
}

TEST(Bisiesto, TheBoxIsReadLenientlyAndHeldInThirtyTwoBits)
{
    const struct {
        const char *texto;
        qint32 ano;
    } rows[] = {
        {"2000", 2000}, {"abc", 0},         {"", 0},         {"2000.5", 2000}, {"2001.5", 2002},
        {"1e3", 1000},  {" 2 0 0 4", 2004}, {"&H7D0", 2000}, {"0.4", 0},       {"2000,5", 2000}};
    for (const auto &row : rows)
        EXPECT_EQ(leerAno(QLatin1String(row.texto)), row.ano) << row.texto;
    EXPECT_EQ(test::errorNumber([] { leerAno(u"2147483648"_s); }), 6);
    EXPECT_EQ(test::errorNumber([] { leerAno(u"-3e9"_s); }), 6);

    EXPECT_TRUE(avisarAnoCero(u"0"_s));
    for (const char *texto : {"abc", "", "0.0", " 0", "00", "-0"})
        EXPECT_FALSE(avisarAnoCero(QLatin1String(texto))) << texto;
}

} // namespace
} // namespace zafro
