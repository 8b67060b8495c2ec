#include "error_number.h"
#include "fakes.h"
#include "identifiers/visas_window.h"
#include "platform/qt_services.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

class IdentifierWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
    }

    QWidget *open(const char *name)
    {
        window = forms().show(QLatin1String(name));
        EXPECT_NE(window, nullptr) << name;
        return window;
    }
    template <typename T = QWidget> T *get(const char *name) const
    {
        T *found = window->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QString textOf(const char *name) const
    {
        if (auto *box = window->findChild<QLineEdit *>(QLatin1String(name)))
            return box->text();
        return get<QLabel>(name)->text();
    }
    void type(const char *box, const QString &text)
    {
        get<QLineEdit>(box)->clear();
        QTest::keyClicks(get<QLineEdit>(box), text);
    }
    void click(const char *name) { QTest::mouseClick(get(name), Qt::LeftButton); }
    void clickBackground() { QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(3, 3)); }
    // Types a card number into the four check boxes and checks it.
    void check(const QString &numero)
    {
        const char *boxes[] = {"Texta", "Textb", "Textc", "Textd"};
        for (int i = 0; i < 4; ++i)
            get<QLineEdit>(boxes[i])->setText(numero.mid(i * 4, 4));
        click("Command4");
    }

    QWidget *window = nullptr;
};

TEST_F(IdentifierWindowTest, EachLauncherLabelOpensItsToolAndRaisesItAfter)
{
    auto *index = static_cast<IndexWindow *>(forms().show(QStringLiteral("index")));
    const struct {
        const char *label, *name, *box;
    } tools[] = {{"Labelcom14", "nif", "Text10"},
                 {"Labelcom14b", "ISBN", "Text1"},
                 {"Labelcom11", "visas", "Text3"},
                 {"Labelcom10", "moviles", "Text1"}};
    for (const auto &tool : tools) {
        index->labelClick(QLatin1String(tool.label));
        window = forms().find(QLatin1String(tool.name));
        ASSERT_NE(window, nullptr) << tool.name;
        get<QLineEdit>(tool.box)->setText(QStringLiteral("5"));
        index->labelClick(QLatin1String(tool.label));
        EXPECT_EQ(forms().find(QLatin1String(tool.name)), window);
        EXPECT_EQ(textOf(tool.box), QStringLiteral("5")) << tool.name << " was loaded again";
    }
}

// With ZAFRO_SHOT_DIR set, each window is saved there with a result showing; under a
// real display the card warning is shot over its window.
TEST_F(IdentifierWindowTest, EveryCaptionFitsInEveryLanguageAndSkin)
{
    const QString shots = qEnvironmentVariable("ZAFRO_SHOT_DIR");
    const bool screen = QGuiApplication::platformName() == QLatin1String("xcb");
    QtDialogs realDialogs;
    const struct {
        const char *name, *box, *text;
    } samples[] = {{"nif", "Text10", "87654321"},
                   {"ISBN", "Text1", "84"},
                   {"ISBN", "Text2", "376"},
                   {"ISBN", "Text3", "0494"},
                   {"moviles", "Text1", "601"}};
    const struct {
        void (*loader)();
        const char *code;
    } languages[] = {{&CargarEspanol, "es"}, {&CargarIngles, "en"}, {&CargarValenciano, "va"}};
    for (int skin : {1, 7}) {
        guardarSkin(skin);
        for (const auto &language : languages) {
            language.loader();
            for (const char *name : {"nif", "ISBN", "visas", "moviles"}) {
                const QString file = QDir(shots).filePath(QStringLiteral("%1-skin%2-%3.png")
                                                              .arg(QLatin1String(name))
                                                              .arg(skin)
                                                              .arg(QLatin1String(language.code)));
                open(name);
                for (const auto &sample : samples)
                    if (QLatin1String(sample.name) == QLatin1String(name))
                        get<QLineEdit>(sample.box)->setText(QLatin1String(sample.text));
                if (QLatin1String(name) == QLatin1String("ISBN"))
                    click("Command1");
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
    open("nif");
    EXPECT_EQ(get<QCheckBox>("Check1")->checkState(), Qt::PartiallyChecked);
    type("Text10", QStringLiteral("87654321"));
    EXPECT_EQ(textOf("Text11"), QStringLiteral("X"));
    EXPECT_EQ(textOf("Text1"), QStringLiteral("87654321X"));
    EXPECT_EQ(fakes().desktop.clipboard, QStringLiteral("87654321X")) << "grey counts as ticked";
    get<QCheckBox>("Check2")->setCheckState(Qt::Unchecked);
    type("Text10", QStringLiteral("00000023"));
    EXPECT_EQ(textOf("Text1"), QStringLiteral("23T"));
    EXPECT_EQ(fakes().desktop.clipboard, QStringLiteral("87654321X"));

    click("Text10");
    clickBackground();
    EXPECT_EQ(textOf("Text10"), QStringLiteral("00000023")) << "a number stays";
    type("Text10", QStringLiteral("-5"));
    EXPECT_EQ(textOf("Text1"), QString());
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
    click("Command1");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("0"));
    type("Text1", QStringLiteral("84"));
    type("Text2", QStringLiteral("376"));
    type("Text3", QStringLiteral("0494"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("0"));
    click("Command1");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("X"));
    type("Text1", QStringLiteral("7"));
    click("Command1");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("4")) << "7 read twice: 219 - 8 - 8 + 7 + 14";
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

TEST_F(IdentifierWindowTest, MovilesNamesTheOperatorInItsColour)
{
    open("moviles");
    EXPECT_EQ(textOf("Label2"), texto(slot::MovilesInstrucciones));
    type("Text1", QStringLiteral("601"));
    EXPECT_EQ(textOf("Text3"), QStringLiteral("Dolphin Telecom"));
    EXPECT_EQ(get("Text3")->palette().color(QPalette::Text), colourFromNumber(0xFFFF00));
    EXPECT_EQ(textOf("Label4"), QString());
    type("Text1", QStringLiteral("611"));
    EXPECT_EQ(textOf("Text3"), QString());
    EXPECT_EQ(textOf("Label4"), QStringLiteral("Inserta un prefijo válido"));
    type("Text1", QStringLiteral("647"));
    clickBackground();
    EXPECT_EQ(textOf("Text1"), QStringLiteral("6"));
    EXPECT_EQ(textOf("Text3"), QString());
    EXPECT_EQ(textOf("Label4"), QStringLiteral("Inserta un prefijo válido"));
}

} // namespace
} // namespace zafro
