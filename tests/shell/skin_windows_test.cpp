#include "fakes.h"
#include "shell/colores_window.h"
#include "shell/colorestuyos_window.h"
#include "shell/forms.h"
#include "shell/idiomaa_window.h"
#include "shell/inicio_window.h"
#include "shell/intro_window.h"
#include "shell/language.h"
#include "shell/nuevos_window.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

namespace zafro {
namespace {

using test::fakes;

const QString kColores = QStringLiteral("Colores");
const QString kIntegro = QStringLiteral("Colores\\Integro");

QString stored(const QString &name, const QString &subkey = {})
{
    return LeerClaveShell(configPath(name, subkey));
}

template <typename T> T *child(QWidget *window, const char *name)
{
    T *found = window->findChild<T *>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

int checkedOption(QWidget *colores)
{
    int checked = 0;
    for (int i = 1; i <= 9; ++i)
        if (colores->findChild<QRadioButton *>(QStringLiteral("Option%1").arg(i))->isChecked())
            checked = checked ? -1 : i;
    return checked;
}

class SkinWindows : public ::testing::Test {
protected:
    void SetUp() override { CargarEspanol(); }
};

TEST_F(SkinWindows, AnEmptyStoreFallsToDarkTwoAndStoresItComplete)
{
    auto *colores = forms().show(QStringLiteral("colores"));
    EXPECT_EQ(checkedOption(colores), 7);
    EXPECT_EQ(stored(QStringLiteral("Tipo"), kColores), QStringLiteral("7"));
    EXPECT_EQ(stored(QStringLiteral("BackColor"), kColores), QStringLiteral("65793"));
    EXPECT_EQ(stored(QStringLiteral("CommandBackColor"), kColores), QString::number(0x012CFF));
    EXPECT_EQ(stored(QStringLiteral("Botverde"), kIntegro), QStringLiteral("44"));
    EXPECT_EQ(stored(QStringLiteral("Visitado")), QStringLiteral("1"));
    EXPECT_EQ(colores->windowTitle(),
              QStringLiteral("Zafro Skin v 2.8: Elije tu configuración de colores"));
    EXPECT_EQ(child<QPushButton>(colores, "Command12")->text(), QStringLiteral("Aplicar"));
}

TEST_F(SkinWindows, OpeningWithABuiltInSkinRewritesTheWholeRecord)
{
    guardarSkin(5);
    writeConfig(QStringLiteral("BackColor"), QStringLiteral("123"), kColores);
    writeConfig(QStringLiteral("Fonazul"), QStringLiteral("7"), kIntegro);
    auto *colores = forms().show(QStringLiteral("colores"));
    EXPECT_EQ(checkedOption(colores), 5);
    EXPECT_EQ(stored(QStringLiteral("BackColor"), kColores), QStringLiteral("11665408"));
    EXPECT_EQ(stored(QStringLiteral("Fonazul"), kIntegro), QStringLiteral("178"));
}

TEST_F(SkinWindows, ACustomSkinSelectsNothingAndApplyKeepsIt)
{
    forms().show(QStringLiteral("nuevos"));
    writeConfig(QStringLiteral("Visitado"), QStringLiteral("3"));
    writeConfig(QStringLiteral("Tipo"), QStringLiteral("55"), kColores);
    writeConfig(QStringLiteral("BackColor"), QStringLiteral("0"), kColores);
    writeConfig(QStringLiteral("Fonrojo"), QStringLiteral("10"), kIntegro);
    writeConfig(QStringLiteral("Txtverde"), QStringLiteral("200"), kIntegro);
    auto *colores = forms().show(QStringLiteral("colores"));
    EXPECT_EQ(checkedOption(colores), 0);
    EXPECT_EQ(child<QFrame>(colores, "Shape10")->palette().color(QPalette::Window),
              QColor(10, 0, 0));
    EXPECT_EQ(child<QLabel>(colores, "Labelejem2")->palette().color(QPalette::WindowText),
              QColor(0, 200, 0));
    EXPECT_EQ(stored(QStringLiteral("Visitado")), QStringLiteral("3")) << "nothing is stored";

    QTest::mouseClick(child<QPushButton>(colores, "Command12"), Qt::LeftButton);
    EXPECT_EQ(stored(QStringLiteral("Tipo"), kColores), QStringLiteral("55"));
    EXPECT_EQ(stored(QStringLiteral("BackColor"), kColores), QStringLiteral("0"));
    EXPECT_TRUE(forms().find(QStringLiteral("index"))->isVisible());
    EXPECT_FALSE(colores->isVisible());
    EXPECT_FALSE(forms().find(QStringLiteral("nuevos"))->isVisible());
}

TEST_F(SkinWindows, AnOptionPaintsTheSampleAndOnlyApplyStoresIt)
{
    guardarSkin(1);
    auto *colores = forms().show(QStringLiteral("colores"));
    auto *option3 = child<QRadioButton>(colores, "Option3");
    QTest::mouseClick(option3, Qt::LeftButton);
    EXPECT_EQ(checkedOption(colores), 3);
    EXPECT_EQ(child<QFrame>(colores, "Shape10")->palette().color(QPalette::Window),
              QColor(0xC0, 0xC0, 0xFF));
    EXPECT_EQ(child<QLabel>(colores, "Labelejem1")->palette().color(QPalette::WindowText),
              QColor(0xFF, 0x01, 0x01));
    EXPECT_EQ(stored(QStringLiteral("Tipo"), kColores), QStringLiteral("1"));
    QTest::mouseClick(child<QPushButton>(colores, "Command12"), Qt::LeftButton);
    EXPECT_EQ(stored(QStringLiteral("Tipo"), kColores), QStringLiteral("3"));
    EXPECT_EQ(stored(QStringLiteral("BackColor"), kColores), QStringLiteral("&HFFC0C0"));
}

TEST_F(SkinWindows, TheSkinWindowRefusesTheUsersCloseAndItsBackButtonUnloadsIt)
{
    forms().show(QStringLiteral("nuevos"));
    auto *colores = forms().show(QStringLiteral("colores"));
    colores->close();
    EXPECT_EQ(forms().find(QStringLiteral("colores")), colores);
    QTest::mouseClick(child<QPushButton>(colores, "Commandejem"), Qt::LeftButton);
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].text, QStringLiteral("Esto es solo un ejemplo..."));
    EXPECT_EQ(fakes().dialogs.messages[0].title, QStringLiteral("Ejemplo:"));
    QTest::mouseClick(child<QPushButton>(colores, "Command4"), Qt::LeftButton);
    EXPECT_EQ(forms().find(QStringLiteral("colores")), nullptr);
    EXPECT_EQ(forms().find(QStringLiteral("index")), nullptr);
}

TEST_F(SkinWindows, TheCustomWindowStartsFromTheStoredComponentsMismatchIncluded)
{
    guardarSkin(3);
    auto *tuyos = forms().show(QStringLiteral("colorestuyos"));
    EXPECT_EQ(child<QLineEdit>(tuyos, "Textot2")->text(), QStringLiteral("128"));
    EXPECT_EQ(child<QScrollBar>(tuyos, "Textob2")->value(), 128);
    EXPECT_EQ(child<QScrollBar>(tuyos, "Fondob3")->value(), 255);
    EXPECT_EQ(child<QLabel>(tuyos, "Label20")->text(),
              QStringLiteral("Solo puedes poner valores entre 0 y 255"));

    QTest::mouseClick(child<QPushButton>(tuyos, "Command1"), Qt::LeftButton);
    EXPECT_EQ(stored(QStringLiteral("ForeColor"), kColores),
              QString::number(192 + 128 * 256 + 1 * 65536))
        << "saving at once makes the text colour follow the components";
    EXPECT_EQ(stored(QStringLiteral("Tipo"), kColores), QStringLiteral("55"));
}

TEST_F(SkinWindows, AFieldAbove255IsRefusedInSpanishAndLeavesItsBarAlone)
{
    guardarSkin(1);
    auto *tuyos = qobject_cast<ColorestuyosWindow *>(forms().show(QStringLiteral("colorestuyos")));
    auto *box = child<QLineEdit>(tuyos, "Fondot1");
    auto *bar = child<QScrollBar>(tuyos, "Fondob1");
    box->setText(QStringLiteral("256"));
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].text,
              QStringLiteral("No puedes poner valores superiores a 255"));
    EXPECT_EQ(fakes().dialogs.messages[0].title, QStringLiteral("Fallo !"));
    EXPECT_EQ(bar->value(), 1);
    EXPECT_EQ(tuyos->field(ColorestuyosWindow::Fondo, 0), 1);
    EXPECT_EQ(box->text(), QStringLiteral("256")) << "the offending text stays";

    box->setText(QStringLiteral("255"));
    EXPECT_EQ(bar->value(), 255);
    EXPECT_EQ(child<QLabel>(tuyos, "fondoo")->palette().color(QPalette::Window), QColor(255, 1, 1));
    box->setText(QString());
    EXPECT_EQ(tuyos->field(ColorestuyosWindow::Fondo, 0), 0) << "an empty text reads 0";
    EXPECT_EQ(fakes().dialogs.messages.size(), 1);
}

TEST_F(SkinWindows, ABarMovesItsFieldItsTextAndItsSwatch)
{
    guardarSkin(1);
    auto *tuyos = qobject_cast<ColorestuyosWindow *>(forms().show(QStringLiteral("colorestuyos")));
    child<QScrollBar>(tuyos, "Botonb3")->setValue(77);
    EXPECT_EQ(tuyos->field(ColorestuyosWindow::Boton, 2), 77);
    EXPECT_EQ(child<QLineEdit>(tuyos, "Botont3")->text(), QStringLiteral("77"));
    EXPECT_EQ(child<QLabel>(tuyos, "botono")->palette().color(QPalette::Window),
              QColor(1, 255, 77));
    EXPECT_EQ(child<QPushButton>(tuyos, "Commandejem")->palette().color(QPalette::Button),
              QColor(1, 255, 77));
    QTest::mouseClick(child<QLabel>(tuyos, "botono"), Qt::LeftButton);
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].text, QStringLiteral("Esto es una muestra de color!"));
    EXPECT_EQ(fakes().dialogs.messages[0].title, QStringLiteral("Muestra"));
}

TEST_F(SkinWindows, SavingAllZerosStoresBlackAndEntersTheLauncher)
{
    forms().show(QStringLiteral("nuevos"));
    forms().show(QStringLiteral("colores"));
    auto *tuyos = forms().show(QStringLiteral("colorestuyos"));
    for (QScrollBar *bar : tuyos->findChildren<QScrollBar *>())
        bar->setValue(0);
    writeConfig(QStringLiteral("Visitado"), QStringLiteral("0"));
    QTest::mouseClick(child<QPushButton>(tuyos, "Command1"), Qt::LeftButton);
    for (const char *name : {"BackColor", "ForeColor", "TituloForeColor", "CommandBackColor"})
        EXPECT_EQ(stored(QLatin1String(name), kColores), QStringLiteral("0")) << name;
    EXPECT_EQ(stored(QStringLiteral("Titazul"), kIntegro), QStringLiteral("0"));
    EXPECT_EQ(stored(QStringLiteral("Visitado")), QStringLiteral("2"))
        << "raised to 1 by the save, then counted by the launcher";
    EXPECT_EQ(stored(QStringLiteral("Tipo"), kColores), QStringLiteral("55"))
        << "the launcher's first-visit fallback must not overwrite the custom skin";
    EXPECT_EQ(forms().find(QStringLiteral("colorestuyos")), nullptr);
    EXPECT_EQ(forms().find(QStringLiteral("colores")), nullptr);
    EXPECT_TRUE(forms().find(QStringLiteral("index"))->isVisible());
    EXPECT_FALSE(forms().find(QStringLiteral("nuevos"))->isVisible());
}

TEST_F(SkinWindows, BackFromTheCustomWindowClosesBothAndLeavesTheWelcomeAlone)
{
    forms().show(QStringLiteral("nuevos"));
    forms().show(QStringLiteral("colores"));
    auto *tuyos = forms().show(QStringLiteral("colorestuyos"));
    tuyos->close();
    ASSERT_EQ(forms().find(QStringLiteral("colorestuyos")), tuyos);
    QTest::mouseClick(child<QPushButton>(tuyos, "Command4"), Qt::LeftButton);
    EXPECT_EQ(forms().loadedNames(), QStringList{QStringLiteral("nuevos")});
    EXPECT_TRUE(forms().find(QStringLiteral("nuevos"))->isVisible());
}

TEST_F(SkinWindows, TheEnglishTableLeavesTheCustomWindowsCaptionAsItFoundIt)
{
    guardarSkin(2);
    clearLanguageTable();
    CargarIngles();
    auto *tuyos = forms().show(QStringLiteral("colorestuyos"));
    EXPECT_EQ(tuyos->windowTitle(), QString()) << "English from the start: never filled";
    EXPECT_EQ(child<QPushButton>(tuyos, "Command1")->text(), QStringLiteral("Save"));
    forms().unloadAll();

    CargarEspanol();
    CargarIngles();
    tuyos = forms().show(QStringLiteral("colorestuyos"));
    EXPECT_EQ(tuyos->windowTitle(),
              QStringLiteral("Zafro Skin v 2.8:  Haz tu configuración de colores"))
        << "after Spanish the slot keeps the Spanish text";
}

TEST_F(SkinWindows, AFirstRunWalksLanguageSplashWelcomeAndSkinIntoTheLauncher)
{
    clearLanguageTable();
    forms().show(QStringLiteral("inicio"));
    findForm<InicioWindow>(QStringLiteral("inicio"))->timer1Timer();
    auto *idiomaa = findForm<IdiomaaWindow>(QStringLiteral("idiomaa"));
    ASSERT_NE(idiomaa, nullptr);
    idiomaa->image1Click();
    idiomaa->timer1Timer();
    auto *intro = findForm<IntroWindow>(QStringLiteral("intro"));
    ASSERT_NE(intro, nullptr);
    for (int tick = 0; tick < 36 && forms().find(QStringLiteral("intro")); ++tick)
        intro->timer2Timer();
    auto *nuevos = forms().find(QStringLiteral("nuevos"));
    ASSERT_NE(nuevos, nullptr);
    ASSERT_TRUE(nuevos->isVisible());
    QTest::mouseClick(child<QPushButton>(nuevos, "Command1"), Qt::LeftButton);
    auto *colores = forms().find(QStringLiteral("colores"));
    ASSERT_NE(colores, nullptr);
    QTest::mouseClick(child<QPushButton>(colores, "Command12"), Qt::LeftButton);

    EXPECT_TRUE(forms().find(QStringLiteral("index"))->isVisible());
    EXPECT_FALSE(nuevos->isVisible());
    EXPECT_FALSE(colores->isVisible());
    EXPECT_EQ(stored(QStringLiteral("Tipo"), kColores), QStringLiteral("7"));
    for (const char *name : {"BackColor", "ForeColor", "TituloForeColor", "CommandBackColor"})
        EXPECT_FALSE(stored(QLatin1String(name), kColores).isEmpty()) << name;
    int components = 0;
    for (const char *group : {"Fon", "Txt", "Tit", "Bot"})
        for (const char *channel : {"rojo", "verde", "azul"})
            components +=
                !stored(QLatin1String(group) + QLatin1String(channel), kIntegro).isEmpty();
    EXPECT_EQ(components, 12);
    EXPECT_GE(stored(QStringLiteral("Visitado")).toInt(), 1);
    EXPECT_FALSE(fakes().desktop.ended());
}

} // namespace
} // namespace zafro
