#include "error_number.h"
#include "fakes.h"
#include "maths/bisiesto_window.h"
#include "maths/calculadora_window.h"
#include "maths/radian_window.h"
#include "maths/temperatura_window.h"
#include "maths/trigo_window.h"
#include "runtime/region.h"
#include "runtime/runtime_error.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"
#include "window_test.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace zafro {
namespace {

using test::fakes;

const char *const kCalculators[] = {"calculadora", "trigo", "radian", "temperatura", "bisiesto"};

class CalculatorWindowTest : public test::WindowTest {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
    }

    void reopen(const char *name, void (*loader)())
    {
        forms().unload(QLatin1String(name));
        loader();
        open(name);
    }

    // A typical input, so that results show as well as captions.
    void typeSample(const char *name)
    {
        const QString tool = QLatin1String(name);
        if (tool == QLatin1String("calculadora")) {
            type("Text2", QStringLiteral("2"));
            type("Text3", QStringLiteral("10"));
            click("Command8");
        } else if (tool == QLatin1String("trigo")) {
            type("Text1", QStringLiteral("-90"));
        } else if (tool == QLatin1String("radian")) {
            type("Text1", QStringLiteral("180"));
            click("Command1");
        } else if (tool == QLatin1String("temperatura")) {
            get<QComboBox>("Combo1")->setCurrentIndex(5);
            type("Text8", QStringLiteral("100"));
        } else {
            type("Text1", QStringLiteral("2000"));
            click("Command1");
        }
    }
    int messageCount() const { return int(fakes().dialogs.messages.size()); }
};

// --- The frame, the same in the five windows ---------------------------------------

TEST_F(CalculatorWindowTest, EachWindowHasItsFrameCloseAndAbout)
{
    const BuiltInSkin *skin = builtInSkin(7);
    ASSERT_NE(skin, nullptr);
    guardarSkin(7);
    const struct {
        const char *name, *title, *close, *about;
        int interval;
    } rows[] = {
        {"calculadora", "Label3", "Command1", "Command2", 200},
        {"trigo", "Label1", "Command1", "Command2", 100},
        {"radian", "Label1", "Command3", "Command4", 100},
        {"temperatura", "Label10", "Command1", "Command2", 100},
        {"bisiesto", "Label1", "Command2", "Command4", 100},
    };
    for (const auto &row : rows) {
        open(row.name);
        EXPECT_EQ(window->objectName(), QLatin1String(row.name));
        auto *timer = window->findChild<QTimer *>(QStringLiteral("Timer1"));
        ASSERT_NE(timer, nullptr) << row.name;
        EXPECT_EQ(timer->interval(), row.interval) << row.name;
        EXPECT_EQ(window->palette().color(QPalette::Window), colourFromNumber(skin->backColor));
        for (QLabel *label : window->findChildren<QLabel *>()) {
            const bool title = label->objectName() == QLatin1String(row.title);
            EXPECT_EQ(label->palette().color(QPalette::WindowText),
                      colourFromNumber(title ? skin->tituloForeColor : skin->foreColor))
                << row.name << " " << label->objectName().toStdString();
        }
        EXPECT_EQ(textOf(row.close), QStringLiteral("Cerrar")) << row.name;
        EXPECT_EQ(textOf(row.about), QStringLiteral("Acerca de")) << row.name;

        click(row.about);
        EXPECT_NE(forms().find(QStringLiteral("acercade")), nullptr) << row.name;
        EXPECT_EQ(forms().find(QLatin1String(row.name)), window) << "the tool stays open";
        forms().unload(QStringLiteral("acercade"));
        click(row.close);
        EXPECT_EQ(forms().find(QLatin1String(row.name)), nullptr) << row.name;
    }
}

TEST_F(CalculatorWindowTest, AnAbsentSkinStopsTheLoadWithTheConversionError)
{
    writeConfig(QStringLiteral("ForeColor"), QString(), QStringLiteral("Colores"));
    for (const char *name : kCalculators) {
        EXPECT_EQ(test::errorNumber([name] { forms().show(QLatin1String(name)); }), 13) << name;
        forms().unloadAll();
    }
}

// Every caption fits its control in the three languages and both skins. With
// ZAFRO_SHOT_DIR set, each window is also saved there as a picture to look at.
TEST_F(CalculatorWindowTest, EveryCaptionFitsItsControlInEveryLanguage)
{
    const QString shots = qEnvironmentVariable("ZAFRO_SHOT_DIR");
    const struct {
        void (*loader)();
        const char *code;
    } languages[] = {{&CargarEspanol, "es"}, {&CargarIngles, "en"}, {&CargarValenciano, "va"}};
    for (int skin : {1, 7}) {
        guardarSkin(skin);
        for (const auto &language : languages) {
            language.loader();
            for (const char *name : kCalculators) {
                open(name);
                typeSample(name);
                for (QLabel *label : window->findChildren<QLabel *>())
                    EXPECT_LE(label->sizeHint().width(), label->width())
                        << name << " " << label->objectName().toStdString() << " " << language.code;
                for (QPushButton *button : window->findChildren<QPushButton *>())
                    EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()) + 8,
                              button->width())
                        << name << " " << button->objectName().toStdString() << " "
                        << language.code;
                for (QWidget *w : window->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
                    EXPECT_TRUE(window->rect().contains(w->geometry()))
                        << name << " " << w->objectName().toStdString();
                }
                if (!shots.isEmpty())
                    window->grab().save(
                        QDir(shots).filePath(QStringLiteral("%1-skin%2-%3.png")
                                                 .arg(QLatin1String(name))
                                                 .arg(skin)
                                                 .arg(QLatin1String(language.code))));
                forms().unload(QLatin1String(name));
            }
        }
    }
}

// --- calculadora -----------------------------------------------------------------

class CalculadoraWindowTest : public CalculatorWindowTest {
protected:
    CalculadoraWindow *calc()
    {
        open("calculadora");
        return static_cast<CalculadoraWindow *>(window);
    }
    // Which of Hex, Dec, Bin are enabled, as "101".
    QString convs() const
    {
        QString s;
        for (const char *name : {"Conv1", "Conv2", "Conv3"})
            s += get<QPushButton>(name)->isEnabled() ? u'1' : u'0';
        return s;
    }
    void operate(const QString &a, const char *button, const QString &b)
    {
        type("Text2", a);
        type("Text3", b);
        click(button);
    }
};

TEST_F(CalculadoraWindowTest, LoadsWithItsDesignTextsAndTheLanguagesCaptions)
{
    calc();
    EXPECT_EQ(textOf("Label3"), QStringLiteral("Calculadora"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("RESULTADO"));
    EXPECT_EQ(textOf("Text2"), QStringLiteral("NUMº 1"));
    EXPECT_EQ(textOf("Text3"), QStringLiteral("NUMº 2"));
    EXPECT_EQ(textOf("Label1"), QStringLiteral("Nº1"));
    EXPECT_EQ(textOf("Label2"), QStringLiteral("Nº2"));
    EXPECT_EQ(textOf("Label9"), QString());
    EXPECT_EQ(convs(), QStringLiteral("101"));
    const char *signs[][2] = {{"Command3", "+"},
                              {"Command4", "-"},
                              {"Command5", "x"},
                              {"Command6", "/"},
                              {"Command8", "^"}};
    for (const auto &sign : signs)
        EXPECT_EQ(textOf(sign[0]), QLatin1String(sign[1]));

    reopen("calculadora", &CargarIngles);
    EXPECT_EQ(textOf("Label3"), QStringLiteral("Calculator"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("RESULT"));
    EXPECT_EQ(textOf("Command1"), QStringLiteral("Close"));
    EXPECT_EQ(textOf("Command2"), QStringLiteral("About"));
    EXPECT_EQ(textOf("Conv1"), QStringLiteral("Hex"));
}

TEST_F(CalculadoraWindowTest, TheOperationsShowResultAndSign)
{
    ScopedDecimalMark point(u'.');
    calc();
    const struct {
        const char *a, *button, *b, *resultado, *signo;
    } rows[] = {{"abc", "Command3", "7xyz", "7", "+"},
                {"2", "Command4", "3.5", "-1.5", "-"},
                {"1e10", "Command5", "1e10", "1E+20", "x"},
                {"1", "Command6", "3", "0.333333333333333", "/"},
                {"5", "Command8", "0", "1", "^"},
                {"1,5", "Command5", "2", "2", "x"}};
    for (const auto &row : rows) {
        operate(QLatin1String(row.a), row.button, QLatin1String(row.b));
        EXPECT_EQ(textOf("Text4"), QLatin1String(row.resultado)) << row.a << row.signo << row.b;
        EXPECT_EQ(textOf("Label9"), QLatin1String(row.signo));
    }
    EXPECT_EQ(messageCount(), 0);
}

TEST_F(CalculadoraWindowTest, TwoToTheTenGoesThroughTheThreeBasesAndBack)
{
    calc();
    operate(QStringLiteral("2"), "Command8", QStringLiteral("10"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("1024"));
    click("Conv1");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("400"));
    EXPECT_EQ(convs(), QStringLiteral("011"));
    click("Conv3");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("10000000000"));
    EXPECT_EQ(convs(), QStringLiteral("110"));
    click("Conv2");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("1024"));
    EXPECT_EQ(convs(), QStringLiteral("101"));
}

TEST_F(CalculadoraWindowTest, AnOperationReenablesTheButtonsButKeepsTheOldBase)
{
    calc();
    operate(QStringLiteral("2"), "Command8", QStringLiteral("10"));
    click("Conv1"); // "400", believed hexadecimal from now on
    operate(QStringLiteral("5"), "Command3", QStringLiteral("7"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("12"));
    EXPECT_EQ(convs(), QStringLiteral("101"));
    click("Conv3"); // "12" taken for hexadecimal: 18
    EXPECT_EQ(textOf("Text4"), QStringLiteral("10010"));

    operate(QStringLiteral("5"), "Command3", QStringLiteral("7"));
    click("Conv1"); // "12" taken for binary: 1*2 + 2
    EXPECT_EQ(textOf("Text4"), QStringLiteral("4"));
    click("Conv2"); // back from hexadecimal, as the base now really is
    EXPECT_EQ(textOf("Text4"), QStringLiteral("4"));
    operate(QStringLiteral("5"), "Command3", QStringLiteral("7"));
    click("Conv1");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("C")) << "decimal again after Dec";
}

TEST_F(CalculadoraWindowTest, DivisionByZeroAndZeroToTheZeroAreToldAndChangeNothing)
{
    calc();
    operate(QStringLiteral("6"), "Command5", QStringLiteral("7"));
    click("Conv1");
    ASSERT_EQ(textOf("Text4"), QStringLiteral("2A"));
    ASSERT_EQ(convs(), QStringLiteral("011"));

    for (const char *a : {"5", "0"}) {
        operate(QLatin1String(a), "Command6", QStringLiteral("0"));
        ASSERT_EQ(messageCount(), 1) << a;
        const test::MsgBoxCall box = fakes().dialogs.messages.takeFirst();
        EXPECT_EQ(box.title, QStringLiteral("División por cero"));
        EXPECT_EQ(box.text, QStringLiteral("No se puede dividir por cero, lo siento"));
        EXPECT_EQ(textOf("Text4"), QStringLiteral("2A"));
        EXPECT_EQ(textOf("Label9"), QStringLiteral("x"));
        EXPECT_EQ(convs(), QStringLiteral("101")) << "the buttons are reset all the same";
    }

    operate(QStringLiteral("0"), "Command8", QStringLiteral("abc"));
    ASSERT_EQ(messageCount(), 1);
    EXPECT_EQ(fakes().dialogs.messages.first().title, QStringLiteral("Indeterminación"));
    EXPECT_EQ(fakes().dialogs.messages.first().text,
              QStringLiteral("Se produce una indeterminación matemática, sería necesario "
                             "resolverlo por límites"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("2A"));
    EXPECT_EQ(textOf("Label9"), QStringLiteral("x"));

    reopen("calculadora", &CargarIngles);
    operate(QStringLiteral("1"), "Command6", QStringLiteral("0"));
    EXPECT_EQ(fakes().dialogs.messages.last().title, QStringLiteral("División por cero"))
        << "the messages are the tool's own, in Spanish";
}

TEST_F(CalculadoraWindowTest, TheBackgroundPutsTheDesignTextsBackInBoxesThatReadZero)
{
    calc();
    click("Text2");
    EXPECT_EQ(textOf("Text2"), QString()) << "a click in a number box empties it";
    click("Text3");
    EXPECT_EQ(textOf("Text3"), QString());
    type("Text3", QStringLiteral("7"));
    click("Text3");
    EXPECT_EQ(textOf("Text3"), QString()) << "whatever it holds";
    type("Text3", QStringLiteral("7"));
    type("Text4", QStringLiteral("0.0"));

    click("Label3");
    click("Label9");
    EXPECT_EQ(textOf("Text2"), QString()) << "a click on a label is not one on the window";
    clickBackground();
    EXPECT_EQ(textOf("Text2"), QStringLiteral("NUMº 1"));
    EXPECT_EQ(textOf("Text3"), QStringLiteral("7"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("RESULTADO"));

    reopen("calculadora", &CargarIngles);
    operate(QStringLiteral("-1"), "Command4", QStringLiteral("0"));
    click("Conv1");
    ASSERT_EQ(textOf("Text4"), QStringLiteral("FFFFFFFF"));
    clickBackground();
    EXPECT_EQ(textOf("Text4"), QStringLiteral("RESULT")) << "a hexadecimal word reads as 0";
    EXPECT_EQ(textOf("Text3"), QStringLiteral("NUMº 2"));
}

TEST_F(CalculadoraWindowTest, WhatTheBasesCannotReadEndsAsTheRuntimesError)
{
    CalculadoraWindow *w = calc();
    EXPECT_EQ(test::errorNumber([w] { w->conv3Click(); }), 13)
        << "\"RESULTADO\" is no 32-bit number";
    type("Text2", QStringLiteral("3000000000"));
    type("Text3", QStringLiteral("0"));
    w->command3Click();
    EXPECT_EQ(test::errorNumber([w] { w->conv1Click(); }), 6) << "beyond 32 bits";
    type("Text2", QStringLiteral("1e308"));
    type("Text3", QStringLiteral("10"));
    EXPECT_EQ(test::errorNumber([w] { w->command5Click(); }), 6);
}

TEST_F(CalculadoraWindowTest, ResultsAreWrittenInTheRegionsFormAndReadWithAPoint)
{
    ScopedDecimalMark comma(u',');
    calc();
    operate(QStringLiteral("7"), "Command6", QStringLiteral("2"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("3,5"));
    click("Conv1");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("3")) << "Val stops at the comma";
}

// --- trigo -------------------------------------------------------------------------

TEST_F(CalculatorWindowTest, TrigoWorksOutTheRatiosAsTheAngleIsTyped)
{
    ScopedDecimalMark point(u'.');
    open("trigo");
    EXPECT_EQ(textOf("Label1"), QStringLiteral("Trigonometría"));
    EXPECT_EQ(textOf("Label2"), QStringLiteral("Número de Grados:"));
    EXPECT_EQ(textOf("Label5"), QStringLiteral("Tangente"));
    for (const char *box : {"Text2", "Text3", "Text4"})
        EXPECT_EQ(textOf(box), QStringLiteral("Resultado"));

    QTest::keyClicks(get<QLineEdit>("Text1"), QStringLiteral("9"));
    EXPECT_EQ(textOf("Text2"), QStringLiteral("0.1564")) << "at every key";
    QTest::keyClicks(get<QLineEdit>("Text1"), QStringLiteral("0"));
    EXPECT_EQ(textOf("Text2"), QStringLiteral("1"));
    EXPECT_EQ(textOf("Text3"), QStringLiteral("0"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("Error"));
    type("Text1", QStringLiteral("180"));
    EXPECT_EQ(textOf("Text2"), QStringLiteral("0"));
    EXPECT_EQ(textOf("Text3"), QStringLiteral("-1"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("0"));

    QTest::keyClick(get<QLineEdit>("Text1"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(get<QLineEdit>("Text1"), Qt::Key_Backspace);
    ASSERT_EQ(textOf("Text1"), QString());
    for (const char *box : {"Text2", "Text3", "Text4"})
        EXPECT_EQ(textOf(box), QStringLiteral("Resultado")) << box;

    reopen("trigo", &CargarIngles);
    EXPECT_EQ(textOf("Label2"), QStringLiteral("Number of Degrees:"));
    EXPECT_EQ(textOf("Label3"), QStringLiteral("Sine"));
    type("Text1", QStringLiteral("90"));
    EXPECT_EQ(textOf("Text4"), QStringLiteral("Error"));
    type("Text1", QString());
    EXPECT_EQ(textOf("Text4"), QStringLiteral("Result"));
}

TEST_F(CalculatorWindowTest, TrigoClicksPutResultadoBackOnlyWhileTheAngleIsEmpty)
{
    open("trigo");
    auto scribble = [this] {
        for (const char *box : {"Text2", "Text3", "Text4"})
            get<QLineEdit>(box)->setText(QStringLiteral("x"));
    };
    scribble();
    click("Label2");
    EXPECT_EQ(textOf("Text2"), QStringLiteral("x"));
    clickBackground();
    for (const char *box : {"Text2", "Text3", "Text4"})
        EXPECT_EQ(textOf(box), QStringLiteral("Resultado")) << box;
    scribble();
    click("Text1");
    EXPECT_EQ(textOf("Text4"), QStringLiteral("Resultado"));

    type("Text1", QStringLiteral("45"));
    scribble();
    clickBackground();
    click("Text1");
    EXPECT_EQ(textOf("Text2"), QStringLiteral("x"));
}

TEST_F(CalculatorWindowTest, TrigoWritesTheRegionsDecimalMark)
{
    ScopedDecimalMark comma(u',');
    open("trigo");
    type("Text1", QStringLiteral("30"));
    EXPECT_EQ(textOf("Text3"), QStringLiteral("0,866"));
    type("Text1", QStringLiteral("30,5"));
    EXPECT_EQ(textOf("Text3"), QStringLiteral("0,866")) << "the box is read with a point";
}

// --- radian ------------------------------------------------------------------------

TEST_F(CalculatorWindowTest, RadianConvertsBothWaysAndSwapsTheUnitCaptions)
{
    ScopedDecimalMark point(u'.');
    open("radian");
    EXPECT_EQ(textOf("Label1"), QStringLiteral("Grados - Radianes"));
    EXPECT_EQ(textOf("Command1"), QStringLiteral("A Radianes"));
    EXPECT_EQ(textOf("Command2"), QStringLiteral("A Grados"));

    type("Text1", QStringLiteral("180"));
    click("Command1");
    EXPECT_EQ(textOf("Text2"), QStringLiteral("3.1416"));
    EXPECT_EQ(textOf("Label2"), QStringLiteral("Grados"));
    EXPECT_EQ(textOf("Label3"), QStringLiteral("Radianes"));
    type("Text1", QStringLiteral("3.1416"));
    click("Command2");
    EXPECT_EQ(textOf("Text2"), QStringLiteral("180.0004"));
    EXPECT_EQ(textOf("Label2"), QStringLiteral("Radianes"));
    EXPECT_EQ(textOf("Label3"), QStringLiteral("Grados"));

    click("Label1");
    EXPECT_EQ(textOf("Text1"), QStringLiteral("3.1416"));
    clickBackground();
    for (const char *name : {"Text1", "Text2", "Label2", "Label3"})
        EXPECT_EQ(textOf(name), QString()) << name;

    reopen("radian", &CargarIngles);
    EXPECT_EQ(textOf("Command1"), QStringLiteral("To Radians"));
    type("Text1", QStringLiteral("1"));
    click("Command2");
    EXPECT_EQ(textOf("Text2"), QStringLiteral("57.2958"));
    EXPECT_EQ(textOf("Label2"), QStringLiteral("Radians"));
    EXPECT_EQ(textOf("Label3"), QStringLiteral("Degrees"));

    auto *w = static_cast<RadianWindow *>(window);
    type("Text1", QStringLiteral("1e308"));
    EXPECT_EQ(test::errorNumber([w] { w->command1Click(); }), 6);
}

// --- temperatura -------------------------------------------------------------------

TEST_F(CalculatorWindowTest, TemperaturaConvertsOnEveryChangeOnceAnEntryIsChosen)
{
    ScopedDecimalMark point(u'.');
    open("temperatura");
    auto *combo = get<QComboBox>("Combo1");
    EXPECT_EQ(textOf("Label10"), QStringLiteral("Temperatura"));
    EXPECT_EQ(textOf("Label11"), QStringLiteral("Selecciona el tipo de Conversión:"));
    EXPECT_EQ(textOf("Text9"), QStringLiteral("Resultado"));
    EXPECT_EQ(combo->count(), 6);
    EXPECT_EQ(combo->currentIndex(), -1);

    type("Text8", QStringLiteral("100"));
    EXPECT_EQ(textOf("Text9"), QStringLiteral("Resultado")) << "nothing chosen, nothing done";
    EXPECT_EQ(textOf("Label17"), QString());

    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    ASSERT_EQ(combo->currentText(), QStringLiteral("Celsius - Farenhait"));
    EXPECT_EQ(textOf("Text9"), QStringLiteral("212.0118"));
    EXPECT_EQ(textOf("Label17"), QStringLiteral("C"));
    EXPECT_EQ(textOf("Label15"), QStringLiteral("F"));

    QTest::keyClick(combo, Qt::Key_Down);
    QTest::keyClick(combo, Qt::Key_Down);
    ASSERT_EQ(combo->currentText(), QStringLiteral("Farenhait - Celsius"));
    type("Text8", QStringLiteral("212"));
    EXPECT_EQ(textOf("Text9"), QStringLiteral("99.9882"));
    EXPECT_EQ(textOf("Label17"), QStringLiteral("F"));
    EXPECT_EQ(textOf("Label15"), QStringLiteral("C"));

    reopen("temperatura", &CargarIngles);
    combo = get<QComboBox>("Combo1");
    EXPECT_EQ(combo->itemText(5), QStringLiteral("Kelvin - Farenhait")) << "in every language";
    EXPECT_EQ(textOf("Text9"), QStringLiteral("Result"));
    EXPECT_EQ(textOf("Label12"), QStringLiteral("Initial"));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_End);
    ASSERT_EQ(combo->currentIndex(), 5);
    EXPECT_EQ(textOf("Text9"), QStringLiteral("-459.695515")) << "an empty box reads 0 kelvin";
    EXPECT_EQ(textOf("Label17"), QStringLiteral("K"));
}

TEST_F(CalculatorWindowTest, TemperaturaClicksClearTheBoxesWhileTheInputReadsZero)
{
    open("temperatura");
    auto *combo = get<QComboBox>("Combo1");
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    type("Text8", QStringLiteral("37"));
    click("Label11");
    clickBackground();
    click("Text8");
    EXPECT_EQ(textOf("Text8"), QStringLiteral("37")) << "37 does not read as 0";
    EXPECT_EQ(textOf("Label15"), QStringLiteral("F"));

    type("Text8", QStringLiteral("abc"));
    EXPECT_EQ(textOf("Text9"), QStringLiteral("32.0018"));
    clickBackground();
    EXPECT_EQ(textOf("Text8"), QString());
    EXPECT_EQ(textOf("Label17"), QString());
    EXPECT_EQ(textOf("Label15"), QString());
    EXPECT_EQ(textOf("Text9"), QStringLiteral("Resultado"));

    type("Text8", QStringLiteral("0"));
    click("Text8");
    EXPECT_EQ(textOf("Text8"), QString());
    EXPECT_EQ(textOf("Text9"), QStringLiteral("Resultado"));

    auto *w = static_cast<TemperaturaWindow *>(window);
    get<QLineEdit>("Text8")->blockSignals(true);
    get<QLineEdit>("Text8")->setText(QStringLiteral("1e308"));
    get<QLineEdit>("Text8")->blockSignals(false);
    EXPECT_EQ(test::errorNumber([w] { w->text8Change(); }), 6);
}

// --- bisiesto ----------------------------------------------------------------------

TEST_F(CalculatorWindowTest, BisiestoChecksTheYearOnComprobar)
{
    open("bisiesto");
    EXPECT_EQ(textOf("Label1"), QStringLiteral("Años bisiestos"));
    EXPECT_EQ(textOf("Label2"), QStringLiteral("Año:"));
    EXPECT_EQ(textOf("Command1"), QStringLiteral("Comprobar"));
    EXPECT_EQ(textOf("Command3"), QStringLiteral("Aclaración"));
    const struct {
        const char *ano, *respuesta;
    } rows[] = {
        {"1900", "No es bisiesto"}, {"2000", "Si es bisiesto"},   {"2004", "Si es bisiesto"},
        {"2003", "No es bisiesto"}, {"-4", "Si es bisiesto"},     {"abc", "Error"},
        {"0.0", "Error"},           {"2004.4", "Si es bisiesto"},
    };
    for (const auto &row : rows) {
        type("Text1", QLatin1String(row.ano));
        click("Command1");
        EXPECT_EQ(textOf("Text2"), QLatin1String(row.respuesta)) << row.ano;
    }
    EXPECT_EQ(messageCount(), 0) << "only a plain 0 brings the message";

    reopen("bisiesto", &CargarIngles);
    type("Text1", QStringLiteral("2000"));
    click("Command1");
    EXPECT_EQ(textOf("Text2"), QStringLiteral("It is a leap year"));
    type("Text1", QStringLiteral("1900"));
    click("Command1");
    EXPECT_EQ(textOf("Text2"), QStringLiteral("It is not a leap year"));

    auto *w = static_cast<BisiestoWindow *>(window);
    type("Text1", QStringLiteral("3000000000"));
    EXPECT_EQ(test::errorNumber([w] { w->command1Click(); }), 6);
}

TEST_F(CalculatorWindowTest, BisiestoYearZeroAndTheClarificationAreMessages)
{
    open("bisiesto");
    type("Text1", QStringLiteral("0"));
    click("Command1");
    EXPECT_EQ(textOf("Text2"), QStringLiteral("Error"));
    ASSERT_EQ(messageCount(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].title, QStringLiteral("Error"));
    EXPECT_EQ(fakes().dialogs.messages[0].text,
              QStringLiteral("Lo siento pero por errores de cálculo en la época romana, no se "
                             "puso un año cero. Hace falta ser torpe..."));
    click("Command3");
    ASSERT_EQ(messageCount(), 2);
    EXPECT_EQ(fakes().dialogs.messages[1].title, QStringLiteral("Aclaración"));
    EXPECT_EQ(fakes().dialogs.messages[1].text, texto(slot::BisiestoExplicacion));
    EXPECT_TRUE(fakes().dialogs.messages[1].text.contains(QStringLiteral("gregoriano")));

    reopen("bisiesto", &CargarIngles);
    type("Text1", QStringLiteral("0"));
    click("Command1");
    ASSERT_EQ(messageCount(), 3);
    EXPECT_EQ(fakes().dialogs.messages[2].title, QStringLiteral("Error"));
    EXPECT_TRUE(fakes().dialogs.messages[2].text.startsWith(QStringLiteral("Sorry")));
    click("Command3");
    EXPECT_EQ(fakes().dialogs.messages[3].title, QStringLiteral("Clarification"));
}

} // namespace
} // namespace zafro
