#include "error_number.h"
#include "fakes.h"
#include "maths/areas_window.h"
#include "maths/bisiesto_window.h"
#include "maths/calculadora_window.h"
#include "maths/diferencial_window.h"
#include "maths/loga_window.h"
#include "maths/prestamo_window.h"
#include "maths/radian_window.h"
#include "maths/seggrado_window.h"
#include "maths/sucesiones_window.h"
#include "maths/temperatura_window.h"
#include "runtime/region.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"
#include "window_test.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QTimer>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::errorNumber;
using test::fakes;

// The frame of the eleven calculator windows: their title label, close and about buttons
// and the title animation's interval.
const struct Frame {
    const char *name, *title, *close, *about;
    int interval;
} kFrames[] = {
    {"calculadora", "Label3", "Command1", "Command2", 200},
    {"trigo", "Label1", "Command1", "Command2", 100},
    {"radian", "Label1", "Command3", "Command4", 100},
    {"temperatura", "Label10", "Command1", "Command2", 100},
    {"bisiesto", "Label1", "Command2", "Command4", 100},
    {"seggrado", "", "Command1", "Command2", 100},
    {"sucesiones", "Label1", "Command6", "Command2", 100},
    {"diferencial", "Label1", "Command4", "Command3", 100},
    {"loga", "Label1", "Command2", "Command1", 100},
    {"areas", "Label99", "Command1", "Command2", 200},
    {"prestamo", "Label5", "Command2", "Command1", 100},
};

// The windows wired to their logic: value checks live in calculators_test.cpp and
// calculos_test.cpp.
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
    QLineEdit *box(const char *name) const { return get<QLineEdit>(name); }
    void fill(std::initializer_list<std::pair<const char *, QString>> boxes)
    {
        for (const auto &[name, text] : boxes)
            type(name, text);
    }
    void operate(const char *a, const char *button, const char *b)
    {
        fill({{"Text2", QString::fromUtf8(a)}, {"Text3", QString::fromUtf8(b)}});
        click(button);
    }
    // Results showing, for the screenshots and the fit of what they show.
    void typeSample(const QString &tool)
    {
        if (tool == u"calculadora"_s) {
            operate("2", "Command8", "10");
        } else if (tool == u"trigo"_s) {
            type("Text1", u"-90"_s);
        } else if (tool == u"radian"_s || tool == u"bisiesto"_s) {
            type("Text1", u"180"_s);
            click("Command1");
        } else if (tool == u"temperatura"_s) {
            get<QComboBox>("Combo1")->setCurrentIndex(5);
            type("Text8", u"100"_s);
        } else if (tool == u"seggrado"_s) {
            fill({{"Text1", u"1"_s}, {"Text2", u"2"_s}, {"Text3", u"5"_s}});
            click("Command3");
        } else if (tool == u"sucesiones"_s) {
            fill({{"Text1", u"1"_s}, {"Text2", u"10"_s}, {"Text3", u"0"_s}, {"Text4", u"0"_s}});
            click("Command4");
            fill({{"Text3", u"1"_s}});
            click("Command4");
        } else if (tool == u"diferencial"_s) {
            fill({{"Text1", u"3"_s}, {"Text2", u"2"_s}});
            click("Command2");
        } else if (tool == u"loga"_s) {
            fill({{"Text1", u"100"_s}});
        } else if (tool == u"areas"_s) {
            for (const FiguraArea &figura : figurasArea())
                click(figura.boton);
            fill({{"Text1", u"2"_s}, {"Text2", u"3"_s}});
            click("Command3");
        } else {
            fill({{"Capital", u"1000"_s}, {"InteresesGenerados", u"12"_s}, {"Meses", u"12"_s}});
            click("CalCularDatos");
        }
    }
    // Which of Hex, Dec, Bin are enabled, as "101".
    QString convs() const
    {
        QString s;
        for (const char *name : {"Conv1", "Conv2", "Conv3"})
            s += get<QPushButton>(name)->isEnabled() ? u'1' : u'0';
        return s;
    }
    QString pictures() const
    {
        QStringList shown;
        for (const FiguraArea &figura : figurasArea())
            if (get<QLabel>(figura.imagen)->isVisible())
                shown << QLatin1String(figura.imagen);
        return shown.join(u' ');
    }
    qsizetype messageCount() const { return fakes().dialogs.messages.size(); }
};

TEST_F(CalculatorWindowTest, EachWindowHasItsFrameCloseAndAbout)
{
    const BuiltInSkin *skin = builtInSkin(7);
    ASSERT_NE(skin, nullptr);
    guardarSkin(7);
    for (const Frame &row : kFrames) {
        SCOPED_TRACE(row.name);
        open(row.name);
        EXPECT_EQ(get<QTimer>("Timer1")->interval(), row.interval);
        EXPECT_EQ(window->palette().color(QPalette::Window), colourFromNumber(skin->backColor));
        for (QLabel *label : window->findChildren<QLabel *>()) {
            const bool title = label->objectName() == QLatin1String(row.title);
            EXPECT_EQ(label->palette().color(QPalette::WindowText),
                      colourFromNumber(title ? skin->tituloForeColor : skin->foreColor))
                << label->objectName().toStdString();
        }
        EXPECT_EQ(textOf(row.close) + textOf(row.about), u"CerrarAcerca de"_s);
        click(row.about);
        EXPECT_NE(forms().find(u"acercade"_s), nullptr);
        EXPECT_EQ(forms().find(QLatin1String(row.name)), window) << "the tool stays open";
        forms().unload(u"acercade"_s);
        click(row.close);
        EXPECT_EQ(forms().find(QLatin1String(row.name)), nullptr);
    }
    writeConfig(u"ForeColor"_s, QString(), u"Colores"_s);
    for (const Frame &row : kFrames) {
        EXPECT_EQ(errorNumber([&] { forms().show(QLatin1String(row.name)); }), 13)
            << row.name << ": an absent skin stops the load";
        forms().unloadAll();
    }
}

// Every caption fits its control in the three languages and both skins, with results
// showing. With ZAFRO_SHOT_DIR set, each window is also saved there as a picture.
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
            for (const Frame &row : kFrames) {
                SCOPED_TRACE(std::string(row.name) + " " + language.code);
                open(row.name);
                typeSample(QLatin1String(row.name));
                for (QLabel *label : window->findChildren<QLabel *>())
                    EXPECT_LE(label->sizeHint().width(), label->width())
                        << label->objectName().toStdString();
                for (QPushButton *button : window->findChildren<QPushButton *>())
                    EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()) + 8,
                              button->width())
                        << button->objectName().toStdString();
                for (QLineEdit *box : window->findChildren<QLineEdit *>())
                    EXPECT_LE(box->fontMetrics().horizontalAdvance(box->text()) + 6, box->width())
                        << box->objectName().toStdString();
                for (QWidget *w : window->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
                    EXPECT_TRUE(window->rect().contains(w->geometry()))
                        << w->objectName().toStdString();
                if (!shots.isEmpty())
                    window->grab().save(QDir(shots).filePath(
                        u"%1-skin%2-%3.png"_s.arg(QLatin1String(row.name), QString::number(skin),
                                                  QLatin1String(language.code))));
                forms().unload(QLatin1String(row.name));
            }
        }
    }
}

TEST_F(CalculatorWindowTest, TheLauncherOpensEachToolAndRaisesItWithoutReloading)
{
    writeConfig(u"Visitado"_s, u"5"_s);
    auto *index = qobject_cast<IndexWindow *>(forms().show(u"index"_s));
    ASSERT_NE(index, nullptr);
    const struct {
        const char *label, *tool, *metaName;
    } rows[] = {{"Labelcom2", "seggrado", "zafro::SeggradoWindow"},
                {"Labelcom9", "sucesiones", "zafro::SucesionesWindow"},
                {"Labelcom4b", "diferencial", "zafro::DiferencialWindow"},
                {"Labelcom8", "loga", "zafro::LogaWindow"},
                {"Labelcom6", "areas", "zafro::AreasWindow"},
                {"Labelcom9b", "prestamo", "zafro::PrestamoWindow"}};
    for (const auto &row : rows) {
        index->labelClick(QLatin1String(row.label));
        window = forms().find(QLatin1String(row.tool));
        ASSERT_NE(window, nullptr) << row.label;
        EXPECT_STREQ(window->metaObject()->className(), row.metaName);
        auto *box = window->findChildren<QLineEdit *>().constFirst();
        box->setText(u"typed"_s);
        index->labelClick(QLatin1String(row.label));
        EXPECT_EQ(forms().find(QLatin1String(row.tool)), window) << row.tool;
        EXPECT_EQ(box->text(), u"typed"_s) << row.tool << " was loaded again";
    }
}

TEST_F(CalculatorWindowTest, CalculadoraOperatesAndConvertsFromTheBaseItBelieves)
{
    ScopedDecimalMark point(u'.');
    open("calculadora");
    EXPECT_EQ(textOf("Text2") + textOf("Text4"), u"NUMº 1RESULTADO"_s);
    EXPECT_EQ(convs(), u"101"_s);
    const struct {
        const char *a, *button, *b, *resultado, *signo;
    } rows[] = {{"abc", "Command3", "7xyz", "7", "+"},
                {"2", "Command4", "3.5", "-1.5", "-"},
                {"1e10", "Command5", "1e10", "1E+20", "x"},
                {"1", "Command6", "3", "0.333333333333333", "/"},
                {"1,5", "Command5", "2", "2", "x"},
                {"2", "Command8", "10", "1024", "^"}};
    for (const auto &row : rows) {
        operate(row.a, row.button, row.b);
        EXPECT_EQ(textOf("Text4") + textOf("Label9"), QString::fromUtf8(row.resultado) + row.signo)
            << row.a << row.signo << row.b;
    }
    // 1024 through the three bases and back, each button disabling itself.
    const struct {
        const char *button, *resultado, *convs;
    } bases[] = {{"Conv1", "400", "011"},
                 {"Conv3", "10000000000", "110"},
                 {"Conv2", "1024", "101"},
                 {"Conv1", "400", "011"}};
    for (const auto &step : bases) {
        click(step.button);
        EXPECT_EQ(textOf("Text4") + convs(), QString::fromUtf8(step.resultado) + step.convs)
            << step.button;
    }
    // An operation enables all but Dec again, yet "12" is still believed hexadecimal.
    operate("5", "Command3", "7");
    EXPECT_EQ(convs(), u"101"_s);
    click("Conv3");
    EXPECT_EQ(textOf("Text4"), u"10010"_s);
    EXPECT_EQ(messageCount(), 0);
}

TEST_F(CalculatorWindowTest, CalculadoraTellsDivisionByZeroAndZeroToTheZeroAndChangesNothing)
{
    open("calculadora");
    operate("6", "Command5", "7");
    click("Conv1");
    ASSERT_EQ(textOf("Text4") + convs(), u"2A011"_s);
    operate("5", "Command6", "0");
    operate("0", "Command8", "abc");
    ASSERT_EQ(messageCount(), 2);
    EXPECT_EQ(fakes().dialogs.messages[0].title, u"División por cero"_s);
    EXPECT_EQ(fakes().dialogs.messages[0].text, u"No se puede dividir por cero, lo siento"_s);
    EXPECT_EQ(fakes().dialogs.messages[1].title, u"Indeterminación"_s);
    EXPECT_EQ(fakes().dialogs.messages[1].text,
              QStringLiteral("Se produce una indeterminación matemática, sería necesario "
                             "resolverlo por límites"));
    EXPECT_EQ(textOf("Text4") + textOf("Label9"), u"2Ax"_s);
    EXPECT_EQ(convs(), u"101"_s) << "the buttons are reset all the same";

    reopen("calculadora", &CargarIngles);
    EXPECT_EQ(textOf("Text4"), u"RESULT"_s);
    operate("1", "Command6", "0");
    EXPECT_EQ(fakes().dialogs.messages.last().title, u"División por cero"_s)
        << "the messages are the tool's own, in Spanish";
}

TEST_F(CalculatorWindowTest, CalculadoraClicksEmptyBoxesAndTheBackgroundRestoresZeroes)
{
    open("calculadora");
    click("Text2");
    EXPECT_EQ(textOf("Text2"), QString()) << "a click in a number box empties it";
    type("Text3", u"7"_s);
    click("Text3");
    EXPECT_EQ(textOf("Text3"), QString()) << "whatever it holds";
    type("Text3", u"7"_s);
    type("Text4", u"0.0"_s);
    click("Label9");
    EXPECT_EQ(textOf("Text2"), QString()) << "a click on a label is not one on the window";
    clickBackground();
    EXPECT_EQ(textOf("Text2") + textOf("Text3") + textOf("Text4"), u"NUMº 17RESULTADO"_s);

    operate("-1", "Command4", "0");
    click("Conv1");
    ASSERT_EQ(textOf("Text4"), u"FFFFFFFF"_s);
    clickBackground();
    EXPECT_EQ(textOf("Text4"), u"RESULTADO"_s) << "a hexadecimal word reads as 0";
}

TEST_F(CalculatorWindowTest, CalculadoraRuntimeErrorsAndTheRegionsForm)
{
    auto *w = static_cast<CalculadoraWindow *>(open("calculadora"));
    EXPECT_EQ(errorNumber([w] { w->conv3Click(); }), 13) << "\"RESULTADO\" is no number";
    operate("3000000000", "Command3", "0");
    EXPECT_EQ(errorNumber([w] { w->conv1Click(); }), 6) << "beyond 32 bits";
    type("Text2", u"1e308"_s);
    type("Text3", u"10"_s);
    EXPECT_EQ(errorNumber([w] { w->command5Click(); }), 6);

    ScopedDecimalMark comma(u',');
    operate("7", "Command6", "2");
    EXPECT_EQ(textOf("Text4"), u"3,5"_s);
    click("Conv1");
    EXPECT_EQ(textOf("Text4"), u"3"_s) << "Val stops at the comma";
}

TEST_F(CalculatorWindowTest, TrigoWorksOutTheRatiosAtEveryKeyAndResetsWhenEmpty)
{
    open("trigo");
    const auto ratios = [this] {
        return textOf("Text2") + '|' + textOf("Text3") + '|' + textOf("Text4");
    };
    EXPECT_EQ(ratios(), u"Resultado|Resultado|Resultado"_s);
    {
        ScopedDecimalMark comma(u',');
        QTest::keyClicks(get<QLineEdit>("Text1"), u"3"_s);
        EXPECT_EQ(textOf("Text2"), u"0,0523"_s) << "at every key";
        QTest::keyClicks(get<QLineEdit>("Text1"), u"0,5"_s);
        EXPECT_EQ(textOf("Text3"), u"0,866"_s) << "the box is read with a point";
    }
    type("Text1", u"90"_s);
    EXPECT_EQ(ratios(), u"1|0|Error"_s);
    QTest::keyClick(get<QLineEdit>("Text1"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(get<QLineEdit>("Text1"), Qt::Key_Backspace);
    EXPECT_EQ(ratios(), u"Resultado|Resultado|Resultado"_s);

    // Clicks put "Resultado" back only while the angle is empty.
    const auto scribble = [this] {
        for (const char *box : {"Text2", "Text3", "Text4"})
            get<QLineEdit>(box)->setText(u"x"_s);
    };
    scribble();
    click("Label2");
    EXPECT_EQ(ratios(), u"x|x|x"_s);
    clickBackground();
    EXPECT_EQ(ratios(), u"Resultado|Resultado|Resultado"_s);
    scribble();
    click("Text1");
    EXPECT_EQ(textOf("Text4"), u"Resultado"_s);
    type("Text1", u"45"_s);
    scribble();
    clickBackground();
    click("Text1");
    EXPECT_EQ(ratios(), u"x|x|x"_s);

    reopen("trigo", &CargarIngles);
    EXPECT_EQ(textOf("Label3"), u"Sine"_s);
    type("Text1", u"9"_s);
    type("Text1", QString());
    EXPECT_EQ(textOf("Text4"), u"Result"_s);
}

TEST_F(CalculatorWindowTest, RadianConvertsBothWaysAndSwapsTheUnitCaptions)
{
    ScopedDecimalMark point(u'.');
    auto *w = static_cast<RadianWindow *>(open("radian"));
    type("Text1", u"180"_s);
    click("Command1");
    EXPECT_EQ(textOf("Text2") + textOf("Label2") + textOf("Label3"), u"3.1416GradosRadianes"_s);
    type("Text1", u"3.1416"_s);
    click("Command2");
    EXPECT_EQ(textOf("Text2") + textOf("Label2") + textOf("Label3"), u"180.0004RadianesGrados"_s);
    click("Label1");
    EXPECT_EQ(textOf("Text1"), u"3.1416"_s);
    clickBackground();
    for (const char *name : {"Text1", "Text2", "Label2", "Label3"})
        EXPECT_EQ(textOf(name), QString()) << name;
    type("Text1", u"1e308"_s);
    EXPECT_EQ(errorNumber([w] { w->command1Click(); }), 6);

    reopen("radian", &CargarIngles);
    type("Text1", u"1"_s);
    click("Command2");
    EXPECT_EQ(textOf("Label2") + textOf("Label3"), u"RadiansDegrees"_s);
}

TEST_F(CalculatorWindowTest, TemperaturaConvertsOnEveryChangeOnceAnEntryIsChosen)
{
    ScopedDecimalMark point(u'.');
    auto *w = static_cast<TemperaturaWindow *>(open("temperatura"));
    auto *combo = get<QComboBox>("Combo1");
    EXPECT_EQ(combo->currentIndex(), -1);
    type("Text8", u"100"_s);
    EXPECT_EQ(textOf("Text9") + textOf("Label17"), u"Resultado"_s)
        << "nothing chosen, nothing done";
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(textOf("Text9") + textOf("Label17") + textOf("Label15"), u"212.0118CF"_s);
    type("Text8", u"37"_s);
    click("Label11");
    clickBackground();
    click("Text8");
    EXPECT_EQ(textOf("Text8") + textOf("Label15"), u"37F"_s) << "37 is not 0";

    type("Text8", u"abc"_s);
    EXPECT_EQ(textOf("Text9"), u"32.0018"_s);
    clickBackground();
    EXPECT_EQ(textOf("Text8") + textOf("Label17") + textOf("Label15") + textOf("Text9"),
              u"Resultado"_s)
        << "a box reading 0 clears them all";
    type("Text8", u"0"_s);
    click("Text8");
    EXPECT_EQ(textOf("Text8") + textOf("Text9"), u"Resultado"_s);
    get<QLineEdit>("Text8")->blockSignals(true);
    get<QLineEdit>("Text8")->setText(u"1e308"_s);
    get<QLineEdit>("Text8")->blockSignals(false);
    EXPECT_EQ(errorNumber([w] { w->text8Change(); }), 6);

    reopen("temperatura", &CargarIngles);
    combo = get<QComboBox>("Combo1");
    EXPECT_EQ(combo->itemText(5), u"Kelvin - Farenhait"_s) << "in every language";
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_End);
    EXPECT_EQ(textOf("Text9") + textOf("Label17"), u"-459.695515K"_s)
        << "an empty box reads 0 kelvin";
}

TEST_F(CalculatorWindowTest, BisiestoAnswersOnComprobarAndTellsYearZeroAndTheClarification)
{
    auto *w = static_cast<BisiestoWindow *>(open("bisiesto"));
    const struct {
        const char *ano, *respuesta;
    } rows[] = {{"1900", "No es bisiesto"}, {"2004.4", "Si es bisiesto"}, {"0.0", "Error"}};
    for (const auto &row : rows) {
        type("Text1", QLatin1String(row.ano));
        click("Command1");
        EXPECT_EQ(textOf("Text2"), QString::fromUtf8(row.respuesta)) << row.ano;
    }
    EXPECT_EQ(messageCount(), 0) << "only a plain 0 brings the message";
    type("Text1", u"0"_s);
    click("Command1");
    click("Command3");
    ASSERT_EQ(messageCount(), 2);
    EXPECT_EQ(fakes().dialogs.messages[0].title, u"Error"_s);
    EXPECT_EQ(fakes().dialogs.messages[0].text,
              QStringLiteral("Lo siento pero por errores de cálculo en la época romana, no se "
                             "puso un año cero. Hace falta ser torpe..."));
    EXPECT_EQ(fakes().dialogs.messages[1].title, u"Aclaración"_s);
    EXPECT_EQ(fakes().dialogs.messages[1].text, texto(slot::BisiestoExplicacion));
    type("Text1", u"3000000000"_s);
    EXPECT_EQ(errorNumber([w] { w->command1Click(); }), 6);

    reopen("bisiesto", &CargarIngles);
    type("Text1", u"2000"_s);
    click("Command1");
    EXPECT_EQ(textOf("Text2"), u"It is a leap year"_s);
    type("Text1", u"0"_s);
    click("Command1");
    click("Command3");
    ASSERT_EQ(messageCount(), 4);
    EXPECT_TRUE(fakes().dialogs.messages[2].text.startsWith(u"Sorry"_s));
    EXPECT_EQ(fakes().dialogs.messages[3].title, u"Clarification"_s);
}

TEST_F(CalculatorWindowTest, SeggradoSolvesRefusesNoAAndEmptiesOnTheBackground)
{
    auto *w = static_cast<SeggradoWindow *>(open("seggrado"));
    fill({{"Text1", u"1"_s}, {"Text2", u"0"_s}, {"Text3", u"1"_s}});
    click("Command3");
    EXPECT_EQ(std::tuple(textOf("Text4"), textOf("Text5"), textOf("Text7")),
              std::tuple(u"0 + 1i"_s, u"0 + -1i"_s, texto(slot::NumeroImaginario)));
    type("Text2", u"2"_s);
    click("Command3");
    EXPECT_EQ(std::tuple(textOf("Text4"), textOf("Text5"), textOf("Text7")),
              std::tuple(u"-1"_s, u"-1"_s, QString()));
    type("Text1", u"0"_s);
    click("Command3");
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].text, u"El coeficiente 'a' no puede ser cero"_s);
    EXPECT_EQ(fakes().dialogs.messages[0].title, u"Error"_s);
    EXPECT_EQ(textOf("Text4"), u"-1"_s) << "the boxes keep what they held";

    clickBackground();
    for (const char *box : {"Text1", "Text2", "Text3", "Text4", "Text5", "Text7"})
        EXPECT_EQ(textOf(box), QString()) << box;
    ScopedDecimalMark comma(u',');
    fill({{"Text1", u"1"_s}, {"Text2", u"1"_s}, {"Text3", u"0.3"_s}});
    EXPECT_EQ(test::errorNumber([w] { w->command3Click(); }), 5);
}

TEST_F(CalculatorWindowTest, SucesionesAnnouncesGeometricButComputesArithmetic)
{
    auto *w = static_cast<SucesionesWindow *>(open("sucesiones"));
    EXPECT_EQ(std::pair(textOf("Label5"), textOf("Label4")), std::pair(u"D="_s, u"Aritmética"_s));
    click("Command3");
    EXPECT_EQ(std::pair(textOf("Label5"), textOf("Label4")), std::pair(u"R="_s, u"Geométrica"_s));
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].text, texto(slot::GeometricasNoDisponibles));
    fill({{"Text1", u"1"_s}, {"Text2", u"10"_s}, {"Text3", u"1"_s}});
    click("Command5");
    EXPECT_EQ(textOf("Text4"), u"10"_s) << "still arithmetic";
    type("Text1", u"0"_s);
    click("Command5");
    EXPECT_EQ(std::pair(textOf("Label7"), textOf("Text4")),
              std::pair(u"No hay datos"_s, QString()));

    fill({{"Text1", u"1"_s}, {"Text3", u"0"_s}, {"Text4", u"10"_s}});
    click("Command4");
    EXPECT_EQ(std::tuple(textOf("Label7"), textOf("Text5"), textOf("Text3")),
              std::tuple(QString(), u"55"_s, u"1"_s));
    click("Command1");
    EXPECT_EQ(textOf("Label5"), u"D="_s);
    fill({{"Text2", u"1"_s}, {"Text3", u"0"_s}});
    EXPECT_EQ(test::errorNumber([w] { w->command4Click(); }), 11);
}

TEST_F(CalculatorWindowTest, DiferencialAndLogaWithTheirPlaceholders)
{
    auto *w = static_cast<DiferencialWindow *>(open("diferencial"));
    EXPECT_TRUE(box("Text3")->isReadOnly() && box("Text4")->isReadOnly());
    click("Text1");
    EXPECT_EQ(textOf("Text1"), QString()) << "NUMERO goes away";
    fill({{"Text1", u"3"_s}, {"Text2", u"2"_s}});
    click("Command1");
    EXPECT_EQ(std::pair(textOf("Text3"), textOf("Text4")), std::pair(u"6"_s, u"1"_s));
    click("Command2");
    EXPECT_EQ(std::pair(textOf("Text3"), textOf("Text4")), std::pair(u"1"_s, u"3"_s));
    click("Text4");
    EXPECT_EQ(textOf("Text4"), QString()) << "a read-only box empties too";
    clickBackground();
    EXPECT_EQ(std::pair(textOf("Text1"), textOf("Text4")), std::pair(u"NUMERO"_s, u"10"_s));
    type("Text2", u"-1"_s);
    EXPECT_EQ(test::errorNumber([w] { w->command2Click(); }), 6) << "NUMERO/0 is 0/0";

    open("loga");
    EXPECT_EQ(textOf("Text4"), u"10"_s);
    type("Text1", u"100"_s);
    EXPECT_EQ(std::pair(textOf("Text2"), textOf("Text3")), std::pair(u"2"_s, u"4.6052"_s));
    type("Text4", u"2"_s);
    EXPECT_EQ(textOf("Text2"), u"6.6439"_s) << "the base's change recomputes too";
    clickBackground();
    EXPECT_EQ(std::pair(textOf("Text1"), textOf("Text4")), std::pair(u"NUMERO"_s, u"10"_s));
    EXPECT_EQ(textOf("Text2"), u"Inválido"_s);
    type("Text1", u"1"_s);
    click("Text1");
    EXPECT_EQ(std::pair(textOf("Text1"), textOf("Text3")), std::pair(QString(), u"Inválido"_s));
}

TEST_F(CalculatorWindowTest, AreasChoosesFiguresAndKeepsTheirPictures)
{
    open("areas");
    click("Command3");
    EXPECT_EQ(textOf("Text99"), u"RESULTADO"_s) << "no figure chosen, nothing";
    for (const FiguraArea &figura : figurasArea())
        EXPECT_FALSE(get<QLabel>(figura.imagen)->pixmap().isNull()) << figura.imagen;
    const struct {
        const char *button, *caption, *number, *labels, *pictures, *enabled, *area;
    } rows[] = {
        {"Command20", "Área  del T. de Cono", "7", "Radio MAYOR:|radio menor:|g:|", "troncocono",
         "1110", "18.849558"},
        {"Command21", "Área del Octoedro", "9", "arista:|||", "troncocono octaedro", "1000",
         "3.4641"},
        {"Command17", "Área del Rombo", "18", "d:|d':||", "troncocono octaedro rombo", "1100",
         "0.5"},
    };
    for (const auto &row : rows) {
        click(row.button);
        EXPECT_EQ(std::pair(textOf("Label55"), textOf("Label56")),
                  std::pair(QString::fromUtf8(row.caption), QString::fromLatin1(row.number)));
        QStringList labels;
        QString enabled;
        for (const char *k : {"1", "2", "3", "4"}) {
            labels << textOf(("Label" + std::string(k)).c_str());
            enabled += box(("Text" + std::string(k)).c_str())->isEnabled() ? u'1' : u'0';
        }
        EXPECT_EQ(labels.join(u'|'), QString::fromUtf8(row.labels));
        EXPECT_EQ(enabled, QLatin1String(row.enabled)) << row.button;
        EXPECT_EQ(pictures(), QLatin1String(row.pictures)) << "earlier pictures stay";
        fill({{"Text1", u"1"_s}, {"Text2", u"1"_s}, {"Text3", u"2"_s}});
        click("Command3");
        EXPECT_EQ(textOf("Text99"), QLatin1String(row.area)) << row.button;
    }
    click("Command98");
    EXPECT_EQ(pictures(), QString());

    type("Text2", u"0.0"_s);
    click("Label55");
    EXPECT_EQ(textOf("Text2"), u"0.0"_s) << "a label is not the background";
    clickBackground();
    EXPECT_EQ(std::tuple(textOf("Text1"), textOf("Text2"), textOf("Text4")),
              std::tuple(u"1"_s, u"Dato 2"_s, u"Dato 4"_s));
    click("Text2");
    EXPECT_EQ(textOf("Text2"), QString());
}

TEST_F(CalculatorWindowTest, PrestamoShowsThePaymentOrTheMessageAndFiltersKeys)
{
    auto *w = static_cast<PrestamoWindow *>(open("prestamo"));
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    fill({{"Capital", u"1000"_s}, {"InteresesGenerados", u"12"_s}});
    click("CalCularDatos");
    ASSERT_EQ(fakes().dialogs.messages.size(), 1) << "an empty Meses counts as 0";
    EXPECT_EQ(fakes().dialogs.messages[0].text, u"El número de meses no puede ser 0"_s);
    EXPECT_EQ(fakes().dialogs.messages[0].style, 16);
    EXPECT_EQ(fakes().dialogs.messages[0].title, u"Error"_s);
    EXPECT_EQ(QApplication::focusWidget(), box("Meses"));
    EXPECT_EQ(textOf("Apagar"), QString());

    type("Meses", u"12"_s);
    click("CalCularDatos");
    EXPECT_EQ(textOf("Apagar"), u"88.85"_s);
    EXPECT_FLOAT_EQ(w->cuotaMensual(), 88.85f) << "takes back the value shown";
    type("Capital", u"-1000"_s);
    click("CalCularDatos");
    EXPECT_EQ(textOf("Apagar"), u"88.85"_s) << "a negative payment is not shown";

    type("Capital", u"1a,2.5.-5"_s);
    EXPECT_EQ(textOf("Capital"), u"12.5.5"_s);
    QTest::keyClick(box("Capital"), Qt::Key_Backspace);
    EXPECT_EQ(textOf("Capital"), u"12.5."_s);
    box("Capital")->setFocus();
    for (const char *next : {"InteresesGenerados", "Meses", "CalCularDatos"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), get(next));
    }
    type("Meses", u"40000"_s);
    EXPECT_EQ(test::errorNumber([w] { w->calCularDatosClick(); }), 6);
}

} // namespace
} // namespace zafro
