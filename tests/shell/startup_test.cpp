#include "fakes.h"
#include "shell/colorestuyos_window.h"
#include "shell/forms.h"
#include "shell/idiomaa_window.h"
#include "shell/inicio_window.h"
#include "shell/intro_window.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"
#include "shell/startup.h"
#include "window_test.h"

#include <gtest/gtest.h>

#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

const char *const kColores = "Colores";
const char *const kIntegro = "Colores\\Integro";

// The windows of a first run: language, splash, welcome and skins.
class FirstRun : public test::WindowTest {
protected:
    void SetUp() override { CargarEspanol(); }
    static QString stored(const char *name, const char *subkey = "")
    {
        return LeerClaveShell(configPath(name, subkey));
    }
    static bool visible(const char *name)
    {
        QWidget *w = forms().find(name);
        return w && w->isVisible();
    }
    // The window of that name becomes the one under test.
    QWidget *at(const char *name) { return window = forms().find(name); }
    QTimer *timer(const char *name) const { return window->findChild<QTimer *>(name); }
    // Runs the tick of the dispatcher that unloads it, as its 1 ms timer would.
    static void tickInicio()
    {
        ASSERT_TRUE(forms().find("inicio")->findChild<QTimer *>("Timer1")->isActive());
        findForm<InicioWindow>("inicio")->timer1Timer();
        EXPECT_EQ(forms().find("inicio"), nullptr);
    }
    QColor fill(const char *name, QPalette::ColorRole role) const
    {
        return get(name)->palette().color(role);
    }
    int checkedOption() const
    {
        int checked = 0;
        for (int i = 1; i <= 9; ++i)
            if (window->findChild<QRadioButton *>(QString("Option%1").arg(i))->isChecked())
                checked = checked ? -1 : i;
        return checked;
    }
    static QString lastMessage()
    {
        const auto &m = fakes().dialogs.messages;
        return m.isEmpty() ? QString() : m.last().title + ": " + m.last().text;
    }
    ColorestuyosWindow *custom()
    {
        return qobject_cast<ColorestuyosWindow *>(open("colorestuyos"));
    }
    int field(ColorestuyosWindow::Group group, int channel) const
    {
        return static_cast<ColorestuyosWindow *>(window)->field(group, channel);
    }
};

TEST_F(FirstRun, AFirstRunAsksTheLanguageRestartsAndWalksSplashWelcomeAndSkinsInToTheLauncher)
{
    clearLanguageTable();
    forms().show("inicio");
    EXPECT_FALSE(visible("inicio")) << "the dispatcher is never seen";
    EXPECT_EQ(stored("Version"), "4.6.32");
    EXPECT_TRUE(visible("idiomaa"));
    tickInicio();

    auto *idiomaa = static_cast<IdiomaaWindow *>(at("idiomaa"));
    idiomaa->image2Click();
    EXPECT_EQ(
        messageTexts(),
        QStringList{"In order to complete changes Zafro Suite is going to be reboot, Thanks"});
    EXPECT_EQ(fakes().dialogs.messages[0].style, 0);
    EXPECT_EQ(stored("idioma"), "2");
    EXPECT_FALSE(idiomaa->isVisible());
    EXPECT_TRUE(timer("Timer1")->isActive());
    EXPECT_EQ(timer("Timer1")->interval(), 500);
    idiomaa->timer1Timer(); // the restart
    EXPECT_EQ(forms().find("idiomaa"), nullptr);
    EXPECT_EQ(texto(1), "2") << "the English loader ran on the second dispatch";

    auto *intro = static_cast<IntroWindow *>(at("intro"));
    ASSERT_TRUE(visible("intro"));
    EXPECT_EQ(intro->paso(), "2") << "a first run lasts twice as long";
    EXPECT_EQ(stored("precarga"), "0");
    for (int tick = 1; tick < 36; ++tick) {
        intro->timer2Timer();
        if (tick == 10) { // the status line's steps stretch as well
            EXPECT_EQ(textOf("Label7"), "Cargando configuración personalizada");
        }
    }
    ASSERT_TRUE(visible("intro"));
    intro->timer2Timer();
    EXPECT_EQ(forms().find("intro"), nullptr);

    QWidget *nuevos = at("nuevos");
    ASSERT_TRUE(visible("nuevos"));
    click("Command1");
    QWidget *colores = at("colores");
    ASSERT_TRUE(visible("colores"));
    EXPECT_TRUE(nuevos->isVisible()) << "the welcome stays behind the skin window";
    click("Command12");
    EXPECT_TRUE(visible("index"));
    EXPECT_FALSE(nuevos->isVisible() || colores->isVisible());
    EXPECT_EQ(stored("Tipo", kColores), "7");
    EXPECT_FALSE(fakes().desktop.ended());
}

TEST_F(FirstRun, TheDispatcherFollowsTheStoredFlags)
{
    const struct {
        const char *name, *borra, *idioma, *precarga, *shown, *precargaAfter;
        bool loads; // a language loader ran
    } rows[] = {
        {"the uninstall flag wins", "1", "1", nullptr, "limpia", "", false},
        {"an unknown language code", nullptr, "3", nullptr, "intro", "0", false},
        {"preload skips the splash", nullptr, "1", "1", "index", "1", true},
        {"an absent preload stores zero", nullptr, "4", nullptr, "intro", "0", true},
    };
    writeConfig("Visitado", "4");
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        clearLanguageTable();
        for (const auto &[name, value] :
             {std::pair{"borra", row.borra}, {"idioma", row.idioma}, {"precarga", row.precarga}})
            value ? writeConfig(name, value) : BorrarClave(configPath(name));
        forms().show("inicio");
        EXPECT_TRUE(visible(row.shown));
        EXPECT_EQ(forms().loadedNames().size(), 2) << forms().loadedNames().join(' ').toStdString();
        EXPECT_EQ(stored("precarga"), row.precargaAfter);
        EXPECT_EQ(texto(2).isEmpty(), !row.loads);
        if (at("intro")) {
            EXPECT_EQ(textOf("Label4"), "4.6.32");
            EXPECT_EQ(textOf("Label5"), texto(slot::CreditoDiseno));
        }
        tickInicio();
        if (row.borra) {
            forms().find("limpia")->close();
            EXPECT_EQ(fakes().desktop.endStatuses, QList<int>{0}) << "closing it ends the suite";
        }
        forms().unloadAll();
    }
}

TEST_F(FirstRun, EachFlagStoresItsCodeWithItsOwnMessageAndDropsThePlatesWindow)
{
    const struct {
        void (IdiomaaWindow::*click)();
        const char *code, *message;
    } rows[] = {
        {&IdiomaaWindow::image1Click, "1",
         "Para completar el cambio Zafro Suite se va a reiniciar, Gracias"},
        {&IdiomaaWindow::image4Click, "4", "Per a completar els cambis, Zafro Suite es reiniciarà"},
    };
    forms().registerForm("matriculasselect", [] { return new Form; });
    for (const auto &row : rows) {
        fakes().dialogs.messages.clear();
        forms().show("matriculasselect");
        open("idiomaa")->close();
        EXPECT_EQ(forms().find("idiomaa"), window) << "the user cannot close it";
        (static_cast<IdiomaaWindow *>(window)->*row.click)();
        EXPECT_EQ(stored("idioma"), row.code);
        EXPECT_EQ(messageTexts(), QStringList{row.message});
        EXPECT_EQ(forms().find("matriculasselect"), nullptr);
        forms().unloadAll();
    }
}

TEST_F(FirstRun, ALaterRunsSplashWalksItsStatusLineAndEntersAtEighteenTicks)
{
    writeConfig("Visitado", "3");
    auto *intro = static_cast<IntroWindow *>(open("intro"));
    EXPECT_EQ(intro->paso(), "1");
    EXPECT_EQ(timer("Timer2")->interval(), 120);
    for (int i = 0; i < 5; ++i)
        intro->timer2Timer();
    EXPECT_EQ(textOf("Label7"), "Cargando configuración personalizada");
    for (int i = 5; i < 18; ++i)
        intro->timer2Timer();
    EXPECT_EQ(forms().find("intro"), nullptr);
    EXPECT_TRUE(visible("index"));
}

TEST_F(FirstRun, AClickOnTheSplashImageEntersAtOnce)
{
    static_cast<IntroWindow *>(open("intro"))->timer2Timer();
    click("Image1");
    EXPECT_EQ(forms().find("intro"), nullptr);
    EXPECT_TRUE(visible("nuevos")) << "no visit yet: the welcome comes next";
}

TEST_F(FirstRun, TheWelcomeWritesTheFirstRunDefaultsAndRefusesToClose)
{
    open("nuevos");
    for (const auto &[name, value] : {std::pair{"tituloanimado", "0"},
                                      {"perseguir", "0"},
                                      {"acceso", "40271653"},
                                      {"Inicio", "1"}})
        EXPECT_EQ(stored(name), value) << name;
    EXPECT_EQ(textOf("Label1"), "Bienvenido, esta es la primera vez que entras en Zafro Suite");
    EXPECT_EQ(textOf("Command1"), "Continuar ->");
    window->close();
    EXPECT_EQ(forms().find("nuevos"), window);
}

TEST_F(FirstRun, ABuiltInSkinStoresItsColoursInItsOwnFormAndItsComponents)
{
    const struct {
        const char *name;
        int tipo;
        const char *value, *subkey, *text;
    } rows[] = {
        {"hexadecimal form", 3, "BackColor", kColores, "&HFFC0C0"},
        {"kept: text components disagree", 3, "Txtverde", kIntegro, "128"},
        {"decimal form", 4, "BackColor", kColores, "14846691"},
        {"decimal form, button", 5, "CommandBackColor", kColores, "131071"},
        {"kept: title components are the text's", 9, "Titrojo", kIntegro, "229"},
        {"last component", 9, "Botazul", kIntegro, "100"},
    };
    for (const auto &row : rows) {
        guardarSkin(row.tipo);
        EXPECT_EQ(stored(row.value, row.subkey), row.text) << row.name;
        EXPECT_EQ(stored("Tipo", kColores), QString::number(row.tipo)) << row.name;
    }
    EXPECT_EQ(stored("Visitado"), "1") << "an absent visit count is raised to one";
    writeConfig("Visitado", "9");
    guardarSkin(6);
    EXPECT_EQ(stored("Visitado"), "9") << "but no higher";
    guardarSkin(0);
    guardarSkin(55);
    EXPECT_EQ(stored("Tipo", kColores), "6") << "numbers outside the nine store nothing";
    EXPECT_EQ(builtInSkin(10), nullptr);
}

TEST_F(FirstRun, AnEmptyStoreFallsToDarkTwoAndABuiltInSkinIsStoredWholeAgain)
{
    open("colores");
    EXPECT_EQ(checkedOption(), 7);
    EXPECT_EQ(stored("Tipo", kColores), "7");
    EXPECT_EQ(stored("BackColor", kColores), "65793");
    EXPECT_EQ(stored("Botverde", kIntegro), "44");
    EXPECT_EQ(stored("Visitado"), "1");
    EXPECT_EQ(window->windowTitle(), "Zafro Skin v 2.8: Elije tu configuración de colores");
    EXPECT_EQ(textOf("Command12"), "Aplicar");
    forms().unloadAll();

    guardarSkin(5);
    writeConfig("BackColor", "123", kColores);
    writeConfig("Fonazul", "7", kIntegro);
    open("colores");
    EXPECT_EQ(checkedOption(), 5);
    EXPECT_EQ(stored("BackColor", kColores), "11665408");
    EXPECT_EQ(stored("Fonazul", kIntegro), "178");
}

TEST_F(FirstRun, ACustomSkinSelectsNothingAndApplyKeepsIt)
{
    forms().show("nuevos");
    writeConfig("Visitado", "3");
    for (const auto &[name, value, subkey] : {std::tuple{"Tipo", "55", kColores},
                                              {"BackColor", "0", kColores},
                                              {"Fonrojo", "10", kIntegro},
                                              {"Txtverde", "200", kIntegro}})
        writeConfig(name, value, subkey);
    open("colores");
    EXPECT_EQ(checkedOption(), 0);
    EXPECT_EQ(fill("Shape10", QPalette::Window), QColor(10, 0, 0));
    EXPECT_EQ(fill("Labelejem2", QPalette::WindowText), QColor(0, 200, 0));
    EXPECT_EQ(stored("Visitado"), "3") << "nothing is stored";

    click("Command12");
    EXPECT_EQ(stored("Tipo", kColores), "55");
    EXPECT_EQ(stored("BackColor", kColores), "0");
    EXPECT_TRUE(forms().find("index")->isVisible());
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(forms().find("nuevos")->isVisible());
}

TEST_F(FirstRun, AnOptionPaintsTheSampleAndOnlyApplyStoresIt)
{
    guardarSkin(1);
    open("colores");
    click("Option3");
    EXPECT_EQ(checkedOption(), 3);
    EXPECT_EQ(fill("Shape10", QPalette::Window), QColor(0xC0, 0xC0, 0xFF));
    EXPECT_EQ(fill("Labelejem1", QPalette::WindowText), QColor(0xFF, 0x01, 0x01));
    EXPECT_EQ(stored("Tipo", kColores), "1");
    click("Command12");
    EXPECT_EQ(stored("Tipo", kColores), "3");
    EXPECT_EQ(stored("BackColor", kColores), "&HFFC0C0");
}

TEST_F(FirstRun, TheSkinWindowRefusesTheUsersCloseAndItsBackButtonUnloadsIt)
{
    forms().show("nuevos");
    open("colores")->close();
    EXPECT_EQ(forms().find("colores"), window);
    click("Commandejem");
    EXPECT_EQ(lastMessage(), "Ejemplo:: Esto es solo un ejemplo...");
    click("Command4");
    EXPECT_EQ(forms().find("colores"), nullptr);
    EXPECT_EQ(forms().find("index"), nullptr);
}

TEST_F(FirstRun, TheCustomWindowStartsFromTheStoredComponentsMismatchIncluded)
{
    guardarSkin(3);
    custom();
    EXPECT_EQ(textOf("Textot2"), "128");
    EXPECT_EQ(get<QScrollBar>("Textob2")->value(), 128);
    EXPECT_EQ(get<QScrollBar>("Fondob3")->value(), 255);
    EXPECT_EQ(textOf("Label20"), "Solo puedes poner valores entre 0 y 255");
    click("Command1");
    EXPECT_EQ(stored("ForeColor", kColores), QString::number(192 + 128 * 256 + 1 * 65536))
        << "saving at once makes the text colour follow the components";
    EXPECT_EQ(stored("Tipo", kColores), "55");
}

TEST_F(FirstRun, FieldsBarsAndSwatchesFollowEachOtherButAFieldAbove255IsRefused)
{
    guardarSkin(1);
    custom();
    get<QLineEdit>("Fondot1")->setText("256");
    EXPECT_EQ(lastMessage(), "Fallo !: No puedes poner valores superiores a 255");
    EXPECT_EQ(get<QScrollBar>("Fondob1")->value(), 1);
    EXPECT_EQ(field(ColorestuyosWindow::Fondo, 0), 1);
    EXPECT_EQ(textOf("Fondot1"), "256") << "the offending text stays";
    get<QLineEdit>("Fondot1")->setText("255");
    EXPECT_EQ(get<QScrollBar>("Fondob1")->value(), 255);
    EXPECT_EQ(fill("fondoo", QPalette::Window), QColor(255, 1, 1));
    get<QLineEdit>("Fondot1")->setText(QString());
    EXPECT_EQ(field(ColorestuyosWindow::Fondo, 0), 0) << "an empty text reads 0";

    get<QScrollBar>("Botonb3")->setValue(77);
    EXPECT_EQ(field(ColorestuyosWindow::Boton, 2), 77);
    EXPECT_EQ(textOf("Botont3"), "77");
    EXPECT_EQ(fill("botono", QPalette::Window), QColor(1, 255, 77));
    EXPECT_EQ(fill("Commandejem", QPalette::Button), QColor(1, 255, 77));
    click("botono");
    EXPECT_EQ(lastMessage(), "Muestra: Esto es una muestra de color!");
    EXPECT_EQ(fakes().dialogs.messages.size(), 2);
}

TEST_F(FirstRun, SavingAllZerosStoresBlackAndEntersTheLauncher)
{
    forms().show("nuevos");
    forms().show("colores");
    for (QScrollBar *bar : custom()->findChildren<QScrollBar *>())
        bar->setValue(0);
    writeConfig("Visitado", "0");
    click("Command1");
    for (const char *name : {"BackColor", "ForeColor", "TituloForeColor", "CommandBackColor"})
        EXPECT_EQ(stored(name, kColores), "0") << name;
    EXPECT_EQ(stored("Titazul", kIntegro), "0");
    EXPECT_EQ(stored("Visitado"), "2") << "raised to 1 by the save, then counted by the launcher";
    EXPECT_EQ(stored("Tipo", kColores), "55")
        << "the launcher's first-visit fallback must not overwrite the custom skin";
    EXPECT_EQ(forms().find("colorestuyos"), nullptr);
    EXPECT_EQ(forms().find("colores"), nullptr);
    EXPECT_TRUE(forms().find("index")->isVisible());
    EXPECT_FALSE(forms().find("nuevos")->isVisible());
}

TEST_F(FirstRun, BackFromTheCustomWindowClosesBothAndLeavesTheWelcomeAlone)
{
    forms().show("nuevos");
    forms().show("colores");
    custom()->close();
    ASSERT_EQ(forms().find("colorestuyos"), window);
    click("Command4");
    EXPECT_EQ(forms().loadedNames(), QStringList{"nuevos"});
    EXPECT_TRUE(forms().find("nuevos")->isVisible());
}

TEST_F(FirstRun, TheEnglishTableLeavesTheCustomWindowsCaptionAsItFoundIt)
{
    guardarSkin(2);
    clearLanguageTable();
    CargarIngles();
    EXPECT_EQ(custom()->windowTitle(), QString()) << "English from the start: never filled";
    forms().unloadAll();
    CargarEspanol();
    CargarIngles();
    EXPECT_EQ(custom()->windowTitle(), "Zafro Skin v 2.8:  Haz tu configuración de colores");
}

} // namespace
} // namespace zafro
