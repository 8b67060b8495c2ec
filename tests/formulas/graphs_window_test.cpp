#include "fakes.h"
#include "formulas/coordenadas.h"
#include "formulas/coordenadas2_window.h"
#include "formulas/drawing_surface.h"
#include "formulas/polares.h"
#include "formulas/polares2_window.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skins.h"

#include "window_test.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

// The extent of what was drawn on a surface, in pixels.
struct Trazo {
    int izquierda = -1, derecha = -1, arriba = -1, abajo = -1, puntos = 0;
    int ancho() const { return derecha - izquierda; }
    QPoint centro() const { return {(izquierda + derecha) / 2, (arriba + abajo) / 2}; }
};

Trazo trazo(const DrawingSurface *surface)
{
    const QImage &imagen = surface->image();
    const QRgb fondo = imagen.pixel(imagen.width() - 1, imagen.height() - 1);
    Trazo t{imagen.width(), -1, imagen.height(), -1, 0};
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (imagen.pixel(x, y) != fondo) {
                t.izquierda = std::min(t.izquierda, x);
                t.derecha = std::max(t.derecha, x);
                t.arriba = std::min(t.arriba, y);
                t.abajo = std::max(t.abajo, y);
                ++t.puntos;
            }
    return t;
}

class GraphWindowTest : public test::WindowTest {
protected:
    void SetUp() override
    {
        coordenadas() = Coordenadas{};
        polaress() = Polaress{};
        guardarSkin(1);
        CargarEspanol();
    }

    QLineEdit *box(const char *name) const { return get<QLineEdit>(name); }
    void choose(const QString &entry)
    {
        auto *combo = get<QComboBox>("Combo1");
        const int index = combo->findText(entry);
        ASSERT_GE(index, 0) << entry.toStdString();
        combo->setCurrentIndex(index);
    }
    void enter(const char *name) { QTest::keyClick(box(name), Qt::Key_Return); }

    Coordenadas2Window *grafica() const
    {
        return findForm<Coordenadas2Window>(QStringLiteral("coordenadas2"));
    }
    Polares2Window *polar() const { return findForm<Polares2Window>(QStringLiteral("polares2")); }

    // A circle of radius 3 about the origin, drawn by the input window.
    void dibujarCirculo()
    {
        open("coordenadas1");
        choose(QStringLiteral("Circunferencia"));
        type("a", QStringLiteral("0"));
        type("b", QStringLiteral("0"));
        type("c", QStringLiteral("9"));
        click("Command1");
        ASSERT_NE(grafica(), nullptr);
        grafica()->formActivate();
    }
};

// ---- coordenadas1 ----

TEST_F(GraphWindowTest, InputWindowStartsWithNoEquationAndAGuardedDensity)
{
    open("coordenadas1");
    auto *combo = get<QComboBox>("Combo1");
    EXPECT_EQ(combo->count(), 9);
    EXPECT_EQ(combo->currentIndex(), -1);
    EXPECT_FALSE(combo->isEditable());
    EXPECT_EQ(box("a")->text(), QStringLiteral("1"));
    EXPECT_EQ(box("c")->text(), QStringLiteral("3"));
    EXPECT_EQ(box("den")->text(), QStringLiteral("0.01"));
    for (const char *hidden : {"d", "e", "de", "ee", "Text2", "Command3", "Check2", "Label7"})
        EXPECT_TRUE(get(hidden)->isHidden()) << hidden;
    EXPECT_EQ(get<QLabel>("Label1")->text(), texto(slot::CoordenadasEscoge));
    EXPECT_EQ(get<QCheckBox>("Check1")->text(), QStringLiteral("Protegido"));
    EXPECT_EQ(get<QPushButton>("Command1")->text(), QStringLiteral("Dibujar!"));

    // Protegido locks the density; turning it on again puts 0.01 back.
    auto *protegido = get<QCheckBox>("Check1");
    EXPECT_TRUE(protegido->isChecked());
    EXPECT_TRUE(box("den")->isReadOnly());
    protegido->click();
    EXPECT_FALSE(box("den")->isReadOnly());
    type("den", QStringLiteral("0.5"));
    EXPECT_EQ(box("den")->text(), QStringLiteral("0.5"));
    protegido->click();
    EXPECT_TRUE(box("den")->isReadOnly());
    EXPECT_EQ(box("den")->text(), QStringLiteral("0.01"));

    click("Command2");
    EXPECT_EQ(forms().find(QStringLiteral("coordenadas1")), nullptr);
}

TEST_F(GraphWindowTest, ChoosingAnEquationSetsItsBoxesAndCaptions)
{
    open("coordenadas1");
    choose(QStringLiteral("Elipse"));
    EXPECT_EQ(box("Text1")->text(), QStringLiteral("d*(x-a)^2+e*(y-b)^2=c^2"));
    for (const char *shown : {"d", "e", "de", "ee"})
        EXPECT_FALSE(get(shown)->isHidden()) << shown;
    EXPECT_EQ(get<QLabel>("ee")->text(), QStringLiteral("Ingresa el valor de 'e':"));

    choose(QStringLiteral("Parábola horizontal"));
    EXPECT_FALSE(get("d")->isHidden());
    EXPECT_TRUE(get("e")->isHidden());
    EXPECT_EQ(box("Text1")->text(), QStringLiteral("b*(y-d)^2= ax+c"));

    choose(QStringLiteral("Recta"));
    EXPECT_TRUE(get("d")->isHidden());
    EXPECT_EQ(get<QLabel>("Label2")->text(), texto(slot::IngresaM));
    EXPECT_EQ(get<QLabel>("Label4")->text(), QStringLiteral("Ingresa el valor independiente 'n':"));
    EXPECT_EQ(box("b")->text(), QStringLiteral("1"));

    choose(QStringLiteral("Coseno"));
    EXPECT_EQ(get<QLabel>("Label2")->text(), QStringLiteral("Ingresa el valor de 'a':"));
    EXPECT_EQ(box("b")->text(), QStringLiteral("0"));
    EXPECT_EQ(box("c")->text(), QStringLiteral("0"));
    EXPECT_EQ(box("Text1")->text(), QStringLiteral("cos (ax) + bx + c"));
}

TEST_F(GraphWindowTest, Command1RefusesTheFormsThatCannotBeMended)
{
    open("coordenadas1");
    choose(QStringLiteral("Hipérbola"));
    type("b", QStringLiteral("0"));
    click("Command1");
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].text, QStringLiteral("'a' o 'b' no pueden valer 0!"));
    EXPECT_EQ(fakes().dialogs.messages[0].title, QStringLiteral("Error"));
    EXPECT_EQ(grafica(), nullptr);

    choose(QStringLiteral("Elipse"));
    type("e", QStringLiteral("x"));
    click("Command1");
    ASSERT_EQ(fakes().dialogs.messages.size(), 2);
    EXPECT_EQ(fakes().dialogs.messages[1].text, QStringLiteral("'e' no puede valer 0!"));
    EXPECT_EQ(grafica(), nullptr);

    // b = 0 in the vertical parabola is mended, not refused.
    choose(QStringLiteral("Parábola vertical"));
    type("a", QStringLiteral("2"));
    type("b", QStringLiteral("0"));
    click("Command1");
    EXPECT_EQ(fakes().dialogs.messages.size(), 2);
    ASSERT_NE(grafica(), nullptr);
    EXPECT_EQ(coordenadas().ecuacion, ParabolaVertical);
    EXPECT_EQ(coordenadas().a, 2.0f);
    EXPECT_EQ(coordenadas().b, 0.0f);
    EXPECT_EQ(coordenadas().densidad, QStringLiteral("0.01"));
}

TEST_F(GraphWindowTest, EnterWalksTheBoxesAndDrawsAtTheEnd)
{
    open("coordenadas1");
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    choose(QStringLiteral("Elipse"));
    EXPECT_TRUE(box("a")->hasFocus());
    const char *chain[][2] = {{"a", "b"}, {"b", "c"}, {"c", "d"}, {"d", "e"}};
    for (const auto &step : chain) {
        enter(step[0]);
        EXPECT_TRUE(box(step[1])->hasFocus()) << step[0];
        EXPECT_EQ(grafica(), nullptr);
    }
    type("e", QStringLiteral("2"));
    enter("e");
    EXPECT_NE(grafica(), nullptr);
    EXPECT_EQ(coordenadas().ecuacion, Elipse);
    EXPECT_EQ(coordenadas().e, 2.0f);
    EXPECT_TRUE(box("a")->hasFocus());

    // Without d, Enter in c draws at once.
    forms().unload(QStringLiteral("coordenadas2"));
    choose(QStringLiteral("Seno"));
    enter("c");
    EXPECT_NE(grafica(), nullptr);
    EXPECT_EQ(coordenadas().ecuacion, Seno);
}

// ---- coordenadas2 ----

TEST_F(GraphWindowTest, GraphWindowDrawsWhenActivated)
{
    open("coordenadas1");
    choose(QStringLiteral("Circunferencia"));
    click("Command1");
    Coordenadas2Window *g = grafica();
    ASSERT_NE(g, nullptr);
    EXPECT_EQ(g->windowTitle(), QStringLiteral("He aquí la gráfica"));
    EXPECT_EQ(g->surface()->image().pixel(0, 0), qRgb(255, 255, 192));
    ASSERT_TRUE(QTest::qWaitForWindowActive(g));
    EXPECT_GT(trazo(g->surface()).puntos, 100);
    // The trigonometric forms note their unit.
    EXPECT_EQ(g->findChild<QLabel *>(QStringLiteral("Label23"))->text(), QString());
}

TEST_F(GraphWindowTest, ScaleBoxChangeHalvesTheCurveAndLeavesTheTicks)
{
    dibujarCirculo();
    Coordenadas2Window *g = grafica();
    const auto ticks = [g] {
        QStringList all;
        for (QLabel *label : g->findChildren<QLabel *>())
            if (label->objectName().startsWith(QLatin1String("Marca")))
                all << label->objectName() + QLatin1Char('=') + label->text() + QLatin1Char('@') +
                           QString::number(label->x()) + QLatin1Char(',') +
                           QString::number(label->y());
        return all;
    };
    const QStringList antes = ticks();
    EXPECT_EQ(antes.size(), 19 + 18);
    const Trazo diez = trazo(g->surface());
    const int lado = g->surface()->width();
    // Radius 3 of 10 on each side: 30% of the width.
    EXPECT_NEAR(diez.ancho(), 0.3 * lado, 2);
    EXPECT_NEAR(diez.centro().x(), lado / 2, 1);

    auto *check1 = g->findChild<QCheckBox *>(QStringLiteral("Check1"));
    auto *text1 = g->findChild<QLineEdit *>(QStringLiteral("Text1"));
    auto *text2 = g->findChild<QLineEdit *>(QStringLiteral("Text2"));
    EXPECT_TRUE(text2->isHidden());
    check1->click();
    EXPECT_FALSE(text2->isHidden());
    EXPECT_EQ(text2->toolTip(), QStringLiteral("Escala"));

    text2->setText(QStringLiteral("20"));
    const Trazo veinte = trazo(g->surface());
    EXPECT_NEAR(veinte.ancho(), diez.ancho() / 2.0, 2);
    EXPECT_NEAR(veinte.centro().x(), lado / 2, 1);
    EXPECT_EQ(ticks(), antes);

    // Text1 moves the right end too: X from -20 to 10 puts the centre at two thirds.
    text1->setText(QStringLiteral("10.0"));
    const Trazo lopsided = trazo(g->surface());
    EXPECT_NEAR(lopsided.centro().x(), lado * 2 / 3, 2);
    EXPECT_NEAR(lopsided.ancho(), 0.2 * lado, 2);
}

TEST_F(GraphWindowTest, ActivationDrawsOverWhatIsThereAndKeepsItWhenCovered)
{
    dibujarCirculo();
    Coordenadas2Window *g = grafica();
    const Trazo circulo = trazo(g->surface());

    // A second equation lands on top of the first.
    window = forms().find(QStringLiteral("coordenadas1"));
    choose(QStringLiteral("Recta"));
    type("a", QStringLiteral("0"));
    type("b", QStringLiteral("1"));
    type("c", QStringLiteral("8"));
    click("Command1");
    g->formActivate();
    const Trazo ambos = trazo(g->surface());
    EXPECT_GT(ambos.puntos, circulo.puntos);
    EXPECT_EQ(ambos.izquierda, 0);
    EXPECT_LT(ambos.arriba, circulo.arriba);
    const int yRecta = int((10.0 - 8) / 20 * g->surface()->height());
    EXPECT_NE(g->surface()->image().pixel(5, yRecta), g->surface()->image().pixel(5, 5));

    // Painting the window again shows the same dots: nothing lives only on screen.
    const QImage pantalla = g->surface()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(pantalla, g->surface()->image());

    // A hidden Check2 on the input window stops the drawing.
    g->findChild<QLineEdit *>(QStringLiteral("Text2"))->setText(QStringLiteral("10.0"));
    window->findChild<QCheckBox *>(QStringLiteral("Check2"))->setChecked(true);
    g->findChild<QLineEdit *>(QStringLiteral("Text2"))->setText(QStringLiteral("10"));
    EXPECT_EQ(trazo(g->surface()).puntos, 0);
}

TEST_F(GraphWindowTest, AnEndlessDensityKeepsTheWindowAliveUntilItCloses)
{
    for (const char *densidad : {"0", "0.000001"}) {
        open("coordenadas1");
        get<QCheckBox>("Check1")->click();
        type("den", QLatin1String(densidad));
        choose(QStringLiteral("Seno"));
        bool segundaVolvio = false;
        bool escalaVolvio = false;
        // Armed before the drawing starts, wherever its activation comes.
        QTimer::singleShot(30, [&] {
            Coordenadas2Window *g = grafica();
            ASSERT_NE(g, nullptr);
            // Inside the endless loop: another activation and a change of scale
            // must not start a drawing of their own.
            g->formActivate();
            segundaVolvio = true;
            g->findChild<QLineEdit *>(QStringLiteral("Text2"))->setText(QStringLiteral("5"));
            escalaVolvio = true;
            QTimer::singleShot(30, [] { forms().unload(QStringLiteral("coordenadas2")); });
        });
        click("Command1");
        if (Coordenadas2Window *g = grafica())
            g->formActivate();
        EXPECT_TRUE(segundaVolvio) << densidad;
        EXPECT_TRUE(escalaVolvio) << densidad;
        EXPECT_EQ(grafica(), nullptr) << densidad;
        forms().unloadAll();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

// ---- polares1 and polares2 ----

TEST_F(GraphWindowTest, PolarInputWindow)
{
    open("polares1");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Zafro Suite: Generador de Gráficas Polares"));
    auto *combo = get<QComboBox>("Combo1");
    EXPECT_TRUE(combo->isEditable());
    EXPECT_EQ(combo->count(), 10);
    EXPECT_EQ(combo->currentText(), QStringLiteral("z/c"));
    EXPECT_TRUE(box("seno")->isEnabled());
    EXPECT_EQ(get<QPushButton>("Command3")->text(), QStringLiteral("Acerca de"));

    // A choice from the list is no typing: the boxes stay.
    combo->setCurrentIndex(1);
    combo->setCurrentIndex(0);
    EXPECT_TRUE(box("seno")->isEnabled());
    // Typing "Z/C" does not match; typing "z/c" gives the boxes up for good.
    combo->lineEdit()->clear();
    QTest::keyClicks(combo->lineEdit(), QStringLiteral("Z/C"));
    EXPECT_TRUE(box("seno")->isEnabled());
    combo->lineEdit()->clear();
    QTest::keyClicks(combo->lineEdit(), QStringLiteral("z/c"));
    EXPECT_FALSE(box("seno")->isEnabled());
    EXPECT_FALSE(box("coseno")->isEnabled());
    QTest::keyClicks(combo->lineEdit(), QStringLiteral("x"));
    EXPECT_FALSE(box("seno")->isEnabled());

    // Enter in the constant now draws at once.
    combo->lineEdit()->setText(QStringLiteral("z/c"));
    type("constante", QStringLiteral("2.5abc"));
    enter("constante");
    ASSERT_NE(polar(), nullptr);
    EXPECT_EQ(polaress().c, 2.5f);
    EXPECT_EQ(polaress().ecuacion, 1);

    // An unknown text keeps the curve there was.
    combo->lineEdit()->setText(QStringLiteral("Cos(z)"));
    click("Command2");
    EXPECT_EQ(polaress().ecuacion, 1);
    combo->lineEdit()->setText(QStringLiteral("cos(z)"));
    click("Command2");
    EXPECT_EQ(polaress().ecuacion, 3);
}

TEST_F(GraphWindowTest, PolarEnterChainStoresEachCoefficient)
{
    open("polares1");
    type("constante", QStringLiteral("1"));
    enter("constante");
    EXPECT_EQ(polar(), nullptr);
    type("seno", QStringLiteral("0.5"));
    enter("seno");
    EXPECT_EQ(polaress().s, 0.5f);
    EXPECT_EQ(polar(), nullptr);
    type("coseno", QStringLiteral("3"));
    enter("coseno");
    EXPECT_EQ(polaress().k, 3.0f);
    EXPECT_EQ(polaress().c, 1.0f);
    EXPECT_NE(polar(), nullptr);
}

TEST_F(GraphWindowTest, PolarGraphHasAFixedScaleOfMinus4To4)
{
    open("polares1");
    get<QComboBox>("Combo1")->lineEdit()->setText(QStringLiteral("cos(z)"));
    type("coseno", QStringLiteral("1"));
    click("Command2");
    Polares2Window *p = polar();
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->windowTitle(), QStringLiteral("La gráfica polar:"));
    p->formActivate();
    // The circle through the origin, of diameter 1 out of 8.
    const Trazo circulo = trazo(p->surface());
    const int lado = p->surface()->width();
    EXPECT_NEAR(circulo.izquierda, lado / 2, 1);
    EXPECT_NEAR(circulo.ancho(), lado / 8.0, 2);
    EXPECT_NEAR(circulo.centro().y(), p->surface()->height() / 2, 1);

    // The spiral runs out of the rectangle: only its first turns show, on top.
    get<QComboBox>("Combo1")->lineEdit()->setText(QStringLiteral("z/c"));
    type("constante", QStringLiteral("1"));
    click("Command2");
    p->formActivate();
    const Trazo espiral = trazo(p->surface());
    EXPECT_EQ(espiral.izquierda, 0);
    EXPECT_EQ(espiral.derecha, lado - 1);
    EXPECT_GT(espiral.puntos, circulo.puntos);
}

// A picture tool rather than a test: run with --gtest_also_run_disabled_tests and
// ZAFRO_SHOT_DIR set, and it saves the windows there to look at.
TEST_F(GraphWindowTest, DISABLED_Pictures)
{
    const QString shots = qEnvironmentVariable("ZAFRO_SHOT_DIR");
    if (shots.isEmpty())
        GTEST_SKIP() << "ZAFRO_SHOT_DIR not set";
    const auto save = [&](QWidget *w, const char *name) {
        w->grab().save(QDir(shots).filePath(QLatin1String(name)));
    };
    dibujarCirculo();
    window = forms().find(QStringLiteral("coordenadas1"));
    save(window, "coordenadas1.png");
    save(grafica(), "coordenadas2-circulo.png");
    forms().unload(QStringLiteral("coordenadas2"));
    choose(QStringLiteral("Seno"));
    type("a", QStringLiteral("1"));
    type("b", QStringLiteral("0.1"));
    click("Command1");
    grafica()->formActivate();
    save(grafica(), "coordenadas2-seno.png");

    open("polares1");
    save(window, "polares1.png");
    const struct {
        const char *curve, *c, *s, *k, *file;
    } polars[] = {{"cos(z)*sin(z)+c", "0", "0.5", "0.3", "polares2-6.png"},
                  {"cos(z)+sin(z)+c", "1", "2", "3", "polares2-4.png"},
                  {"z/c", "1", "0", "0", "polares2-1.png"}};
    for (const auto &row : polars) {
        forms().unload(QStringLiteral("polares2"));
        window = forms().find(QStringLiteral("polares1"));
        get<QComboBox>("Combo1")->lineEdit()->setText(QLatin1String(row.curve));
        type("constante", QLatin1String(row.c));
        type("seno", QLatin1String(row.s));
        type("coseno", QLatin1String(row.k));
        click("Command2");
        polar()->formActivate();
        save(polar(), row.file);
    }
}

} // namespace
} // namespace zafro
