#include "fakes.h"
#include "games/parejas.h"
#include "games/parejass_window.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/register_forms.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

namespace zafro {
namespace {

using test::fakes;

// Parejas with a generator that never moves a card, so that card k pairs with k + 8.
class ParejasTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        registerForms();
        CargarEspanol();
        fakes().clock.timerStep = 0.25f;
        for (int i = 0; i < 15; ++i)
            fakes().random.values << 0.99f;
    }

    void abrir()
    {
        window = qobject_cast<ParejassWindow *>(forms().show(QStringLiteral("parejass")));
    }
    QPushButton *boton(const char *name) const
    {
        return window->findChild<QPushButton *>(QLatin1String(name));
    }
    ClickLabel *carta(int i) const
    {
        return window->findChild<ClickLabel *>(QStringLiteral("OcultarImagen_%1").arg(i));
    }
    bool bocaAbajo(int i) const
    {
        const auto *back = window->findChild<QLabel *>(QStringLiteral("imgBack"));
        return carta(i)->pixmap().toImage() == back->pixmap().toImage();
    }

    ParejassWindow *window = nullptr;
};

TEST_F(ParejasTest, BarajarDrawsOncePerStepAndAHighGeneratorLeavesTheListInOrder)
{
    fakes().random.values << 0.0f; // must stay unread
    std::vector<short> lista;
    Barajar(lista, 16);
    EXPECT_EQ(fakes().random.values.size(), 1);
    for (short i = 1; i <= 16; ++i)
        EXPECT_EQ(lista[std::size_t(i)], i);
    // At 0 every element changes place with the first.
    fakes().random.values << 0.0f << 0.0f << 0.0f;
    Barajar(lista, 4);
    EXPECT_EQ(std::vector<short>(lista.begin() + 1, lista.end()), (std::vector<short>{2, 3, 4, 1}));
}

TEST_F(ParejasTest, EsperarReturnsAtTheFirstReadingASecondLater)
{
    const float inicio = fakes().clock.timer();
    Esperar(1.0f);
    // Readings at +0.25 (the start), +0.5, +0.75, +1.0 and +1.25 (the end) went by.
    EXPECT_EQ(fakes().clock.timer() - inicio, 1.5f);
}

TEST_F(ParejasTest, ActivationReseedsAndAGamePlaysThrough)
{
    abrir();
    const int antes = fakes().random.randomizeCalls;
    QEvent activar(QEvent::WindowActivate);
    QCoreApplication::sendEvent(window, &activar);
    EXPECT_EQ(fakes().random.randomizeCalls, antes + 1);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Zafro Suite: Parejas con frutas"));

    window->ocultarImagenClick(0);
    EXPECT_TRUE(bocaAbajo(0)) << "no game before Nuevo";

    boton("Nuevo")->click();
    EXPECT_TRUE(boton("Nuevo")->isHidden() && boton("Salir")->text() == QStringLiteral("Parada"));
    for (int k = 0; k < 8; ++k)
        EXPECT_EQ(window->cartas()[k], window->cartas()[k + 8]) << k;

    window->ocultarImagenClick(0);
    window->ocultarImagenClick(0); // the same card again counts nothing
    EXPECT_EQ(window->intentos(), 0);
    window->ocultarImagenClick(1);
    EXPECT_EQ(window->intentos(), 1);
    EXPECT_TRUE(bocaAbajo(0) && bocaAbajo(1));
    EXPECT_EQ(fakes().sound.sounds.last(), qMakePair(QString(), 5));

    window->ocultarImagenClick(0);
    window->ocultarImagenClick(8);
    EXPECT_EQ(fakes().sound.sounds.last(), qMakePair(QString(), 4));
    EXPECT_FALSE(bocaAbajo(0) || bocaAbajo(8));
    window->ocultarImagenClick(8); // already paired
    EXPECT_EQ(window->intentos(), 2);

    for (int k = 1; k < 8; ++k) {
        window->ocultarImagenClick(k);
        window->ocultarImagenClick(k + 8);
    }
    EXPECT_EQ(window->intentos(), 9);
    EXPECT_TRUE(!boton("Nuevo")->isHidden() && boton("Salir")->text() == QStringLiteral("Salir"));
}

TEST_F(ParejasTest, AClickDuringTheWaitIsDeliveredAfterIt)
{
    abrir();
    boton("Nuevo")->click();
    window->ocultarImagenClick(0);
    const QPointF centro = carta(2)->rect().center();
    for (auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        QCoreApplication::postEvent(
            carta(2), new QMouseEvent(type, centro, carta(2)->mapToGlobal(centro), Qt::LeftButton,
                                      Qt::LeftButton, Qt::NoModifier));
    window->ocultarImagenClick(1); // a failed try: the wait runs
    EXPECT_EQ(window->intentos(), 1);
    EXPECT_TRUE(bocaAbajo(2));
    QCoreApplication::processEvents();
    EXPECT_FALSE(bocaAbajo(2)) << "the queued click turns the first card of the next try";
}

TEST_F(ParejasTest, SalirGivesUpAGameAndClosesInTheCurrentLanguage)
{
    CargarIngles();
    abrir();
    boton("Nuevo")->click();
    boton("Salir")->click(); // "Stop"
    EXPECT_EQ(boton("Salir")->text(), QStringLiteral("Exit"));
    EXPECT_FALSE(boton("Nuevo")->isHidden());
    boton("Salir")->click();
    EXPECT_EQ(forms().find(QStringLiteral("parejass")), nullptr);
}

} // namespace
} // namespace zafro
