#include "error_number.h"
#include "formulas/coordenadas.h"
#include "formulas/polares.h"
#include "shell/language.h"

#include <gtest/gtest.h>

#include <QSet>

#include <cmath>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;

using test::errorNumber;

Coordenadas estado(qint16 ecuacion, float a, float b, float c, float d = 0, float e = 0,
                   const char *densidad = "0.01")
{
    Coordenadas s;
    s.a = a;
    s.b = b;
    s.c = c;
    s.d = d;
    s.e = e;
    s.ecuacion = ecuacion;
    s.densidad = QLatin1String(densidad);
    return s;
}

QList<Punto> puntos(Coordenadas s)
{
    return MuestreoCartesiano(s).todos();
}

QList<Punto> puntos(qint16 ecuacion, float c, float s = 0, float k = 0)
{
    Polaress p{c, s, k, ecuacion};
    return MuestreoPolar(p).todos();
}

double distancia(const Punto &p, double x, double y)
{
    return std::hypot(p.x - x, p.y - y);
}

// ---- the sampling loop ----

TEST(GraphSampling, CountsLikeASinglePrecisionLoopFromMinus100To100)
{
    // Whole steps hit both ends exactly: 201 passes.
    EXPECT_EQ(puntos(estado(Recta, 0, 1, 0, 0, 0, "1")).size(), 201);
    // The default density gives about 20,000 samples, whatever the float drift.
    const qsizetype muchas = puntos(estado(Recta, 0, 1, 0)).size();
    EXPECT_GE(muchas, 19995);
    EXPECT_LE(muchas, 20005);
    // The samples walk in single precision from -100 upwards.
    const QList<Punto> lista = puntos(estado(Recta, 0, 1, 0, 0, 0, "0.5"));
    ASSERT_EQ(lista.size(), 401);
    EXPECT_EQ(lista.first().x, -100.0f);
    EXPECT_EQ(lista.last().x, 100.0f);
    // An equation never chosen draws nothing.
    EXPECT_TRUE(puntos(estado(0, 1, 1, 3)).isEmpty());
    EXPECT_TRUE(puntos(0, 1, 1, 1).isEmpty());
}

TEST(GraphSampling, NegativeZeroAndTooSmallSteps)
{
    EXPECT_TRUE(puntos(estado(Circunferencia, 0, 0, 9, 0, 0, "-0.01")).isEmpty());

    // A step of 0, or one too small to move t at 100, never ends: the loop says so
    // after its first pass instead of spinning.
    for (const char *paso : {"0", "0.000001", "3E-06"}) {
        Coordenadas s = estado(Recta, 1, 1, 0, 0, 0, paso);
        MuestreoCartesiano bucle(s);
        QList<Punto> lista;
        bucle.avanzar(1000, lista);
        EXPECT_TRUE(bucle.sinAvance()) << paso;
        EXPECT_FALSE(bucle.terminado()) << paso;
        EXPECT_EQ(lista.size(), 1) << paso;
        EXPECT_EQ(bucle.contador(), -100.0f) << paso;
    }
    // Just above half a unit in the last place at 100 the loop still moves.
    Coordenadas s = estado(Recta, 1, 1, 0, 0, 0, "0.00001");
    MuestreoCartesiano bucle(s);
    QList<Punto> lista;
    bucle.avanzar(1000, lista);
    EXPECT_FALSE(bucle.sinAvance());
    EXPECT_GT(bucle.contador(), -100.0f);
}

// ---- the nine Cartesian equations ----

TEST(CartesianGraphs, RectaIsBYEqualsAXPlusC)
{
    // a = b = 0: the vertical line at x = -c, with a mended to 1 in the module copy.
    Coordenadas s = estado(Recta, 0, 0, 3);
    const QList<Punto> vertical = MuestreoCartesiano(s).todos();
    ASSERT_FALSE(vertical.isEmpty());
    for (const Punto &p : vertical)
        ASSERT_EQ(p.x, -3.0f);
    EXPECT_EQ(vertical.first().y, -100.0f);
    EXPECT_EQ(s.a, 1.0f);

    // b = 0 with a: the line x = -c/a.
    for (const Punto &p : puntos(estado(Recta, 2, 0, 3, 0, 0, "1")))
        ASSERT_EQ(p.x, -1.5f);

    // Otherwise y = (a*t + c)/b: the box reading "m" is a over b.
    for (const Punto &p : puntos(estado(Recta, 2, 4, 6, 0, 0, "1")))
        ASSERT_FLOAT_EQ(p.y, (2 * p.x + 6) / 4) << p.x;
}

TEST(CartesianGraphs, CircunferenciaHasRadiusSqrtC)
{
    const QList<Punto> circulo = puntos(estado(Circunferencia, 1, 2, 3));
    ASSERT_FALSE(circulo.isEmpty());
    float izquierda = 100, derecha = -100;
    for (const Punto &p : circulo) {
        ASSERT_NEAR(distancia(p, 1, 2), std::sqrt(3.0), 1e-4) << p.x << " " << p.y;
        izquierda = std::min(izquierda, p.x);
        derecha = std::max(derecha, p.x);
    }
    // Not radius 3, as the text's c^2 would have it.
    EXPECT_NEAR(derecha - izquierda, 2 * std::sqrt(3.0), 0.02);

    EXPECT_TRUE(puntos(estado(Circunferencia, 0, 0, -1)).isEmpty());

    // c = 0: only where t meets a exactly, a double dot at the centre.
    const QList<Punto> centro = puntos(estado(Circunferencia, 5, 2, 0, 0, 0, "1"));
    EXPECT_EQ(centro, (QList<Punto>{{5, 2}, {5, 2}}));
}

TEST(CartesianGraphs, ElipseSquaresCAndMendsANegativeE)
{
    // d = e = 1 is a circle of radius c.
    for (const Punto &p : puntos(estado(Elipse, 0, 0, 2, 1, 1)))
        ASSERT_NEAR(distancia(p, 0, 0), 2, 1e-4);

    Coordenadas negativa = estado(Elipse, 1, 1, 3, 2, -4);
    const QList<Punto> conNegativa = MuestreoCartesiano(negativa).todos();
    EXPECT_EQ(negativa.e, 4.0f);
    EXPECT_EQ(conNegativa, puntos(estado(Elipse, 1, 1, 3, 2, 4)));

    // e = 0 reaches the drawing only by Enter: a division by zero.
    EXPECT_EQ(errorNumber([] { puntos(estado(Elipse, 0, 0, 3, 1, 0)); }), 11);
    // 0/0 is the platform's overflow.
    EXPECT_EQ(errorNumber([] { puntos(estado(Elipse, -100, 0, 0, 1, 0)); }), 6);
}

TEST(CartesianGraphs, ParabolasMendBAndHorizontalSubtractsC)
{
    // b*(y-d)^2 = a*t - c: with a = 1, c = 4 the curve starts at t = 4, not -4.
    Coordenadas horizontal = estado(ParabolaHorizontal, 1, 0, 4, 1, 0, "1");
    const QList<Punto> h = MuestreoCartesiano(horizontal).todos();
    EXPECT_EQ(horizontal.b, 1.0f);
    ASSERT_FALSE(h.isEmpty());
    EXPECT_EQ(h.first().x, 4.0f);
    EXPECT_EQ(h.first().y, 1.0f);
    for (const Punto &p : h)
        ASSERT_NEAR((p.y - 1) * (p.y - 1), p.x - 4, 1e-3) << p.x;

    // b = 0 counts as 1.
    Coordenadas vertical = estado(ParabolaVertical, 2, 0, 3, 1);
    const QList<Punto> v = MuestreoCartesiano(vertical).todos();
    EXPECT_EQ(vertical.b, 1.0f);
    EXPECT_EQ(v, puntos(estado(ParabolaVertical, 2, 1, 3, 1)));
    for (const Punto &p : puntos(estado(ParabolaVertical, 2, 4, 3, 1, 0, "1")))
        ASSERT_FLOAT_EQ(p.y, (2 * (p.x - 1) * (p.x - 1) - 3) / 4) << p.x;
}

TEST(CartesianGraphs, Hiperbola)
{
    const QList<Punto> h = puntos(estado(Hiperbola, 2, 3, 0, 0, 0, "0.5"));
    ASSERT_FALSE(h.isEmpty());
    for (const Punto &p : h) {
        ASSERT_GE(std::fabs(p.x), 2.0f);
        ASSERT_NEAR(p.x * p.x / 4.0 - p.y * p.y / 9.0, 1, 1e-3) << p.x;
    }
    // Both branches, mirrored about the x axis.
    EXPECT_EQ(h.size() % 2, 0);
    EXPECT_EQ(h[0].y, -h[1].y);
    EXPECT_EQ(errorNumber([] { puntos(estado(Hiperbola, 0, 1, 0)); }), 11);
}

TEST(CartesianGraphs, TrigonometricFormsInRadians)
{
    struct Caso {
        qint16 ecuacion;
        double (*f)(double);
    };
    for (const Caso &caso :
         {Caso{Seno, std::sin}, Caso{Coseno, std::cos}, Caso{Tangente, std::tan}})
        for (const Punto &p : puntos(estado(caso.ecuacion, 0.5f, 0.25f, -1, 0, 0, "0.1")))
            ASSERT_NEAR(p.y, caso.f(0.5 * p.x) + 0.25 * p.x - 1, 1e-4 * (1 + std::fabs(p.y)))
                << caso.ecuacion << " at " << p.x;
}

TEST(CartesianGraphs, ListTextsFollowTheLanguageAndPolarTextsMatchExactly)
{
    CargarEspanol();
    EXPECT_EQ(ecuacionDeTexto(u"Parábola vertical"_s), ParabolaVertical);
    EXPECT_EQ(ecuacionDeTexto(u"Tangente"_s), Tangente);
    EXPECT_EQ(ecuacionDeTexto(QString()), 0);
    EXPECT_EQ(notaDeEcuacion(Seno), u"(Radianes)"_s);
    EXPECT_EQ(notaDeEcuacion(Hiperbola), QString());
    CargarIngles();
    EXPECT_EQ(ecuacionDeTexto(u"Ellipse"_s), Elipse);
    EXPECT_EQ(ecuacionDeTexto(u"Elipse"_s), 0);
    EXPECT_EQ(textosDeEcuaciones().size(), 9);
    // The polar combo matches exactly.
    EXPECT_EQ(ecuacionPolarDeTexto(u"cos(z)"_s), 3);
    EXPECT_EQ(ecuacionPolarDeTexto(u"cos(z)*sin(z)+sin(z)*sin(z)/cos(z)+c"_s), 10);
    EXPECT_EQ(ecuacionPolarDeTexto(u"Z/C"_s), 0);
    EXPECT_EQ(ecuacionPolarDeTexto(u"cos(z) "_s), 0);
}

// ---- the ten polar curves ----

TEST(PolarGraphs, SpiralTakesAConstantOf0As1)
{
    Polaress cero{0, 0, 0, 1};
    const QList<Punto> conCero = MuestreoPolar(cero).todos();
    EXPECT_EQ(cero.c, 1.0f);
    EXPECT_EQ(conCero, puntos(1, 1));
    // r = z/10 runs out to 20 at z = 200, some 32 turns.
    ASSERT_GE(conCero.size(), 19995);
    EXPECT_NEAR(distancia(conCero.last(), 0, 0), 20, 0.01);
    EXPECT_NEAR(distancia(conCero[100], 0, 0), 0.1, 1e-4);
}

TEST(PolarGraphs, CurvesThatDegradeWithoutCoefficients)
{
    // c*sin+c*cos with c = 0: every dot at the origin.
    const QList<Punto> origen = puntos(8, 0);
    ASSERT_FALSE(origen.isEmpty());
    QSet<QPair<float, float>> distintos;
    for (const Punto &p : origen)
        distintos.insert({p.x, p.y});
    EXPECT_EQ(distintos.size(), 1);
    EXPECT_EQ(origen.first(), (Punto{0, 0}));

    // cos(z) with c = 0, k = 1: the circle through the origin, centred at (0.5, 0).
    for (const Punto &p : puntos(3, 0, 0, 1))
        ASSERT_NEAR(distancia(p, 0.5, 0), 0.5, 1e-5);

    // With s = k = 0 the list's curves are circles of radius c and the like.
    for (const Punto &p : puntos(4, 2))
        ASSERT_NEAR(distancia(p, 0, 0), 3, 1e-5);
}

TEST(PolarGraphs, Number7KeepsTheCosineInsideTheSine)
{
    const QList<Punto> lista = puntos(7, 0, 1, 1);
    // z = 0 is skipped (sin(s*z) = 0); the dot for z = 1 is the 100th.
    ASSERT_GT(lista.size(), 100);
    float z = 0;
    for (int i = 0; i < 100; ++i)
        z += 0.01f;
    const double esperado = std::fabs(1 / std::sin(double(z) * std::cos(double(z))));
    EXPECT_NEAR(distancia(lista[99], 0, 0), esperado, 1e-5);
    EXPECT_GT(std::fabs(esperado - 1 / (std::sin(1.0) * std::cos(1.0))), 0.2);
}

TEST(PolarGraphs, Numbers9And10AreMirroredAboutTheDiagonal)
{
    // With k = 0, No. 9 has the radius of No. 4: c + sin(s*z) + 1.
    const QList<Punto> cuatro = puntos(4, 0.5f, 1, 0);
    const QList<Punto> nueve = puntos(9, 0.5f, 1, 0);
    ASSERT_EQ(cuatro.size(), nueve.size());
    for (qsizetype i = 0; i < cuatro.size(); ++i) {
        ASSERT_EQ(nueve[i].x, cuatro[i].y) << i;
        ASSERT_EQ(nueve[i].y, cuatro[i].x) << i;
    }
    // No. 10 with s = 0 is a circle of radius 1 + c either way; with s it turns over.
    const QList<Punto> diez = puntos(10, 0, 1, 0);
    ASSERT_GT(diez.size(), 200);
    const double z = std::atan2(diez[200].x, diez[200].y); // about 2: sin and cos swapped
    EXPECT_NEAR(z, 2.0, 0.05);
}

} // namespace
} // namespace zafro
