#include "fakes.h"
#include "shell/forms.h"
#include "shell/idiomaa_window.h"
#include "shell/inicio_window.h"
#include "shell/intro_window.h"
#include "shell/language.h"
#include "shell/nuevos_window.h"
#include "shell/settings.h"
#include "shell/startup.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

QString store(const QString &name, const QString &subkey = {})
{
    return LeerClaveShell(configPath(name, subkey));
}

QTimer *timer(const QString &window, const QString &name)
{
    QWidget *w = forms().find(window);
    return w ? w->findChild<QTimer *>(name) : nullptr;
}

QString labelText(const QString &window, const QString &name)
{
    QWidget *w = forms().find(window);
    auto *label = w ? w->findChild<QLabel *>(name) : nullptr;
    return label ? label->text() : QStringLiteral("<missing>");
}

bool visible(const QString &window)
{
    QWidget *w = forms().find(window);
    return w && w->isVisible();
}

// Runs the tick of inicio that unloads it, as its 1 ms timer would.
void tickInicio()
{
    auto *inicio = qobject_cast<InicioWindow *>(forms().find(QStringLiteral("inicio")));
    ASSERT_NE(inicio, nullptr);
    ASSERT_TRUE(timer(QStringLiteral("inicio"), QStringLiteral("Timer1"))->isActive());
    inicio->timer1Timer();
    EXPECT_EQ(forms().find(QStringLiteral("inicio")), nullptr);
}

class StartupTest : public ::testing::Test {
protected:
    void SetUp() override { clearLanguageTable(); }
};

TEST_F(StartupTest, AnEmptyStoreAsksTheLanguageThenRestartsIntoADoubleLengthSplash)
{
    forms().show(QStringLiteral("inicio"));
    EXPECT_FALSE(visible(QStringLiteral("inicio"))) << "the dispatcher is never seen";
    EXPECT_EQ(store(QStringLiteral("Version")), QStringLiteral("4.6.32"));
    EXPECT_TRUE(visible(QStringLiteral("idiomaa")));
    EXPECT_EQ(forms().find(QStringLiteral("intro")), nullptr);
    tickInicio();

    auto *idiomaa = qobject_cast<IdiomaaWindow *>(forms().find(QStringLiteral("idiomaa")));
    ASSERT_NE(idiomaa, nullptr);
    idiomaa->image2Click();
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(
        fakes().dialogs.messages[0].text,
        QStringLiteral("In order to complete changes Zafro Suite is going to be reboot, Thanks"));
    EXPECT_EQ(fakes().dialogs.messages[0].style, 0);
    EXPECT_EQ(store(QStringLiteral("idioma")), QStringLiteral("2"));
    EXPECT_FALSE(idiomaa->isVisible());
    QTimer *t = timer(QStringLiteral("idiomaa"), QStringLiteral("Timer1"));
    ASSERT_NE(t, nullptr);
    EXPECT_TRUE(t->isActive());
    EXPECT_EQ(t->interval(), 500);

    idiomaa->timer1Timer(); // the restart
    EXPECT_EQ(forms().find(QStringLiteral("idiomaa")), nullptr);
    EXPECT_EQ(texto(1), QStringLiteral("2")) << "the English loader ran on the second dispatch";
    auto *intro = qobject_cast<IntroWindow *>(forms().find(QStringLiteral("intro")));
    ASSERT_NE(intro, nullptr);
    EXPECT_TRUE(intro->isVisible());
    EXPECT_EQ(intro->paso(), QStringLiteral("2")) << "a first run lasts twice as long";
    EXPECT_EQ(store(QStringLiteral("precarga")), QStringLiteral("0"));
    EXPECT_FALSE(fakes().desktop.ended());
}

TEST_F(StartupTest, EachFlagStoresItsCodeWithItsOwnMessage)
{
    struct Case {
        void (IdiomaaWindow::*click)();
        const char *code;
        QString message;
    };
    const Case cases[] = {
        {&IdiomaaWindow::image1Click, "1",
         QStringLiteral("Para completar el cambio Zafro Suite se va a reiniciar, Gracias")},
        {&IdiomaaWindow::image4Click, "4",
         QStringLiteral("Per a completar els cambis, Zafro Suite es reiniciarà")},
    };
    for (const Case &c : cases) {
        auto *idiomaa = qobject_cast<IdiomaaWindow *>(forms().show(QStringLiteral("idiomaa")));
        fakes().dialogs.messages.clear();
        (idiomaa->*c.click)();
        EXPECT_EQ(store(QStringLiteral("idioma")), QLatin1String(c.code));
        ASSERT_EQ(fakes().dialogs.messages.size(), 1) << c.code;
        EXPECT_EQ(fakes().dialogs.messages[0].text, c.message);
        forms().unloadAll();
    }
}

TEST_F(StartupTest, TheLanguageWindowUnloadsThePlatesWindowAndRefusesTheUsersClose)
{
    forms().registerForm(QStringLiteral("matriculasselect"), [] { return new Form; });
    forms().show(QStringLiteral("matriculasselect"));
    auto *idiomaa = qobject_cast<IdiomaaWindow *>(forms().show(QStringLiteral("idiomaa")));
    idiomaa->close();
    EXPECT_EQ(forms().find(QStringLiteral("idiomaa")), idiomaa);
    idiomaa->image1Click();
    EXPECT_EQ(forms().find(QStringLiteral("matriculasselect")), nullptr);
}

TEST_F(StartupTest, AnUnknownLanguageCodeRunsNoLoaderAndLeavesCaptionsEmpty)
{
    writeConfig(QStringLiteral("idioma"), QStringLiteral("3"));
    writeConfig(QStringLiteral("Visitado"), QStringLiteral("4"));
    forms().show(QStringLiteral("inicio"));
    EXPECT_EQ(forms().find(QStringLiteral("idiomaa")), nullptr);
    ASSERT_TRUE(visible(QStringLiteral("intro")));
    EXPECT_EQ(texto(2), QString());
    EXPECT_EQ(labelText(QStringLiteral("intro"), QStringLiteral("Label5")), QString());
    EXPECT_EQ(labelText(QStringLiteral("intro"), QStringLiteral("Label6")), QString());
    EXPECT_EQ(labelText(QStringLiteral("intro"), QStringLiteral("Label4")),
              QStringLiteral("4.6.32"));
}

TEST_F(StartupTest, UninstallFlagWinsOverEverythingAndClosingItEndsTheSuite)
{
    writeConfig(QStringLiteral("borra"), QStringLiteral("1"));
    writeConfig(QStringLiteral("idioma"), QStringLiteral("1"));
    forms().show(QStringLiteral("inicio"));
    EXPECT_TRUE(visible(QStringLiteral("limpia")));
    EXPECT_EQ(forms().find(QStringLiteral("intro")), nullptr);
    EXPECT_EQ(texto(1), QString()) << "no loader runs before the uninstall";
    tickInicio();
    forms().find(QStringLiteral("limpia"))->close();
    EXPECT_EQ(fakes().desktop.endStatuses, QList<int>{0});
}

TEST_F(StartupTest, PreloadSkipsTheSplashAndAnAbsentPreloadStoresZero)
{
    writeConfig(QStringLiteral("idioma"), QStringLiteral("1"));
    writeConfig(QStringLiteral("precarga"), QStringLiteral("1"));
    forms().show(QStringLiteral("inicio"));
    EXPECT_TRUE(visible(QStringLiteral("index")));
    EXPECT_EQ(forms().find(QStringLiteral("intro")), nullptr);
    EXPECT_EQ(store(QStringLiteral("precarga")), QStringLiteral("1"));
    forms().unloadAll();

    BorrarClave(configPath(QStringLiteral("precarga")));
    forms().show(QStringLiteral("inicio"));
    EXPECT_TRUE(visible(QStringLiteral("intro")));
    EXPECT_EQ(store(QStringLiteral("precarga")), QStringLiteral("0"));
}

TEST_F(StartupTest, SplashStatusLineFollowsItsTicksAndEntersAtEighteenSteps)
{
    for (int paso : {1, 2}) {
        QStringList seen;
        int entered = 0;
        for (int tick = 1; tick <= 40; ++tick) {
            const QString m = introMensaje(tick, paso);
            if (!m.isNull())
                seen << QStringLiteral("%1:%2").arg(tick).arg(m);
            if (introEntra(tick, paso))
                entered = tick;
        }
        EXPECT_EQ(seen.size(), 7) << "paso " << paso;
        EXPECT_EQ(seen.first(), QStringLiteral("%1:Cargando controladores").arg(paso));
        EXPECT_EQ(seen[1], QStringLiteral("%1:Cargando interface gráfica").arg(2 * paso));
        EXPECT_EQ(seen.last(), QStringLiteral("%1:Arrancando Zafro Suite").arg(16 * paso));
        EXPECT_EQ(entered, 18 * paso);
    }
}

TEST_F(StartupTest, SplashTimerWalksTheTextsAndEntersTheLauncherOnALaterRun)
{
    writeConfig(QStringLiteral("Visitado"), QStringLiteral("3"));
    auto *intro = qobject_cast<IntroWindow *>(forms().show(QStringLiteral("intro")));
    EXPECT_EQ(intro->paso(), QStringLiteral("1"));
    EXPECT_EQ(timer(QStringLiteral("intro"), QStringLiteral("Timer2"))->interval(), 120);
    for (int i = 0; i < 5; ++i)
        intro->timer2Timer();
    EXPECT_EQ(labelText(QStringLiteral("intro"), QStringLiteral("Label7")),
              QStringLiteral("Cargando configuración personalizada"));
    for (int i = 5; i < 18; ++i)
        intro->timer2Timer();
    EXPECT_EQ(forms().find(QStringLiteral("intro")), nullptr);
    EXPECT_TRUE(visible(QStringLiteral("index")));
}

TEST_F(StartupTest, AClickOnTheSplashImageAtTheFirstTickEntersAtOnce)
{
    auto *intro = qobject_cast<IntroWindow *>(forms().show(QStringLiteral("intro")));
    intro->timer2Timer();
    auto *image = intro->findChild<QLabel *>(QStringLiteral("Image1"));
    ASSERT_NE(image, nullptr);
    QTest::mouseClick(image, Qt::LeftButton);
    EXPECT_EQ(forms().find(QStringLiteral("intro")), nullptr);
    EXPECT_TRUE(visible(QStringLiteral("nuevos"))) << "no visit yet: the welcome comes next";
}

TEST_F(StartupTest, WelcomeWritesTheFirstRunDefaultsAndLeadsToTheSkins)
{
    CargarEspanol();
    auto *nuevos = qobject_cast<NuevosWindow *>(forms().show(QStringLiteral("nuevos")));
    EXPECT_EQ(store(QStringLiteral("tituloanimado")), QStringLiteral("0"));
    EXPECT_EQ(store(QStringLiteral("perseguir")), QStringLiteral("0"));
    EXPECT_EQ(store(QStringLiteral("acceso")), QStringLiteral("40271653"));
    EXPECT_EQ(store(QStringLiteral("Inicio")), QStringLiteral("1"));
    EXPECT_EQ(labelText(QStringLiteral("nuevos"), QStringLiteral("Label1")),
              QStringLiteral("Bienvenido, esta es la primera vez que entras en Zafro Suite"));
    EXPECT_EQ(labelText(QStringLiteral("nuevos"), QStringLiteral("Label2")),
              QStringLiteral("Haz clic en Continuar para empezar a configurar:"));
    auto *button = nuevos->findChild<QPushButton *>(QStringLiteral("Command1"));
    EXPECT_EQ(button->text(), QStringLiteral("Continuar ->"));

    nuevos->close();
    EXPECT_EQ(forms().find(QStringLiteral("nuevos")), nuevos) << "the welcome refuses to close";
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(visible(QStringLiteral("colores")));
    EXPECT_TRUE(visible(QStringLiteral("nuevos"))) << "it stays behind the skin window";
}

TEST_F(StartupTest, TheLaunchersFirstVisitFallbackStoresSkinTwo)
{
    forms().show(QStringLiteral("nuevos"));
    primeraVisitaIndex(1);
    EXPECT_EQ(store(QStringLiteral("BackColor"), QStringLiteral("Colores")),
              QStringLiteral("&H80C0FF"));
    EXPECT_EQ(store(QStringLiteral("TituloForeColor"), QStringLiteral("colores")),
              QStringLiteral("&HFF0101"));
    EXPECT_EQ(store(QStringLiteral("Tipo"), QStringLiteral("Colores")), QStringLiteral("2"));
    EXPECT_EQ(store(QStringLiteral("Fonazul"), QStringLiteral("Colores\\Integro")),
              QStringLiteral("128"));
    EXPECT_EQ(store(QStringLiteral("Visitado")), QStringLiteral("2"))
        << "raised to 1 with the skin, then counted by the launcher's load";
    EXPECT_FALSE(visible(QStringLiteral("nuevos")));
    EXPECT_NE(forms().find(QStringLiteral("index")), nullptr);

    // a later visit leaves the user's skin alone
    writeConfig(QStringLiteral("Tipo"), QStringLiteral("5"), QStringLiteral("Colores"));
    primeraVisitaIndex(2);
    EXPECT_EQ(store(QStringLiteral("Tipo"), QStringLiteral("Colores")), QStringLiteral("5"));
}

} // namespace
} // namespace zafro
