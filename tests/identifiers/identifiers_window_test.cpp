#include "error_number.h"
#include "fakes.h"
#include "identifiers/visas_window.h"
#include "platform/qt_services.h"
#include "runtime/region.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"

#include "window_test.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

class IdentifierWindowTest : public test::WindowTest {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
    }

    // Types a card number into the four check boxes and checks it.
    void check(const QString &numero)
    {
        const char *boxes[] = {"Texta", "Textb", "Textc", "Textd"};
        for (int i = 0; i < 4; ++i)
            get<QLineEdit>(boxes[i])->setText(numero.mid(i * 4, 4));
        click("Command4");
    }
};

// Each tool opens from its launcher label, and a second click raises it as it is. With
// ZAFRO_SHOT_DIR set, each window is saved there with a result showing; under a real
// display the card warning is shot over its window.
TEST_F(IdentifierWindowTest, EachOpensFromTheLauncherAndItsCaptionsFitInEveryLanguage)
{
    auto *index = static_cast<IndexWindow *>(forms().show(QStringLiteral("index")));
    const QString shots = qEnvironmentVariable("ZAFRO_SHOT_DIR");
    const bool screen = QGuiApplication::platformName() == QLatin1String("xcb");
    QtDialogs realDialogs;
    const struct {
        const char *name, *label, *box, *text;
    } tools[] = {{"nif", "Labelcom14", "Text10", "87654321"},
                 {"ISBN", "Labelcom14b", "Text3", "0494"},
                 {"visas", "Labelcom11", "Text3", "5"},
                 {"moviles", "Labelcom10", "Text1", "601"}};
    const struct {
        void (*loader)();
        const char *code;
    } languages[] = {{&CargarEspanol, "es"}, {&CargarIngles, "en"}, {&CargarValenciano, "va"}};
    for (int skin : {1, 7}) {
        guardarSkin(skin);
        for (const auto &language : languages) {
            language.loader();
            for (const auto &[name, launcher, box, text] : tools) {
                const QString file = QStringLiteral("%1/%2-skin%3-%4.png")
                                         .arg(shots, QLatin1String(name), QString::number(skin),
                                              QLatin1String(language.code));
                index->labelClick(QLatin1String(launcher));
                window = forms().find(QLatin1String(name));
                ASSERT_NE(window, nullptr) << name;
                get<QLineEdit>(box)->setText(QLatin1String(text));
                index->labelClick(QLatin1String(launcher));
                EXPECT_EQ(textOf(box), QLatin1String(text)) << name << " loaded again";
                if (QLatin1String(name) == QLatin1String("ISBN")) {
                    get<QLineEdit>("Text1")->setText(QStringLiteral("84"));
                    get<QLineEdit>("Text2")->setText(QStringLiteral("376"));
                    click("Command1");
                }
                if (window->objectName() == QLatin1String("visas")) {
                    check(QStringLiteral("5000000000000000"));
                    if (screen && !shots.isEmpty()) {
                        services().dialogs = &realDialogs;
                        QTimer::singleShot(500, [file] {
                            QGuiApplication::primaryScreen()->grabWindow(0).save(
                                QString(file).replace(QStringLiteral(".png"),
                                                      QStringLiteral("-warning.png")));
                            QApplication::activeModalWidget()->close();
                        });
                    }
                    click("Command1");
                    services().dialogs = &fakes().dialogs;
                }
                for (QLabel *label : window->findChildren<QLabel *>())
                    EXPECT_LE(label->wordWrap() ? label->heightForWidth(label->width())
                                                : label->sizeHint().width(),
                              label->wordWrap() ? label->height() : label->width())
                        << name << " " << label->objectName().toStdString() << " " << language.code;
                for (QAbstractButton *button : window->findChildren<QAbstractButton *>())
                    EXPECT_LE(qobject_cast<QCheckBox *>(button)
                                  ? button->sizeHint().width()
                                  : button->fontMetrics().horizontalAdvance(button->text()) + 8,
                              button->width())
                        << name << " " << button->objectName().toStdString() << " "
                        << language.code;
                if (!shots.isEmpty())
                    window->grab().save(file);
                forms().unload(QLatin1String(name));
            }
        }
    }
}

TEST_F(IdentifierWindowTest, NifShowsTheLetterCopiesItAndRestoresItsPlaceholders)
{
    ScopedDecimalMark point(u'.');
    open("nif");
    const struct {
        const char *typed, *letra, *nif;
    } rows[] = {{"87654321", "X", "87654321X"},
                {"00000023", "T", "23T"},
                {"22", "E", "22E"},
                {"DNI", "T", "0T"},
                {"-5", "", ""},
                {"2.5", "W", "2.5W"},
                {"1.6", "W", "1.6W"}};
    for (const auto &row : rows) {
        type("Text10", QLatin1String(row.typed));
        EXPECT_EQ(textOf("Text11"), QLatin1String(row.letra)) << row.typed;
        EXPECT_EQ(textOf("Text1"), QLatin1String(row.nif)) << row.typed;
        EXPECT_EQ(fakes().desktop.clipboard, textOf("Text1")) << "grey counts as ticked";
    }
    get<QCheckBox>("Check2")->setCheckState(Qt::Unchecked);
    type("Text10", QStringLiteral("5"));
    EXPECT_EQ(fakes().desktop.clipboard, QStringLiteral("1.6W"));

    click("Text10");
    clickBackground();
    EXPECT_EQ(textOf("Text10"), QStringLiteral("5")) << "a number stays";
    type("Text10", QStringLiteral("-5"));
    click("Text10");
    EXPECT_EQ(textOf("Text10"), QString());
    EXPECT_EQ(textOf("Text1"), QStringLiteral("0T"));
    clickBackground();
    EXPECT_EQ(textOf("Text10"), QStringLiteral("DNI"));
    EXPECT_EQ(textOf("Text11") + textOf("Text1"), QString());
}

TEST_F(IdentifierWindowTest, NifAutoReplacesTensByTheLimitsBoxInItsThreeStates)
{
    open("nif");
    // 0.96 draws a 10, 0.04 a 0, 0.1 to 0.9 draw 1 to 9.
    const struct {
        const char *name;
        Qt::CheckState limites;
        float first;
        const char *dni;
    } rows[] = {{"grey, 10 becomes 2", Qt::PartiallyChecked, 0.96f, "21034567"},
                {"ticked, 6 becomes 2", Qt::Checked, 0.6f, "21034567"},
                {"ticked keeps 5", Qt::Checked, 0.5f, "51034567"},
                {"clear, 10 becomes 3", Qt::Unchecked, 0.96f, "31034567"},
                {"clear keeps 9", Qt::Unchecked, 0.9f, "91034567"},
                {"a first 0 shortens", Qt::Unchecked, 0.04f, "1034567"}};
    for (const auto &row : rows) {
        get<QCheckBox>("Check1")->setCheckState(row.limites);
        fakes().random.values.append({row.first, 0.1f, 0.96f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f});
        click("Command1");
        EXPECT_EQ(textOf("Text10"), QLatin1String(row.dni)) << row.name;
        EXPECT_TRUE(textOf("Text1").startsWith(QLatin1String(row.dni))) << row.name;
    }
    EXPECT_EQ(fakes().random.randomizeCalls, 6);
}

TEST_F(IdentifierWindowTest, IsbnComputesOnlyOnItsButton)
{
    open("ISBN");
    type("Text1", QStringLiteral("84"));
    type("Text2", QStringLiteral("376"));
    type("Text3", QStringLiteral("0494"));
    EXPECT_EQ(textOf("Text4"), QString());
    click("Command1");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("X"));
}

TEST_F(IdentifierWindowTest, VisasWarnsOnceThenGeneratesNumbersItsCheckAccepts)
{
    open("visas");
    EXPECT_EQ(textOf("Label1"), QStringLiteral("Tarjetas de crédito"));
    get<QComboBox>("Combo1")->setCurrentIndex(0);
    emit get<QComboBox>("Combo1")->activated(0);
    EXPECT_EQ(textOf("Text3"), QStringLiteral("3"));
    const struct {
        const char *banco, *cabeza;
    } bancos[] = {{"013", "013"}, {"", "000"}, {"7", "707"}, {"99", "999"}};
    for (int tipo = 0; tipo <= 9; ++tipo)
        for (const auto &b : bancos) {
            get<QLineEdit>("Text3")->setText(QString::number(tipo));
            get<QLineEdit>("Text4")->setText(QLatin1String(b.banco));
            click("Command1");
            QString grupos;
            for (const char *res : {"res1", "res2", "res3", "res4"})
                grupos += textOf(res);
            EXPECT_EQ(textOf("Text1").remove(u'-'), grupos);
            EXPECT_EQ(grupos.left(4), QString::number(tipo) + QLatin1String(b.cabeza));
            check(grupos);
            EXPECT_EQ(textOf("Label13"), QStringLiteral("Válida!")) << grupos.toStdString();
        }
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].title, QStringLiteral("WARNING!!"));
    EXPECT_EQ(fakes().dialogs.messages[0].text, texto(slot::AdvertenciaTarjetas));
    EXPECT_FALSE(get<QCheckBox>("Check1")->isChecked());

    fakes().random.values.append({0.96f, 0.96f, 0.96f});
    click("Command3");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("220"));
    click("Text4");
    EXPECT_EQ(textOf("Text4"), QString());

    auto *visas = static_cast<VisasWindow *>(window);
    get<QLineEdit>("Text3")->setText(QStringLiteral("99"));
    EXPECT_EQ(test::errorNumber([visas] { visas->command1Click(); }), 28);
}

TEST_F(IdentifierWindowTest, VisasCheckTellsTheTypeOnlyOfAValidNumber)
{
    open("visas");
    get<QCheckBox>("Check1")->setChecked(false);
    click("Command1");
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
    const struct {
        const char *numero, *veredicto, *tipo;
    } rows[] = {{"5000000000000000", "Válida!", "La tarjeta es una MasterCard"},
                {"5555555555554444", "Inválida", "La tarjeta es una MasterCard"},
                {"", "Válida!", ""},
                {"3000000000000004", "Válida!", "La tarjeta es una American Express"},
                {"9997909090909090", "Inválida", "La tarjeta es una American Express"},
                {"1000000000000008", "Válida!", ""},
                {"1234512", "Inválida", ""}};
    for (const auto &row : rows) {
        check(QLatin1String(row.numero));
        EXPECT_EQ(textOf("Label13"), QString::fromUtf8(row.veredicto)) << row.numero;
        EXPECT_EQ(textOf("Label88"), QLatin1String(row.tipo)) << row.numero;
    }
}

TEST_F(IdentifierWindowTest, MovilesNamesTheFirstOperatorHoldingThePrefixInItsColour)
{
    open("moviles");
    const QString aviso = QStringLiteral("Inserta un prefijo válido");
    const struct {
        const char *prefijo, *nombre;
        quint32 color;
    } rows[] = {{"601", "Dolphin Telecom", 0xFFFF00},
                {"6", "", 0},
                {"647", "MoviStar", 0xFF0000},
                {"62", "", 0},
                {"650", "MoviStar", 0xFF0000},
                {"611", "", 0},
                {"689", "MoviStar", 0xFF0000},
                {"6e2", "Vodafone", 255},
                {"665", "Amena", 65280},
                {"622", "Xfera", 0x80FFFF}};
    for (const auto &row : rows) {
        type("Text1", QLatin1String(row.prefijo));
        EXPECT_EQ(textOf("Text3"), QLatin1String(row.nombre)) << row.prefijo;
        EXPECT_EQ(textOf("Label4"), *row.nombre ? QString() : aviso) << row.prefijo;
        EXPECT_TRUE(!*row.nombre ||
                    get("Text3")->palette().color(QPalette::Text) == colourFromNumber(row.color))
            << row.prefijo;
    }
    clickBackground();
    EXPECT_EQ(textOf("Text1"), QStringLiteral("6"));
    EXPECT_EQ(textOf("Text3"), QString());
    EXPECT_EQ(textOf("Label4"), aviso);
}

} // namespace
} // namespace zafro
