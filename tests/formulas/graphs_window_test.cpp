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

using namespace Qt::Literals::StringLiterals;

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

    Coordenadas2Window *grafica() const { return findForm<Coordenadas2Window>(u"coordenadas2"_s); }
    Polares2Window *polar() const { return findForm<Polares2Window>(u"polares2"_s); }

    // A circle of radius 3 about the origin, drawn by the input window.
    void dibujarCirculo()
    {
        open("coordenadas1");
        choose(u"Circunferencia"_s);
        type("a", u"0"_s);
        type("b", u"0"_s);
        type("c", u"9"_s);
        click("Command1");
        ASSERT_NE(grafica(), nullptr);
        grafica()->formActivate();
    }
};

// A picture of `w` into ZAFRO_SHOT_DIR when it is set, to look at.
void shot(QWidget *w, const char *name)
{
    const QString shots = qEnvironmentVariable("ZAFRO_SHOT_DIR");
    if (!shots.isEmpty())
        w->grab().save(QDir(shots).filePath(QLatin1String(name)));
}

// ---- coordenadas1 ----

TEST_F(GraphWindowTest, InputWindowStartsWithNoEquationAndAGuardedDensity)
{
    open("coordenadas1");
    auto *combo = get<QComboBox>("Combo1");
    EXPECT_EQ(combo->count(), 9);
    EXPECT_EQ(combo->currentIndex(), -1);
    EXPECT_FALSE(combo->isEditable());
    EXPECT_EQ(box("a")->text() + box("c")->text() + box("den")->text(), u"130.01"_s);
    for (const char *hidden : {"d", "e", "de", "ee", "Text2", "Command3", "Check2", "Label7"})
        EXPECT_TRUE(get(hidden)->isHidden()) << hidden;
    // Protegido locks the density; turning it on again puts 0.01 back.
    auto *protegido = get<QCheckBox>("Check1");
    EXPECT_TRUE(protegido->isChecked() && box("den")->isReadOnly());
    protegido->click();
    EXPECT_FALSE(box("den")->isReadOnly());
    type("den", u"0.5"_s);
    protegido->click();
    EXPECT_TRUE(box("den")->isReadOnly());
    EXPECT_EQ(box("den")->text(), u"0.01"_s);

    choose(u"Elipse"_s);
    EXPECT_EQ(box("Text1")->text(), u"d*(x-a)^2+e*(y-b)^2=c^2"_s);
    for (const char *shown : {"d", "e", "de", "ee"})
        EXPECT_FALSE(get(shown)->isHidden()) << shown;
    choose(u"Parábola horizontal"_s);
    EXPECT_FALSE(get("d")->isHidden());
    EXPECT_TRUE(get("e")->isHidden());
    choose(u"Recta"_s);
    EXPECT_TRUE(get("d")->isHidden());
    EXPECT_EQ(get<QLabel>("Label2")->text(), texto(slot::IngresaM));
    EXPECT_EQ(box("b")->text(), u"1"_s);
    choose(u"Coseno"_s);
    EXPECT_EQ(get<QLabel>("Label2")->text(), u"Ingresa el valor de 'a':"_s);
    EXPECT_EQ(box("b")->text() + box("c")->text(), u"00"_s);
    shot(window, "coordenadas1.png");
    click("Command2");
    EXPECT_EQ(forms().find(u"coordenadas1"_s), nullptr);
}

TEST_F(GraphWindowTest, Command1RefusesTheFormsThatCannotBeMended)
{
    open("coordenadas1");
    choose(u"Hipérbola"_s);
    type("b", u"0"_s);
    click("Command1");
    choose(u"Elipse"_s);
    type("e", u"x"_s);
    click("Command1");
    EXPECT_EQ(messageTexts(),
              (QStringList{u"'a' o 'b' no pueden valer 0!"_s, u"'e' no puede valer 0!"_s}));
    EXPECT_EQ(fakes().dialogs.messages[0].title, u"Error"_s);
    EXPECT_EQ(grafica(), nullptr);

    // b = 0 in the vertical parabola is mended, not refused.
    choose(u"Parábola vertical"_s);
    type("a", u"2"_s);
    type("b", u"0"_s);
    click("Command1");
    EXPECT_EQ(fakes().dialogs.messages.size(), 2);
    ASSERT_NE(grafica(), nullptr);
    EXPECT_EQ(coordenadas().ecuacion, ParabolaVertical);
    EXPECT_EQ(coordenadas().a, 2.0f);
    EXPECT_EQ(coordenadas().b, 0.0f);
    EXPECT_EQ(coordenadas().densidad, u"0.01"_s);
}

TEST_F(GraphWindowTest, EnterWalksTheBoxesAndDrawsAtTheEnd)
{
    open("coordenadas1");
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    choose(u"Elipse"_s);
    EXPECT_TRUE(box("a")->hasFocus());
    const char *chain[][2] = {{"a", "b"}, {"b", "c"}, {"c", "d"}, {"d", "e"}};
    for (const auto &step : chain) {
        enter(step[0]);
        EXPECT_TRUE(box(step[1])->hasFocus()) << step[0];
        EXPECT_EQ(grafica(), nullptr);
    }
    type("e", u"2"_s);
    enter("e");
    EXPECT_NE(grafica(), nullptr);
    EXPECT_EQ(coordenadas().ecuacion, Elipse);
    EXPECT_EQ(coordenadas().e, 2.0f);
    EXPECT_TRUE(box("a")->hasFocus());

    // Without d, Enter in c draws at once.
    forms().unload(u"coordenadas2"_s);
    choose(u"Seno"_s);
    enter("c");
    EXPECT_NE(grafica(), nullptr);
    EXPECT_EQ(coordenadas().ecuacion, Seno);
}

// ---- coordenadas2 ----

TEST_F(GraphWindowTest, TheScaleBoxesRedrawTheCurveAndLeaveTheTicks)
{
    dibujarCirculo();
    Coordenadas2Window *g = grafica();
    EXPECT_EQ(g->windowTitle(), u"He aquí la gráfica"_s);
    EXPECT_EQ(g->surface()->image().pixel(0, 0), qRgb(255, 255, 192));
    EXPECT_EQ(g->findChild<QLabel *>(u"Label23"_s)->text(), QString())
        << "only the trigonometric forms note their unit";
    shot(g, "coordenadas2-circulo.png");
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

    auto *text1 = g->findChild<QLineEdit *>(u"Text1"_s);
    auto *text2 = g->findChild<QLineEdit *>(u"Text2"_s);
    EXPECT_TRUE(text2->isHidden());
    g->findChild<QCheckBox *>(u"Check1"_s)->click();
    EXPECT_FALSE(text2->isHidden());
    EXPECT_EQ(text2->toolTip(), u"Escala"_s);
    text2->setText(u"20"_s);
    const Trazo veinte = trazo(g->surface());
    EXPECT_NEAR(veinte.ancho(), diez.ancho() / 2.0, 2);
    EXPECT_NEAR(veinte.centro().x(), lado / 2, 1);
    EXPECT_EQ(ticks(), antes);
    // Text1 moves the right end too: X from -20 to 10 puts the centre at two thirds.
    text1->setText(u"10.0"_s);
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
    window = forms().find(u"coordenadas1"_s);
    choose(u"Recta"_s);
    type("a", u"0"_s);
    type("b", u"1"_s);
    type("c", u"8"_s);
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
    g->findChild<QLineEdit *>(u"Text2"_s)->setText(u"10.0"_s);
    window->findChild<QCheckBox *>(u"Check2"_s)->setChecked(true);
    g->findChild<QLineEdit *>(u"Text2"_s)->setText(u"10"_s);
    EXPECT_EQ(trazo(g->surface()).puntos, 0);
}

TEST_F(GraphWindowTest, AnEndlessDensityKeepsTheWindowAliveUntilItCloses)
{
    for (const char *densidad : {"0", "0.000001"}) {
        open("coordenadas1");
        get<QCheckBox>("Check1")->click();
        type("den", QLatin1String(densidad));
        choose(u"Seno"_s);
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
            g->findChild<QLineEdit *>(u"Text2"_s)->setText(u"5"_s);
            escalaVolvio = true;
            QTimer::singleShot(30, [] { forms().unload(u"coordenadas2"_s); });
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
    auto *combo = get<QComboBox>("Combo1");
    EXPECT_TRUE(combo->isEditable());
    EXPECT_EQ(combo->count(), 10);
    EXPECT_EQ(combo->currentText(), u"z/c"_s);
    EXPECT_TRUE(box("seno")->isEnabled());

    // A choice from the list is no typing: the boxes stay.
    combo->setCurrentIndex(1);
    combo->setCurrentIndex(0);
    EXPECT_TRUE(box("seno")->isEnabled());
    // Typing "Z/C" does not match; typing "z/c" gives the boxes up for good.
    combo->lineEdit()->clear();
    QTest::keyClicks(combo->lineEdit(), u"Z/C"_s);
    EXPECT_TRUE(box("seno")->isEnabled());
    combo->lineEdit()->clear();
    QTest::keyClicks(combo->lineEdit(), u"z/c"_s);
    EXPECT_FALSE(box("seno")->isEnabled());
    EXPECT_FALSE(box("coseno")->isEnabled());
    QTest::keyClicks(combo->lineEdit(), u"x"_s);
    EXPECT_FALSE(box("seno")->isEnabled());

    // Enter in the constant now draws at once.
    combo->lineEdit()->setText(u"z/c"_s);
    type("constante", u"2.5abc"_s);
    enter("constante");
    ASSERT_NE(polar(), nullptr);
    EXPECT_EQ(polaress().c, 2.5f);
    EXPECT_EQ(polaress().ecuacion, 1);
    shot(window, "polares1.png");

    // An unknown text keeps the curve there was.
    combo->lineEdit()->setText(u"Cos(z)"_s);
    click("Command2");
    EXPECT_EQ(polaress().ecuacion, 1);
    combo->lineEdit()->setText(u"cos(z)"_s);
    click("Command2");
    EXPECT_EQ(polaress().ecuacion, 3);
}

TEST_F(GraphWindowTest, PolarEnterChainStoresEachCoefficientAndTheScaleIsMinus4To4)
{
    open("polares1");
    get<QComboBox>("Combo1")->lineEdit()->setText(u"cos(z)"_s);
    const struct {
        const char *box, *value;
    } chain[] = {{"constante", "0"}, {"seno", "0.5"}, {"coseno", "1"}};
    for (const auto &step : chain) {
        EXPECT_EQ(polar(), nullptr) << step.box;
        type(step.box, QLatin1String(step.value));
        enter(step.box);
    }
    EXPECT_EQ(polaress().s, 0.5f);
    EXPECT_EQ(polaress().k, 1.0f);
    ASSERT_NE(polar(), nullptr);
    forms().unload(u"polares2"_s);
    type("seno", u"0"_s);
    click("Command2");
    Polares2Window *p = polar();
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->windowTitle(), u"La gráfica polar:"_s);
    p->formActivate();
    // The circle through the origin, of diameter 1 out of 8.
    const Trazo circulo = trazo(p->surface());
    const int lado = p->surface()->width();
    EXPECT_NEAR(circulo.izquierda, lado / 2, 1);
    EXPECT_NEAR(circulo.ancho(), lado / 8.0, 2);
    EXPECT_NEAR(circulo.centro().y(), p->surface()->height() / 2, 1);

    // The spiral runs out of the rectangle: only its first turns show, on top.
    get<QComboBox>("Combo1")->lineEdit()->setText(u"z/c"_s);
    type("constante", u"1"_s);
    click("Command2");
    p->formActivate();
    const Trazo espiral = trazo(p->surface());
    EXPECT_EQ(espiral.izquierda, 0);
    EXPECT_EQ(espiral.derecha, lado - 1);
    EXPECT_GT(espiral.puntos, circulo.puntos);
}

} // namespace
} // namespace zafro
