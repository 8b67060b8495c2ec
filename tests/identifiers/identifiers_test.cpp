#include "error_number.h"
#include "identifiers/isbn.h"
#include "identifiers/nif.h"
#include "identifiers/visas.h"
#include "runtime/classic_random.h"

#include <gtest/gtest.h>

#include <map>

namespace zafro {
namespace {

TEST(Nif, ANumberBeyond32BitsIsTheOverflowError)
{
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

    EXPECT_EQ(digitoDeTipo(QString()), QStringLiteral("4"));
}

} // namespace
} // namespace zafro
