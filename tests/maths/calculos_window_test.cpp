#include "error_number.h"
#include "fakes.h"
#include "maths/areas_window.h"
#include "maths/diferencial_window.h"
#include "maths/loga_window.h"
#include "maths/prestamo_window.h"
#include "maths/seggrado_window.h"
#include "maths/sucesiones_window.h"
#include "runtime/region.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QApplication>
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

const char *const kTools[] = {"seggrado", "sucesiones", "diferencial", "loga", "areas", "prestamo"};

class ToolWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
    }
    template <typename T = QWidget> T *open(const char *name)
    {
        window = forms().show(QLatin1String(name));
        return qobject_cast<T *>(window);
    }
    template <typename T = QLineEdit> T *get(const char *name) const
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
        get(box)->clear();
        QTest::keyClicks(get(box), text);
    }
    void fill(std::initializer_list<std::pair<const char *, QString>> boxes)
    {
        for (const auto &[box, text] : boxes)
            type(box, text);
    }
    void click(const char *name) { QTest::mouseClick(get<QWidget>(name), Qt::LeftButton); }
    void clickBackground() { QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(3, 3)); }
    QString pictures() const
    {
        QStringList shown;
        for (const FiguraArea &figura : figurasArea())
            if (get<QLabel>(figura.imagen)->isVisible())
                shown << QLatin1String(figura.imagen);
        return shown.join(u' ');
    }
    // Results showing, for the screenshots and the fit of what they show.
    void typeSample(const QString &tool)
    {
        if (tool == u"seggrado"_s) {
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

    QWidget *window = nullptr;
};

TEST_F(ToolWindowTest, TheLauncherOpensEachToolAndRaisesItWithoutReloading)
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

// The frame of the six windows, and every caption fitting its control in the three
// languages and two skins with results showing. With ZAFRO_SHOT_DIR set, each window
// is saved there as a picture to look at.
TEST_F(ToolWindowTest, EachWindowHasItsFrameAndEveryCaptionFits)
{
    const QString shots = qEnvironmentVariable("ZAFRO_SHOT_DIR");
    const struct {
        const char *name, *title, *close, *about;
        int interval;
    } frames[] = {{"seggrado", "", "Command1", "Command2", 100},
                  {"sucesiones", "Label1", "Command6", "Command2", 100},
                  {"diferencial", "Label1", "Command4", "Command3", 100},
                  {"loga", "Label1", "Command2", "Command1", 100},
                  {"areas", "Label99", "Command1", "Command2", 200},
                  {"prestamo", "Label5", "Command2", "Command1", 100}};
    const struct {
        void (*loader)();
        const char *code;
    } languages[] = {{&CargarEspanol, "es"}, {&CargarIngles, "en"}, {&CargarValenciano, "va"}};
    for (int skin : {1, 7}) {
        guardarSkin(skin);
        const BuiltInSkin *colours = builtInSkin(skin);
        for (const auto &language : languages) {
            language.loader();
            for (const auto &row : frames) {
                const std::string where = std::string(row.name) + " " + language.code;
                open(row.name);
                EXPECT_EQ(window->findChild<QTimer *>(u"Timer1"_s)->interval(), row.interval);
                for (QLabel *label : window->findChildren<QLabel *>()) {
                    const bool title = label->objectName() == QLatin1String(row.title);
                    EXPECT_EQ(
                        label->palette().color(QPalette::WindowText),
                        colourFromNumber(title ? colours->tituloForeColor : colours->foreColor))
                        << where << " " << label->objectName().toStdString();
                }
                EXPECT_EQ(get<QPushButton>(row.close)->text(), texto(slot::Cerrar)) << where;
                EXPECT_EQ(get<QPushButton>(row.about)->text(), texto(slot::AcercaDe)) << where;
                typeSample(QLatin1String(row.name));
                for (QLabel *label : window->findChildren<QLabel *>())
                    EXPECT_LE(label->sizeHint().width(), label->width())
                        << where << " " << label->objectName().toStdString();
                for (QPushButton *button : window->findChildren<QPushButton *>())
                    EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()) + 8,
                              button->width())
                        << where << " " << button->objectName().toStdString();
                for (QLineEdit *box : window->findChildren<QLineEdit *>())
                    EXPECT_LE(box->fontMetrics().horizontalAdvance(box->text()) + 6, box->width())
                        << where << " " << box->objectName().toStdString();
                if (!shots.isEmpty())
                    window->grab().save(
                        QDir(shots).filePath(u"%1-skin%2-%3.png"_s.arg(QLatin1String(row.name))
                                                 .arg(skin)
                                                 .arg(QLatin1String(language.code))));
                if (skin == 1 && language.code == std::string("es")) {
                    click(row.about);
                    EXPECT_NE(forms().find(u"acercade"_s), nullptr) << row.name;
                    forms().unload(u"acercade"_s);
                    click(row.close);
                    EXPECT_EQ(forms().find(QLatin1String(row.name)), nullptr) << row.name;
                }
                forms().unload(QLatin1String(row.name));
            }
        }
    }
}

TEST_F(ToolWindowTest, SeggradoSolvesRefusesNoAAndEmptiesOnTheBackground)
{
    auto *w = open<SeggradoWindow>("seggrado");
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

TEST_F(ToolWindowTest, SucesionesAnnouncesGeometricButComputesArithmetic)
{
    auto *w = open<SucesionesWindow>("sucesiones");
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

TEST_F(ToolWindowTest, DiferencialAndLogaWithTheirPlaceholders)
{
    auto *w = open<DiferencialWindow>("diferencial");
    EXPECT_TRUE(get("Text3")->isReadOnly() && get("Text4")->isReadOnly());
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

TEST_F(ToolWindowTest, AreasChoosesFiguresAndKeepsTheirPictures)
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
            enabled += get(("Text" + std::string(k)).c_str())->isEnabled() ? u'1' : u'0';
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

TEST_F(ToolWindowTest, PrestamoShowsThePaymentOrTheMessageAndFiltersKeys)
{
    auto *w = open<PrestamoWindow>("prestamo");
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    fill({{"Capital", u"1000"_s}, {"InteresesGenerados", u"12"_s}});
    click("CalCularDatos");
    ASSERT_EQ(fakes().dialogs.messages.size(), 1) << "an empty Meses counts as 0";
    EXPECT_EQ(fakes().dialogs.messages[0].text, u"El número de meses no puede ser 0"_s);
    EXPECT_EQ(fakes().dialogs.messages[0].style, 16);
    EXPECT_EQ(fakes().dialogs.messages[0].title, u"Error"_s);
    EXPECT_EQ(QApplication::focusWidget(), get("Meses"));
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
    QTest::keyClick(get("Capital"), Qt::Key_Backspace);
    EXPECT_EQ(textOf("Capital"), u"12.5."_s);
    get("Capital")->setFocus();
    for (const char *next : {"InteresesGenerados", "Meses", "CalCularDatos"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), get<QWidget>(next));
    }
    type("Meses", u"40000"_s);
    EXPECT_EQ(test::errorNumber([w] { w->calCularDatosClick(); }), 6);
}

} // namespace
} // namespace zafro
