#include "error_number.h"
#include "fakes.h"
#include "identifiers/isbn.h"
#include "identifiers/moviles.h"
#include "identifiers/nif.h"
#include "identifiers/visas.h"
#include "runtime/classic_random.h"
#include "runtime/region.h"

#include <gtest/gtest.h>

#include <map>

namespace zafro {
namespace {

using test::fakes;

TEST(Nif, TheLetterComesFromTheRemainderAndTheNumberAsRead)
{
    ScopedDecimalMark point(u'.');
    const struct {
        const char *name;
        double numero;
        const char *letra, *nif;
    } rows[] = {{"remainder 10", 87654321, "X", "87654321X"},
                {"remainder 0", 23, "T", "23T"},
                {"zero", 0, "T", "0T"},
                {"remainder 22", 22, "E", "22E"},
                {"negative has none", -5, "", ""},
                {"fraction rounds half to even", 2.5, "W", "2.5W"},
                {"fraction rounds up", 1.6, "W", "1.6W"}};
    for (const auto &row : rows) {
        const ResultadoNif r = calcularNif(row.numero);
        EXPECT_EQ(r.letra, QLatin1String(row.letra)) << row.name;
        EXPECT_EQ(r.nif, QLatin1String(row.nif)) << row.name;
    }
    EXPECT_EQ(test::errorNumber([] { calcularNif(1e10); }), 6);
}

TEST(Isbn, DigitsAreReadByPositionAndWeighted)
{
    const struct {
        const char *name, *t1, *t2, *t3, *digitos, *control;
    } rows[] = {{"sum 219", "84", "376", "0494", "843760494", "X"},
                {"all empty", "", "", "", "_________", "0"},
                {"one character counts twice", "7", "", "", "77_______", "X"},
                {"short field leaves the middle", "", "5", "12", "__5_512_2", "1"},
                {"no digit reads 0", "a1", "", "", "a1_______", "2"}};
    for (const auto &row : rows) {
        DigitosIsbn d;
        d.leerCampo(1, QLatin1String(row.t1));
        d.leerCampo(2, QLatin1String(row.t2));
        d.leerCampo(3, QLatin1String(row.t3));
        QString digitos;
        for (int n = 1; n <= 9; ++n)
            digitos += d.digito(n).isEmpty() ? QStringLiteral("_") : d.digito(n);
        EXPECT_EQ(digitos, QLatin1String(row.digitos)) << row.name;
        EXPECT_EQ(d.caracterControl(), QLatin1String(row.control)) << row.name;
    }
}

TEST(Visas, GeneratedDigitsFavourTwoAndShunZero)
{
    ClassicRandom random;
    random.randomize(3);
    std::map<int, int> veces;
    for (int tarjeta = 0; tarjeta < 910; ++tarjeta) { // 10,010 draws
        const DigitosTarjeta d = generarTarjeta(random, 0, QStringLiteral("000"));
        for (int i = 4; i < 15; ++i)
            ++veces[d[i]];
    }
    EXPECT_EQ(veces.count(10), 0u);
    EXPECT_NEAR(veces[2], 1500, 200);
    EXPECT_NEAR(veces[0], 500, 120);
    for (int d : {1, 3, 4, 5, 6, 7, 8, 9})
        EXPECT_NEAR(veces[d], 1000, 180) << d;

    fakes().random.values.append({0.96f, 0.96f, 0.96f});
    EXPECT_EQ(bancoAlAzar(fakes().random), QStringLiteral("220"));
    EXPECT_EQ(digitoDeTipo(QStringLiteral("6 - Discover!")), QStringLiteral("6"));
    EXPECT_EQ(digitoDeTipo(QString()), QStringLiteral("4"));
}

TEST(Moviles, TheFirstGroupHoldingThePrefixWins)
{
    const struct {
        const char *prefijo, *nombre;
        quint32 color;
    } rows[] = {{"6", "", 0},
                {"62", "", 0},
                {"611", "", 0},
                {"601", "Dolphin Telecom", 0xFFFF00},
                {"647", "MoviStar", 0xFF0000},
                {"650", "MoviStar", 0xFF0000},
                {"689", "MoviStar", 0xFF0000},
                {"6e2", "Vodafone", 255},
                {"665", "Amena", 65280},
                {"622", "Xfera", 0x80FFFF}};
    for (const auto &row : rows) {
        const std::optional<Operadora> o = operadoraDePrefijo(QLatin1String(row.prefijo));
        EXPECT_EQ(o ? o->nombre : QString(), QLatin1String(row.nombre)) << row.prefijo;
        EXPECT_EQ(o ? o->color : 0, row.color) << row.prefijo;
    }
}

} // namespace
} // namespace zafro
