#include "maths/matrices.h"
#include "runtime/classic_random.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <cmath>
#include <functional>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>

namespace zafro {
namespace {

using Motivo = MatrizError::Motivo;

Matriz hecha(std::initializer_list<std::initializer_list<double>> filas)
{
    const auto f = qint32(filas.size());
    const auto c = f == 0 ? 0 : qint32(filas.begin()->size());
    Matriz m(f, c);
    qint32 i = 0;
    for (const auto &fila : filas) {
        qint32 j = 0;
        for (double x : fila)
            m.ponerElemento(i, j++, x);
        ++i;
    }
    return m;
}

Matriz aleatoria(qint32 filas, qint32 columnas, double seed)
{
    ClassicRandom azar;
    azar.randomize(seed);
    Matriz m(filas, columnas);
    m.rellenarAleatorio(0, 9, azar);
    return m;
}

// The reason of the MatrizError that `f` raises; nothing when it returns.
std::optional<Motivo> motivoDe(const std::function<void()> &f)
{
    try {
        f();
    } catch (const MatrizError &error) {
        return error.motivo();
    }
    return std::nullopt;
}

// Laplace expansion along the first row: slow, but shares no code with Eigen's LU.
double cofactores(const Matriz &m)
{
    const qint32 n = m.filas();
    if (n == 1)
        return m.elemento(0, 0);
    double suma = 0;
    for (qint32 j = 0; j < n; ++j) {
        Matriz menor(n - 1, n - 1);
        for (qint32 i = 1; i < n; ++i)
            for (qint32 k = 0, kk = 0; k < n; ++k)
                if (k != j)
                    menor.ponerElemento(i - 1, kk++, m.elemento(i, k));
        suma += (j % 2 == 0 ? 1 : -1) * m.elemento(0, j) * cofactores(menor);
    }
    return suma;
}

double maxDiferencia(const Matriz &a, const Eigen::MatrixXd &b)
{
    return (a.valores() - b).cwiseAbs().maxCoeff();
}

// --- Elements and order ------------------------------------------------------------

TEST(MatrizElementos, OutsideTheMatrixReadsZeroAndWritesAreDropped)
{
    Matriz m = hecha({{1, 2, 3}, {4, 5, 6}});
    EXPECT_EQ(m.filas(), 2);
    EXPECT_EQ(m.columnas(), 3);
    EXPECT_EQ(m.elemento(1, 2), 6);
    for (auto [f, c] : {std::pair{2, 0}, {0, 3}, {-1, 0}, {0, -1}, {5, 5}, {1000000, 1}})
        EXPECT_EQ(m.elemento(f, c), 0) << f << "," << c;
    const Eigen::MatrixXd antes = m.valores();
    m.ponerElemento(2, 0, 9);
    m.ponerElemento(0, 3, 9);
    m.ponerElemento(-1, -1, 9);
    EXPECT_EQ(m.valores(), antes);
}

TEST(MatrizOrden, KeepsWhatStillFitsAndFillsTheRestWithZero)
{
    Matriz m = hecha({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
    m.ponerOrden(2, 4);
    EXPECT_EQ(m.valores(),
              Eigen::MatrixXd((Eigen::MatrixXd(2, 4) << 1, 2, 3, 0, 4, 5, 6, 0).finished()));
    m.ponerOrden(3, 2);
    EXPECT_EQ(m.valores(), Eigen::MatrixXd((Eigen::MatrixXd(3, 2) << 1, 2, 4, 5, 0, 0).finished()));
    m.ponerOrden(0, 0);
    EXPECT_EQ(m.filas(), 0);
    EXPECT_EQ(m.aTexto(1), QString());

    EXPECT_EQ(motivoDe([&] { m.ponerOrden(-1, 3); }), Motivo::OrdenNoValido);
    EXPECT_EQ(motivoDe([&] { m.ponerOrden(3, Matriz::kOrdenMaximo + 1); }), Motivo::OrdenNoValido);
    EXPECT_EQ(motivoDe([] { Matriz(-2, 2); }), Motivo::OrdenNoValido);
}

TEST(MatrizAleatoria, StaysWithinItsBoundsAndFollowsTheGenerator)
{
    const Matriz m = aleatoria(6, 6, 7);
    EXPECT_GE(m.valores().minCoeff(), 0.0);
    EXPECT_LT(m.valores().maxCoeff(), 9.0);
    EXPECT_GT(m.valores().maxCoeff() - m.valores().minCoeff(), 3.0) << "not spread out";
    EXPECT_EQ(aleatoria(6, 6, 7).valores(), m.valores()) << "same seed, same matrix";
    EXPECT_NE(aleatoria(6, 6, 8).valores(), m.valores());

    ClassicRandom azar;
    Matriz negativa(3, 3);
    negativa.rellenarAleatorio(-5, -2, azar);
    EXPECT_GE(negativa.valores().minCoeff(), -5.0);
    EXPECT_LT(negativa.valores().maxCoeff(), -2.0);
}

// --- The text form -----------------------------------------------------------------

TEST(MatrizTexto, OneLinePerRowWithTheColumnsAlignedRight)
{
    const Matriz m = hecha({{1, -22.25, 3}, {100, 0.05, -4}});
    const struct {
        qint16 decimales;
        QString texto;
    } rows[] = {
        {0, QStringLiteral("  1  -22   3\n100    0  -4")},
        {1, QStringLiteral("  1.0  -22.3   3.0\n100.0    0.1  -4.0")},
        {2, QStringLiteral("  1.00  -22.25   3.00\n100.00    0.05  -4.00")},
    };
    for (const auto &row : rows)
        EXPECT_EQ(m.aTexto(row.decimales), row.texto) << row.decimales;

    // Every line as long as the others, every column ending at one place.
    const QStringList lineas = aleatoria(6, 4, 3).productoEscalar(-37).aTexto(3).split('\n');
    ASSERT_EQ(lineas.size(), 6);
    for (const QString &linea : lineas)
        EXPECT_EQ(linea.size(), lineas[0].size()) << linea.toStdString();

    EXPECT_EQ(hecha({{-0.04, 0}}).aTexto(1), QStringLiteral("0.0  0.0")) << "no -0.0";
    EXPECT_EQ(motivoDe([&] { m.aTexto(-1); }), Motivo::DecimalesNoValidos);
    EXPECT_EQ(motivoDe([&] { m.aTexto(Matriz::kDecimalesMaximos + 1); }),
              Motivo::DecimalesNoValidos);
}

// --- Calculations -------------------------------------------------------------------

TEST(MatrizCalculos, GiveTheExpectedMatrices)
{
    const Matriz a = hecha({{1, 2}, {3, 4}});
    const Matriz b = hecha({{5, -1}, {0, 2}});
    const Matriz f = hecha({{1, 2, 3}, {4, 5, 6}});
    const struct {
        const char *nombre;
        Matriz resultado;
        Matriz esperado;
    } rows[] = {
        {"A+B", a.suma(b), hecha({{6, 1}, {3, 6}})},
        {"A-B", a.diferencia(b), hecha({{-4, 3}, {3, 2}})},
        {"AxB", a.producto(b), hecha({{5, 3}, {15, 5}})},
        {"BxA", b.producto(a), hecha({{2, 6}, {6, 8}})},
        {"A x 2.5", a.productoEscalar(2.5), hecha({{2.5, 5}, {7.5, 10}})},
        {"A x 0", a.productoEscalar(0), hecha({{0, 0}, {0, 0}})},
        {"AxF", a.producto(f), hecha({{9, 12, 15}, {19, 26, 33}})},
        {"F'", f.traspuesta(), hecha({{1, 4}, {2, 5}, {3, 6}})},
        {"inv A", a.inversa(), hecha({{-2, 1}, {1.5, -0.5}})},
        {"normalised", hecha({{3, 0}, {0, 4}}).normalizada(1), hecha({{0.6, 0}, {0, 0.8}})},
        {"normalised to 10", hecha({{0, -2}}).normalizada(10), hecha({{0, -10}})},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(row.resultado.filas(), row.esperado.filas()) << row.nombre;
        EXPECT_EQ(row.resultado.columnas(), row.esperado.columnas()) << row.nombre;
        EXPECT_LT(maxDiferencia(row.resultado, row.esperado.valores()), 1e-12) << row.nombre;
    }
    EXPECT_NEAR(aleatoria(5, 3, 1).normalizada(2.5).valores().norm(), 2.5, 1e-12);
}

TEST(MatrizCalculos, SizesThatDoNotAgreeAreErrorsOfOurOwn)
{
    const Matriz a33 = aleatoria(3, 3, 1);
    const Matriz b55 = aleatoria(5, 5, 2);
    const Matriz c23 = aleatoria(2, 3, 3);
    const Matriz cero(4, 4);
    const double enorme = std::numeric_limits<double>::max();
    const Matriz grande = hecha({{enorme, 1}, {1, enorme}});
    const Matriz alta = hecha({{1e300, 1}, {1, 1e300}}); // its squares overflow, its norm not
    const struct {
        const char *nombre;
        std::function<void()> f;
        std::optional<Motivo> motivo;
    } rows[] = {
        {"3x3 + 5x5", [&] { a33.suma(b55); }, Motivo::TamanosDistintos},
        {"3x3 - 5x5", [&] { a33.diferencia(b55); }, Motivo::TamanosDistintos},
        {"3x3 x 5x5", [&] { a33.producto(b55); }, Motivo::TamanosDistintos},
        {"3x3 x 2x3", [&] { a33.producto(c23); }, Motivo::TamanosDistintos},
        {"2x3 x 3x3", [&] { c23.producto(a33); }, std::nullopt},
        {"2x3 + its transpose", [&] { c23.suma(c23.traspuesta()); }, Motivo::TamanosDistintos},
        {"det 2x3", [&] { c23.determinante(); }, Motivo::NoCuadrada},
        {"inverse 2x3", [&] { c23.inversa(); }, Motivo::NoCuadrada},
        {"inverse 0x0", [] { Matriz().inversa(); }, Motivo::Vacia},
        {"normalise zero", [&] { cero.normalizada(1); }, Motivo::NormaNula},
        {"normalise empty", [] { Matriz(0, 3).normalizada(1); }, Motivo::NormaNula},
        {"overflowing sum", [&] { grande.suma(grande); }, Motivo::NoFinita},
        {"overflowing scalar", [&] { grande.productoEscalar(10); }, Motivo::NoFinita},
        {"norm beyond the doubles", [&] { grande.normalizada(1); }, Motivo::NoFinita},
        {"huge but finite norm", [&] { alta.normalizada(1); }, std::nullopt},
    };
    for (const auto &row : rows)
        EXPECT_EQ(motivoDe(row.f), row.motivo) << row.nombre;
}

TEST(MatrizInversa, SingularIsToldApartFromImpossible)
{
    const struct {
        const char *nombre;
        Matriz m;
        bool singular;
    } rows[] = {
        {"all ones", hecha({{1, 1, 1}, {1, 1, 1}, {1, 1, 1}}), true},
        {"1 to 9", hecha({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}), true},
        {"zero", Matriz(4, 4), true},
        {"decimals binary cannot hold", hecha({{0.1, 0.2}, {0.3, 0.6}}), true},
        {"a row the sum of two others", hecha({{0.7, 1.3, 2.9}, {4.1, 0.3, 1.1}, {4.8, 1.6, 4.0}}),
         true},
        {"identity", hecha({{1, 0}, {0, 1}}), false},
        {"tiny but regular", hecha({{1e-200, 0}, {0, 1e-200}}), false},
    };
    for (const auto &row : rows) {
        bool singular = false;
        try {
            row.m.inversa();
        } catch (const MatrizSingular &) {
            singular = true;
        }
        EXPECT_EQ(singular, row.singular) << row.nombre;
    }
    // The other failures are MatrizError but not MatrizSingular.
    for (const Matriz &m : {aleatoria(2, 3, 1), Matriz()}) {
        EXPECT_THROW(
            try { m.inversa(); } catch (const MatrizSingular &) { FAIL() << "singular"; },
            MatrizError);
    }
}

TEST(MatrizInversa, TimesTheMatrixIsTheIdentityForRandomMatricesOfOrderSix)
{
    for (int seed = 1; seed <= 50; ++seed) {
        const Matriz m = aleatoria(6, 6, seed);
        const Matriz inv = m.inversa();
        const Eigen::MatrixXd id = Eigen::MatrixXd::Identity(6, 6);
        EXPECT_LT(maxDiferencia(inv.producto(m), id), 1e-9) << "seed " << seed;
        EXPECT_LT(maxDiferencia(m.producto(inv), id), 1e-9) << "seed " << seed;
    }
}

TEST(MatrizDeterminante, MatchesTheCofactorExpansion)
{
    for (int n = 1; n <= 6; ++n)
        for (int seed = 1; seed <= 5; ++seed) {
            const Matriz m = aleatoria(n, n, seed * 10 + n).productoEscalar(seed % 2 ? 1 : -0.3);
            const double esperado = cofactores(m);
            EXPECT_NEAR(m.determinante(), esperado, 1e-9 * std::max(1.0, std::abs(esperado)))
                << "order " << n << " seed " << seed;
        }
    EXPECT_EQ(hecha({{1, 2}, {3, 4}}).determinante(), -2);
    EXPECT_EQ(hecha({{1, 1}, {1, 1}}).determinante(), 0);
}

} // namespace
} // namespace zafro
