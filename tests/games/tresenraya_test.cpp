#include "games/tresenraya.h"

#include <gtest/gtest.h>

#include <tuple>

namespace zafro {
namespace {

TEST(TresEnRayaReglas, ComprobarRayaDrawsEachLineWhateverTheOrderOfTheDigits)
{
    const struct {
        const char *cadena;
        Linea TresEnRaya::*linea; // null: no line
        Linea esperada;
    } rows[] = {
        {"210", &TresEnRaya::lneHorizontal, {120, 2280, 3720, 2280, true}},
        {"534", &TresEnRaya::lneHorizontal, {120, 3600, 3720, 3600, true}},
        {"867", &TresEnRaya::lneHorizontal, {120, 4920, 3720, 4920, true}},
        {"630", &TresEnRaya::lneVertical, {480, 1920, 480, 5280, true}},
        {"471", &TresEnRaya::lneVertical, {1920, 1920, 1920, 5280, true}},
        {"582", &TresEnRaya::lneVertical, {3360, 1920, 3360, 5280, true}},
        {"804", &TresEnRaya::lneDiagonal, {240, 2040, 3600, 5160, true}},
        {"462", &TresEnRaya::lneDiagonal, {3600, 2040, 240, 5160, true}},
        {"01", nullptr, {}},
        {"0124", nullptr, {}},
        {"013", nullptr, {}},
    };
    for (const auto &row : rows) {
        TresEnRaya juego;
        EXPECT_EQ(juego.comprobarRaya(QLatin1String(row.cadena)), row.linea != nullptr)
            << row.cadena;
        for (auto linea :
             {&TresEnRaya::lneHorizontal, &TresEnRaya::lneVertical, &TresEnRaya::lneDiagonal}) {
            const Linea &l = juego.*linea;
            EXPECT_EQ(l.visible, linea == row.linea) << row.cadena;
            if (linea == row.linea) {
                const Linea &e = row.esperada;
                EXPECT_EQ(std::tie(l.x1, l.y1, l.x2, l.y2), std::tie(e.x1, e.y1, e.x2, e.y2))
                    << row.cadena;
            }
        }
    }
}

TEST(TresEnRayaReglas, MovimientoValidoFollowsTheLinesOfTheBoardToEmptySquares)
{
    // Destinations allowed from each origin, as digits.
    const char *const vecinas[9] = {"134", "024", "145", "046", "01235678",
                                    "248", "347", "468", "457"};
    for (int origen = 0; origen < 9; ++origen)
        for (int destino = 0; destino < 9; ++destino)
            EXPECT_EQ(movimientoValido(destino, QString(), QString(), QStringLiteral("j1"), origen),
                      QLatin1String(vecinas[origen]).contains(QChar(u'0' + destino)))
                << origen << " to " << destino;
    EXPECT_FALSE(
        movimientoValido(4, QStringLiteral("0"), QStringLiteral("48"), QStringLiteral("j1"), 0))
        << "occupied destination";
    EXPECT_FALSE(
        movimientoValido(1, QStringLiteral("2"), QStringLiteral("5"), QStringLiteral("j2"), 9))
        << "origin 9";
}

TEST(TresEnRayaReglas, SumarPuntoKeepsTwoDigitsAndStartsAgainPast99)
{
    const struct {
        const char *antes, *despues;
    } rows[] = {{"00", "01"}, {"08", "09"}, {"09", "10"}, {"98", "99"}, {"99", "00"}};
    for (const auto &row : rows)
        EXPECT_EQ(sumarPunto(QLatin1String(row.antes)), QLatin1String(row.despues)) << row.antes;
}

TEST(TresEnRayaReglas, TeclaACasillaLaysTheDigitsOutAsANumericKeypad)
{
    const int esperadas[10] = {-1, 6, 7, 8, 3, 4, 5, 0, 1, 2};
    for (int d = 0; d <= 9; ++d)
        EXPECT_EQ(teclaACasilla('0' + d), esperadas[d]) << d;
    EXPECT_EQ(teclaACasilla('a'), -1);
}

} // namespace
} // namespace zafro
