#include "plates/provincias.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <algorithm>

namespace zafro {
namespace {

using namespace provincias;

// First and last entry of every province's list, as published, in list order.
const char kBordes1971[] =
    "10638 238538 10739 208538 13753 1341794 10974 353434 10279 98209 11227 310032 "
    "13771 1145745 30003 5354819 10806 249509 000292 096074 12093 666701 "
    "000266 075873 10166 81131 10166 245805 000333 153198 12267 831397 10332 117433 "
    "12489 668826 11244 481874 10299 100333 12140 596261 10834 264575 10635 171532 "
    "10855 314209 11099 348797 11387 344069 10581 201001 10629 226360 25948 5986814 "
    "12750 1028932 10130 61931 12008 839921 11478 527541 10751 218069 12938 830610 "
    "10439 120849 12844 850788 12065 671026 10883 208295 12671 761308 11399 416756 "
    "10320 104434 13566 1177129 10242 73367 11652 551425 10314 187164 10881 316753 "
    "16010 2021257 11111 368654 13212 929894 10458 121665 11692 665428";
const char kBordes1900[] =
    "00043 35164 00043 43643 12093 666701 000065 041832 000048 015151 000092 054650 "
    "000232 167861 001879 918387 000033 043013 000066 034632 000142 095202 "
    "000032 066651 000000 011982 000023 038983 000084 087012 000292 096074 "
    "000009 019728 000155 105499 000129 067971 000023 019309 000825 111639 "
    "000030 034945 000063 038679 000071 054929 000050 059044 000083 070917 "
    "000063 032129 000075 032011 002405 960985 000151 105445 000000 011851 "
    "000130 126138 000162 081717 000059 032017 000333 153198 000034 025104 "
    "000210 077339 000202 083741 000077 043962 000210 075227 000266 075873 "
    "000014 018772 000392 190268 000012 013645 000059 080798 000016 015685 "
    "000042 041489 000355 298176 000126 061288 000560 171342 000020 021812 "
    "000143 107938";
const char kMadrid1971[] =
    "25948 124554 238184 376779 510812 665586 821386 958483 1105657 1238210 1365349 1479549 "
    "1614882 1728086 1874776 2039956 2262882 2515977 2806978 3079453 3338107 3630591 3845694 "
    "4102369 4348628 4621247 4912118 5259093 5669248 5986814";
const char kMadrid1900[] =
    "002405 002829 003682 004534 005387 006240 007093 007945 008798 012120 015442 018452 "
    "021462 025435 030552 036168 040209 042037 043720 046852 051417 056350 057891 059431 "
    "060972 062512 064053 065702 067351 068999 070648 072297 075138 077979 080821 083662 "
    "086503 090199 096794 105987 108702 125027 161294 186857 212768 238785 264045 295395 "
    "329849 368159 418122 497257 556428 632702 711173 798142 885276 960985";

// Entries that run backwards: the named year holds the second figure.
struct Atras {
    const char *lista;
    int ano;
    double antes, despues;
};
const Atras kAtras[] = {
    {"bprovi", 1993, 148783, 145358}, {"bproal", 1979, 61002, 57876},
    {"bproav", 1977, 21409, 20417},   {"bproav", 1979, 47202, 29979},
    {"bproba", 1976, 36164, 23209},   {"bproc", 1974, 40428, 17403},
    {"bpross", 1982, 157912, 140386}, {"bproh", 1995, 183808, 132004},
    {"bprolu", 1976, 49340, 34118},   {"bprona", 1978, 107327, 89920},
    {"bprotf", 1998, 684954, 675333}, {"bprot", 1994, 358292, 326532},
    {"cproma", 1967, 85765, 66610},   {"cprogc", 1954, 8336, 5895},
    {"cpros", 1966, 46913, 46867},    {"cprov", 1951, 23011, 21899},
};

int indiceDelAno(const QString &lista, int ano)
{
    return lista.startsWith(u'b') ? ano - 1971 : ano - 1914;
}

class ProvinciasTest : public ::testing::Test {
protected:
    static QString nombreLista(int provincia, bool antigua)
    {
        return QLatin1String(antigua ? provincias::provincia(provincia).lista1900
                                     : provincias::provincia(provincia).lista1971);
    }
};

TEST_F(ProvinciasTest, LettersCountInBaseTwentyFourAboveTheDigits)
{
    const struct {
        const char *nombre;
        double digitos;
        const char *letras;
        double esperado; // -1: a letter outside the series
    } filas[] = {
        {"first A", 0, "A", 10000},
        {"last Z", 9999, "Z", 249999},
        {"first AA", 0, "AA", 250000},
        {"last ZZ", 9999, "ZZ", 6009999},
        {"S after P", 0, "S", 170000},
        {"lower case", 500, "a", 10500},
        {"M 6814 ZX", 6814, "ZX", 5986814},
        {"no Q", 0, "Q", -1},
        {"no R", 0, "BR", -1},
        {"no enye", 0, "Ñ", -1},
        {"no digit", 0, "1", -1},
    };
    for (const auto &f : filas) {
        const QString letras = QString::fromUtf8(f.letras);
        const int l1 = valorLetra(letras.at(0));
        const int l2 = letras.size() > 1 ? valorLetra(letras.at(1)) : 0;
        const double numero = (l1 < 0 || l2 < 0)  ? -1
                              : letras.size() > 1 ? numeroCoche(f.digitos, l1, l2)
                                                  : numeroCoche(f.digitos, l1);
        EXPECT_EQ(numero, f.esperado) << f.nombre;
    }
}

TEST_F(ProvinciasTest, SearchFindsTheFirstYearReachingTheOrdinalAndEstimatesTheMonth)
{
    const struct {
        const char *nombre;
        const char *lista;
        double numero;
        double factor;
        Hallazgo::Tipo tipo;
        int ano; // index into the list
        int mes;
    } filas[] = {
        {"Alava 0500 A", "bprovi", 10500, 11, Hallazgo::Encontrado, 0, 11},
        {"1971 keeps months before October", "bprom", 10000, 11, Hallazgo::Encontrado, 0, 4},
        {"a year's total is its December", "bprom", 665586, 11, Hallazgo::Encontrado, 5, 11},
        {"one above is the next January", "bprom", 665587, 11, Hallazgo::Encontrado, 6, 0},
        {"2000 ends in September", "bprom", 5986814, 7.5, Hallazgo::Encontrado, 29, 8},
        {"backward pair: the higher year", "bprovi", 148783, 11, Hallazgo::Encontrado, 21, 11},
        {"backward pair: skips the lower", "bprovi", 148784, 11, Hallazgo::Encontrado, 23, 3},
        {"before 1914", "cprom", 2000, 11, Hallazgo::Encontrado, 0, 9},
        {"between before 1914 and 1915", "cprom", 2406, 11, Hallazgo::Encontrado, 1, 0},
        {"number 0", "cprom", 0, 11, Hallazgo::Encontrado, 0, 0},
        {"one above the last", "bprom", 5986815, 11, Hallazgo::NoExiste, kUltimoPaso, 0},
        {"old format above the last", "cprom", 960986, 11, Hallazgo::NoExiste, kUltimoPaso, 0},
    };
    for (const auto &f : filas) {
        const QStringList l = lista(QLatin1String(f.lista));
        QString indice = QStringLiteral("-1");
        int pasos = 0;
        const Hallazgo h = buscarAno(l, f.numero, indice, [&] { return ++pasos > 0; });
        EXPECT_EQ(h.tipo, f.tipo) << f.nombre;
        EXPECT_EQ(h.ano, f.ano) << f.nombre;
        EXPECT_EQ(pasos, f.ano + 1) << f.nombre; // one step per year tried, from the first
        EXPECT_EQ(indice, QStringLiteral("-1")) << f.nombre;
        if (h.tipo == Hallazgo::Encontrado) {
            EXPECT_EQ(h.p, entrada(l, f.ano - 1)) << f.nombre;
            EXPECT_EQ(mesEstimado(f.numero, h.p, h.c, f.factor), f.mes) << f.nombre;
        }
    }
    // A step that says stop leaves the counter where it was.
    QString indice = QStringLiteral("-1");
    EXPECT_EQ(buscarAno(lista(QStringLiteral("bprom")), 1, indice, [] { return false; }).tipo,
              Hallazgo::Parada);
    EXPECT_EQ(indice, QStringLiteral("-1"));
}

TEST_F(ProvinciasTest, YearListsHoldThePublishedFiguresAndGrowBetweenThem)
{
    for (const bool antigua : {false, true}) {
        const QStringList bordes =
            QString::fromLatin1(antigua ? kBordes1900 : kBordes1971).split(u' ');
        ASSERT_EQ(bordes.size(), 2 * kProvincias);
        for (int p = 0; p < kProvincias; ++p) {
            const QString nombre = nombreLista(p, antigua);
            const QStringList l = lista(nombre);
            ASSERT_EQ(l.size(), antigua ? kAnos1900 : kAnos1971) << qPrintable(nombre);
            EXPECT_EQ(l.first(), bordes[2 * p]) << qPrintable(nombre);
            EXPECT_EQ(l.last(), bordes[2 * p + 1]) << qPrintable(nombre);
            for (int i = 1; i < l.size(); ++i) {
                const bool haciaAtras =
                    std::any_of(std::begin(kAtras), std::end(kAtras), [&](const Atras &a) {
                        return nombre == QLatin1String(a.lista) && i == indiceDelAno(nombre, a.ano);
                    });
                if (!haciaAtras) {
                    EXPECT_GE(entrada(l, i), entrada(l, i - 1)) << qPrintable(nombre) << " " << i;
                }
            }
        }
    }
    EXPECT_EQ(lista(QStringLiteral("bprom")).join(u' '), QLatin1String(kMadrid1971));
    EXPECT_EQ(lista(QStringLiteral("cprom")).join(u' '), QLatin1String(kMadrid1900));
    for (const Atras &a : kAtras) {
        const QString nombre = QLatin1String(a.lista);
        const int i = indiceDelAno(nombre, a.ano);
        EXPECT_EQ(entrada(lista(nombre), i - 1), a.antes) << a.lista << " " << a.ano;
        EXPECT_EQ(entrada(lista(nombre), i), a.despues) << a.lista << " " << a.ano;
    }
}

TEST_F(ProvinciasTest, OldListsKeepThe1931TotalsAndBarcelonasLead)
{
    const struct {
        const char *lista;
        double total;
    } totales1931[] = {{"cprob", 48356}, {"cprose", 14729}, {"cprov", 12457}, {"cprogi", 4684},
                       {"cprot", 4201},  {"cprol", 3693},   {"cprote", 945},  {"cproso", 877},
                       {"cproav", 800},  {"cprom", 42037}};
    for (const auto &t : totales1931)
        EXPECT_EQ(entrada(lista(QLatin1String(t.lista)), 1931 - 1914), t.total) << t.lista;

    const QStringList barcelona = lista(QStringLiteral("cprob"));
    for (int ano = 1920; ano <= 1947; ++ano) {
        const int i = ano - 1914;
        for (int p = 0; p < kProvincias; ++p) {
            if (QLatin1String(provincia(p).codigo) != QLatin1String("B")) {
                EXPECT_GT(entrada(barcelona, i), entrada(lista(nombreLista(p, true)), i))
                    << ano << " " << provincia(p).codigo;
            }
        }
    }
}

} // namespace
} // namespace zafro
