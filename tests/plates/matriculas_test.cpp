#include "plates/matriculas.h"
#include "plates_data.h"
#include "shell/language.h"
#include "shell/settings.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace zafro {
namespace {

using namespace matriculas;

// --- The plate and its ordinal -----------------------------------------------------

TEST(Consonantes, TwentyLettersNumberedInOrderAndTypingTakesEitherCase)
{
    const QString todas = QStringLiteral("BCDFGHJKLMNPRSTVWXYZ");
    for (int i = 0; i < todas.size(); ++i)
        EXPECT_EQ(valorConsonante(todas.mid(i, 1)), i) << todas.at(i).toLatin1();
    for (const char *mala : {"A", "Q", "b", "", "BB", "1"})
        EXPECT_EQ(valorConsonante(QLatin1String(mala)), -1) << '"' << mala << '"';
    EXPECT_EQ(valorConsonante(QStringLiteral("Ñ")), -1);
    for (const char *buena : {"", "b", "Z"})
        EXPECT_TRUE(letraAdmitida(QLatin1String(buena))) << buena;
    for (const char *mala : {"a", "q", "7"})
        EXPECT_FALSE(letraAdmitida(QLatin1String(mala))) << mala;
    EXPECT_FALSE(letraAdmitida(QStringLiteral("ñ")));
}

TEST(NumeroCoche, LettersCountInBaseTwentyAboveTheDigits)
{
    EXPECT_EQ(numeroCoche(9999, 19, 19, 19), 79999999);
    // 3190 BRJ: R is 12, J is 6.
    EXPECT_EQ(numeroCoche(3190, 0, 12, 6), 12 * 200000 + 6 * 10000 + 3190);
    EXPECT_EQ(numeroCoche(9999, 0, 0, 19) + 1, numeroCoche(0, 0, 1, 0)); // BBZ to BCB
}

TEST(RellenarCifras, ThreeTestsEachOnTheTextThePreviousWrote)
{
    const struct {
        const char *entrada, *salida;
    } rows[] = {{"7", "0007"},   {"", "0000"},     {"abc", "0000"}, {"42", "0042"},
                {"999", "0999"}, {"9876", "9876"}, {"12ab", "0012"}};
    for (const auto &row : rows)
        EXPECT_EQ(rellenarCifras(QLatin1String(row.entrada)), QLatin1String(row.salida))
            << '"' << row.entrada << '"';
}

// --- The month table -----------------------------------------------------------------

TEST(Acumulados, RunningTotalsOfTheStoredMonthsReadLeniently)
{
    EXPECT_EQ(nombreValorMes(4), QStringLiteral("200101"));
    EXPECT_EQ(nombreValorMes(kMeses - 1), QStringLiteral("201012"));
    EXPECT_EQ(cargarAcumulados()[kMeses - 1], 0) << "no data";
    test::escribirMes(0, 10);
    test::escribirMes(2, 5);
    EscribirClave(configPath(QStringLiteral("200101"), QStringLiteral("Matriculas")),
                  QStringLiteral("7 coches"));
    EscribirClave(configPath(QStringLiteral("201012"), QStringLiteral("Matriculas")),
                  QStringLiteral("x"));
    const Acumulados a = cargarAcumulados();
    const double esperados[] = {10, 10, 15, 15, 22};
    for (int k = 0; k < 5; ++k)
        EXPECT_EQ(a[k], esperados[k]) << k;
    EXPECT_EQ(a[123], 22);
}

TEST(MesDelOrdinal, TheFirstMonthWhoseTotalReachesIt)
{
    Acumulados a{};
    a.fill(300);
    a[0] = 100;
    a[1] = 100; // an empty month
    a[2] = 250;
    EXPECT_EQ(mesDelOrdinal(a, 100), 0) << "a total equal to the ordinal is its month";
    EXPECT_EQ(mesDelOrdinal(a, 101), 2) << "an empty month never wins";
    EXPECT_EQ(mesDelOrdinal(a, 251), 3);
    EXPECT_EQ(mesDelOrdinal(a, 301), -1);
    EXPECT_EQ(mesDelOrdinal(Acumulados{}, 0), 0);
    EXPECT_EQ(mesDelOrdinal(Acumulados{}, 1), -1);
}

TEST(MesDelOrdinal, AStoredDataSetAgreesWithThePublicSeries)
{
    test::escribirDatos2002();
    const Acumulados a = cargarAcumulados();
    EXPECT_EQ(a[15], test::kSeptiembre2000 + 15 * test::kMesHasta2001);
    for (int m = 0; m < 12; ++m)
        EXPECT_EQ(a[16 + m], test::kTotales2002[m]) << "month " << m + 1 << " of 2002";
    EXPECT_EQ(mesDelOrdinal(a, numeroCoche(0, 1, 0, 0)), 25); // 0000 CBB: October 2002
}

// --- Texts -----------------------------------------------------------------------------

TEST(FechaDelMes, MonthAndYearInTheLoadedLanguage)
{
    CargarEspanol();
    EXPECT_EQ(fechaDelMes(0), QStringLiteral("Septiembre del 2000"));
    EXPECT_EQ(fechaDelMes(4), QStringLiteral("Enero del 2001"));
    EXPECT_EQ(fechaDelMes(123), QStringLiteral("Diciembre del 2010"));
    CargarIngles();
    EXPECT_EQ(fechaDelMes(0), QStringLiteral("September 2000"));
    EXPECT_EQ(fechaDelMes(14), QStringLiteral("November 2001"));
    CargarValenciano();
    EXPECT_EQ(fechaDelMes(0), QStringLiteral("Setembre del 2000"));
}

TEST(FechaDatos, ReadAsNumbersWithDayAndMonthZeroFilled)
{
    EXPECT_EQ(fechaDatos(false), QStringLiteral("00/00/0"));
    test::escribirFecha("5", "11", "2009");
    EXPECT_EQ(fechaDatos(false), QStringLiteral("05/11/2009"));
    EXPECT_EQ(fechaDatos(true), QStringLiteral("11/05/2009"));
    test::escribirFecha("09", "10", "2010");
    EXPECT_EQ(fechaDatos(false), QStringLiteral("09/10/2010"));
}

TEST(Idioma, TheLoadedTableNamesItsCodeAndUnknownCodesAreSpanish)
{
    const struct {
        int pedido, cargado;
    } rows[] = {{2, 2}, {4, 4}, {0, 1}, {3, 1}};
    for (const auto &row : rows) {
        cargarIdioma(row.pedido);
        EXPECT_EQ(idiomaCargado(), row.cargado) << row.pedido;
    }
}

} // namespace
} // namespace zafro
