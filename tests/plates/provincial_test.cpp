#include "plates/provincias.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSet>

namespace zafro {
namespace {

using namespace provincias;

class ProvinciasTest : public ::testing::Test {
protected:
    static int anoEn(const QString &l, int ano)
    {
        return l.startsWith(u'b') ? ano - 1971 : ano - 1914;
    }
};

TEST_F(ProvinciasTest, LettersCountInBaseTwentyFourAboveTheDigits)
{
    EXPECT_EQ(numeroCoche(0, valorLetra(u'A')), 10000);
    EXPECT_EQ(numeroCoche(9999, valorLetra(u'Z')), 249999);
    EXPECT_EQ(numeroCoche(0, valorLetra(u'A'), valorLetra(u'a')), 250000);
    EXPECT_EQ(numeroCoche(9999, valorLetra(u'z'), valorLetra(u'Z')), 6009999);
    EXPECT_EQ(valorLetra(u'S'), 16);
    for (const QChar c : QStringLiteral("QRÑ1 "))
        EXPECT_EQ(valorLetra(c), -1) << qPrintable(QString(c));
}

TEST_F(ProvinciasTest, SearchTakesTheFirstYearReachingTheOrdinalOneStepPerYear)
{
    const struct {
        const char *nombre, *lista;
        double numero;
        Hallazgo::Tipo tipo;
        int ano, mes; // the year as an index into the list
    } filas[] = {
        {"a year's total is its December", "bprom", 665586, Hallazgo::Encontrado, 5, 11},
        {"one above is the next January", "bprom", 665587, Hallazgo::Encontrado, 6, 0},
        {"backward pair: the higher year", "bprovi", 148783, Hallazgo::Encontrado, 21, 11},
        {"backward pair: never the lower", "bprovi", 148784, Hallazgo::Encontrado, 23, 3},
        {"one above the last", "bprom", 5986815, Hallazgo::NoExiste, kUltimoPaso, 0},
        {"old format above the last", "cprom", 960986, Hallazgo::NoExiste, kUltimoPaso, 0},
    };
    for (const auto &f : filas) {
        const QStringList l = lista(QLatin1String(f.lista));
        QString indice = QStringLiteral("-1");
        int pasos = 0;
        const Hallazgo h = buscarAno(l, f.numero, indice, [&] { return ++pasos > 0; });
        EXPECT_EQ(h.tipo, f.tipo) << f.nombre;
        EXPECT_EQ(h.ano, f.ano) << f.nombre;
        EXPECT_EQ(pasos, f.ano + 1) << f.nombre;
        EXPECT_EQ(indice, QStringLiteral("-1")) << f.nombre;
        if (h.tipo == Hallazgo::Encontrado) {
            EXPECT_EQ(h.p, entrada(l, f.ano - 1)) << f.nombre;
            EXPECT_EQ(mesEstimado(f.numero, h.p, h.c, 11), f.mes) << f.nombre;
        }
    }
    EXPECT_EQ(mesEstimado(5986814, 5669248, 5986814, 7.5), 8) << "2000 ends in September";
}

// Each published figure is in its list, every list grows but where a figure runs
// backwards, and the leader stays above every other province.
TEST_F(ProvinciasTest, YearListsHoldThePublishedFiguresAndGrowBetweenThem)
{
    QFile file(QStringLiteral(ZAFRO_PLATES_TEST_DATA "/provincial_published.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QSet<QString> atras; // list and index of each entry that runs backwards
    int comprobadas = 0;
    for (const QString &linea : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QStringList f = linea.split(u' ', Qt::SkipEmptyParts);
        if (f.size() < 3 || f[0].startsWith(u'#'))
            continue;
        const QStringList l = lista(f[1]);
        const std::string donde = linea.toStdString();
        ++comprobadas;
        if (f[0] == QLatin1String("bounds")) {
            EXPECT_EQ(l.size(), f[1].startsWith(u'b') ? kAnos1971 : kAnos1900) << donde;
            EXPECT_EQ(l.value(0), f[2]) << donde;
            EXPECT_EQ(l.value(l.size() - 1), f[3]) << donde;
            for (int i = 1; i < l.size(); ++i)
                EXPECT_TRUE(entrada(l, i) >= entrada(l, i - 1) ||
                            atras.contains(f[1] + u' ' + QString::number(i)))
                    << donde << " " << i;
        } else if (f[0] == QLatin1String("row")) {
            EXPECT_EQ(l, f.mid(2)) << donde;
        } else if (f[0] == QLatin1String("backward")) {
            const int i = anoEn(f[1], f[2].toInt());
            EXPECT_EQ(entrada(l, i - 1), f[3].toDouble()) << donde;
            EXPECT_EQ(entrada(l, i), f[4].toDouble()) << donde;
            atras.insert(f[1] + u' ' + QString::number(i));
        } else if (f[0] == QLatin1String("total1931")) {
            EXPECT_EQ(entrada(l, 1931 - 1914), f[2].toDouble()) << donde;
        } else {
            for (int i = anoEn(f[1], f[2].toInt()); i <= anoEn(f[1], f[3].toInt()); ++i)
                for (int p = 0; p < kProvincias; ++p)
                    EXPECT_TRUE(provincia(p).lista1900 == f[1] ||
                                entrada(l, i) >
                                    entrada(lista(QLatin1String(provincia(p).lista1900)), i))
                        << donde << " " << i << " " << provincia(p).codigo;
        }
    }
    EXPECT_EQ(comprobadas, 2 * kProvincias + 2 + 16 + 10 + 1);
}

} // namespace
} // namespace zafro
