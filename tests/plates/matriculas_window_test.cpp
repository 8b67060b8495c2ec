#include "fakes.h"
#include "plates/matriculas_window.h"
#include "plates_data.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include "window_test.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

namespace zafro {
namespace {

using test::fakes;

const QString kSub = QStringLiteral("Matriculas");

class MatriculasTest : public test::WindowTest {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
        fakes().clock.current = QDateTime(QDate(2009, 6, 15), QTime(10, 0));
    }

    // As the launcher opens it: "1" in ls before the load.
    MatriculasWindow *openFromIndex()
    {
        return openWith(
            [](QWidget *w) { w->findChild<QLabel *>(QStringLiteral("ls"))->setText("1"); });
    }
    MatriculasWindow *openAlone() { return openWith({}); }
    MatriculasWindow *openWith(const std::function<void(QWidget *)> &prepare)
    {
        // Watched from before the load, so that an update at opening counts.
        const auto watch = [this, prepare](QWidget *w) {
            auto *plates = qobject_cast<MatriculasWindow *>(w);
            ASSERT_NE(plates, nullptr);
            window = plates;
            this->plates = plates;
            QObject::connect(plates, &MatriculasWindow::actualizacionIniciada,
                             [this] { onUpdate(); });
            if (prepare)
                prepare(w);
        };
        open("matriculasselect", watch);
        return plates;
    }
    void onUpdate()
    {
        ++updates;
        labelAtUpdate = text("aLabel4");
    }

    QString text(const char *name) const { return textOf(name); }
    void calculate(const QString &digits, const QString &letters)
    {
        get<QLineEdit>("aText1")->setText(digits);
        const char *boxes[] = {"aText5", "aText6", "aText7"};
        for (int i = 0; i < 3; ++i)
            get<QLineEdit>(boxes[i])->setText(letters.mid(i, 1));
        click("aCommand1");
    }
    void trigger(const char *name) { get<QAction>(name)->trigger(); }

    MatriculasWindow *plates = nullptr;
    int updates = 0;
    QString labelAtUpdate;
};

// --- Opening and the two modes ------------------------------------------------------

TEST_F(MatriculasTest, UnderTheLauncherItKeepsTheSuitesLanguageAndHidesTheMenu)
{
    CargarIngles();
    writeConfig(QStringLiteral("idioma"), QStringLiteral("4"), kSub);
    openFromIndex();
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
    EXPECT_FALSE(get<QAction>("menuidioma")->isVisible());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Zafro Matrículas - Plate Dater"));
    EXPECT_EQ(text("Label1"), texto(slot::SeleccioneTipoMatricula));
    EXPECT_EQ(plates->paneActual(), QStringLiteral("0"));
    for (const char *pane : {"Picture2", "Picture4", "Picture5"})
        EXPECT_FALSE(get(pane)->isVisible()) << pane;
    EXPECT_EQ(updates, 0);
    forms().show(QStringLiteral("nuevos")); // something else keeps the suite alive
    trigger("menucerrar");
    EXPECT_EQ(forms().find(QStringLiteral("matriculasselect")), nullptr);
    EXPECT_FALSE(fakes().desktop.ended());
}

TEST_F(MatriculasTest, ByItselfItTakesItsOwnLanguageAndClosingEndsTheProgram)
{
    const struct {
        const char *stored;
        const char *checked;
        const char *title;
    } rows[] = {
        {nullptr, "menuespanol", "Zafro Matrículas - Datador de Matrículas"},
        {"2", "menuingles", "Zafro Matrículas - Plate Dater"},
        {"4", "menuvalenciano", "Zafro Matrículas - Datador de Matrícules"},
        {"3", "menuespanol", "Zafro Matrículas - Datador de Matrículas"},
    };
    for (const auto &row : rows) {
        CargarIngles(); // the suite's language must not count
        if (row.stored)
            writeConfig(QStringLiteral("idioma"), QLatin1String(row.stored), kSub);
        openAlone();
        EXPECT_TRUE(get<QAction>("menuidioma")->isVisible());
        EXPECT_EQ(window->windowTitle(), QString::fromUtf8(row.title));
        for (const char *entry : {"menuespanol", "menuingles", "menuvalenciano"})
            EXPECT_EQ(get<QAction>(entry)->isChecked(), QLatin1String(entry) == row.checked)
                << entry << " with idioma " << (row.stored ? row.stored : "absent");
        forms().unloadAll();
    }
    openAlone();
    trigger("menucerrar");
    EXPECT_EQ(forms().find(QStringLiteral("matriculasselect")), nullptr);
    EXPECT_TRUE(fakes().desktop.ended());
}

TEST_F(MatriculasTest, TheYearCheckWarnsOnceAfter2010AndTheWindowOpensAnyway)
{
    fakes().clock.current = QDateTime(QDate(2010, 12, 31), QTime(23, 59));
    openFromIndex();
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
    EXPECT_EQ(get<QAction>("menumat3")->text(), QStringLiteral("2000 - 2010"));
    forms().unloadAll();

    fakes().clock.current = QDateTime(QDate(2011, 1, 1), QTime(0, 0));
    openFromIndex();
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].text,
              QStringLiteral(
                  "La versión de programa que usa no puede datar matrículas posteriores a 2010."));
    EXPECT_TRUE(fakes().dialogs.messages[0].title.isEmpty());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(get<QAction>("menumat3")->text(), QStringLiteral("2000 - 2011"));
    EXPECT_EQ(get("Command5")->toolTip(), QStringLiteral("2000 - 2011"));
}

TEST_F(MatriculasTest, AutoUpdatesAtOpeningAndTheMenuTogglesTheValue)
{
    writeConfig(QStringLiteral("auto"), QStringLiteral("1"), kSub);
    openFromIndex();
    EXPECT_EQ(updates, 1);
    EXPECT_TRUE(get<QAction>("menuauto")->isChecked());
    trigger("menuauto");
    EXPECT_FALSE(get<QAction>("menuauto")->isChecked());
    EXPECT_EQ(readConfig(QStringLiteral("auto"), kSub), QStringLiteral("0") + QChar(0));
    trigger("menuauto");
    EXPECT_TRUE(get<QAction>("menuauto")->isChecked());
    EXPECT_EQ(readConfigNumber(QStringLiteral("auto"), kSub), 1);
    trigger("menuactualizar");
    click("Command6");
    EXPECT_EQ(updates, 3);
    forms().unloadAll();
    updates = 0;
    writeConfig(QStringLiteral("auto"), QStringLiteral("0"), kSub);
    openFromIndex();
    EXPECT_EQ(updates, 0);
    EXPECT_FALSE(get<QAction>("menuauto")->isChecked());
}

// --- Texts and languages ----------------------------------------------------------------

TEST_F(MatriculasTest, TheLanguageMenuRewritesTheTextsAndKeepsItsOwnValue)
{
    writeConfig(QStringLiteral("idioma"), QStringLiteral("1"));
    test::escribirFecha("3", "7", "2009");
    openAlone();
    click("Command5");
    calculate(QStringLiteral("0000"), QStringLiteral("BBB"));
    const QString result = text("aLabel5");
    EXPECT_EQ(text("Labeln9"), QStringLiteral("Última actualización: 03/07/2009"));
    EXPECT_EQ(get("Label2")->x(), twipsToPixelsX(6200));

    trigger("menuingles");
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma"), kSub), 2);
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma")), 1) << "the suite's value is not touched";
    EXPECT_TRUE(get<QAction>("menuingles")->isChecked());
    EXPECT_FALSE(get<QAction>("menuespanol")->isChecked());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Zafro Matrículas - Plate Dater"));
    EXPECT_EQ(text("Label1"), QStringLiteral("Please, select a type of plate from the menu on "
                                             "the left to date your plate."));
    EXPECT_EQ(text("Labeln9"), QStringLiteral("Last update: 07/03/2009"));
    EXPECT_EQ(text("aLabel4"), QStringLiteral("Last update: 07/03/2009"));
    EXPECT_EQ(text("aCommand1"), QStringLiteral("Calculate"));
    EXPECT_EQ(get<QAction>("menuarchivo")->text(), QStringLiteral("File"));
    EXPECT_EQ(get<QAction>("menuacerca")->text(), QStringLiteral("About..."));
    EXPECT_EQ(get<QAction>("menuidioma")->text(), QStringLiteral("Language"));
    EXPECT_EQ(get("Label2")->x(), twipsToPixelsX(5750));
    EXPECT_EQ(text("aLabel5"), result) << "the current-format result stays";

    trigger("menuvalenciano");
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma"), kSub), 4);
    EXPECT_EQ(get("Label2")->x(), twipsToPixelsX(6130));
    EXPECT_EQ(text("aLabel4"), QStringLiteral("Última actualització: 03/07/2009"));

    trigger("menuespanol");
    EXPECT_EQ(readConfigNumber(QStringLiteral("idioma"), kSub), 1);
    EXPECT_EQ(get<QAction>("menuopciones")->text(), QStringLiteral("Opciones"));
    EXPECT_EQ(get<QAction>("menuacerca")->text(), QStringLiteral("Acerca de..."));
}

TEST_F(MatriculasTest, TheDotsRunAfterTheSentence)
{
    openFromIndex();
    auto *dots = get<QLabel>("Label2");
    EXPECT_TRUE(dots->text().isEmpty());
    const char *steps[] = {".", "..", "...", "", "."};
    for (const char *step : steps) {
        plates->timer2Timer();
        EXPECT_EQ(dots->text(), QLatin1String(step));
    }
    dots->setText(QStringLiteral("x"));
    plates->timer2Timer();
    EXPECT_EQ(dots->text(), QStringLiteral("."));
}

// --- The format buttons -----------------------------------------------------------------

TEST_F(MatriculasTest, EachButtonShowsItsPaneAlone)
{
    openFromIndex();
    const struct {
        const char *button, *pane, *paneActual;
    } rows[] = {
        {"Command5", "Picture5", "1"},
        {"Command1", "Picture4", "0"},
        {"Command4", "Picture2", "0"},
        {"Command5", "Picture5", "1"},
    };
    for (const auto &row : rows) {
        click(row.button);
        for (const char *pane : {"Picture2", "Picture4", "Picture5"})
            EXPECT_EQ(get(pane)->isVisible(), QLatin1String(pane) == row.pane)
                << row.button << " " << pane;
        EXPECT_EQ(plates->paneActual(), QLatin1String(row.paneActual)) << row.button;
    }
    trigger("menumat1");
    EXPECT_TRUE(get("Picture4")->isVisible());
    EXPECT_EQ(plates->indice(), QStringLiteral("-1"));
    trigger("menumat3");
    EXPECT_TRUE(get("Picture5")->isVisible());
}

// --- Load table and Calculate ---------------------------------------------------------------

TEST_F(MatriculasTest, TheTableLoadsWithThePaneAndStartsAnUpdateOnlyWithoutData)
{
    openFromIndex();
    click("Command5");
    EXPECT_EQ(updates, 1);
    EXPECT_EQ(labelAtUpdate, QStringLiteral("Nunca sincronizado"))
        << "the first write comes before the update starts";
    EXPECT_EQ(text("aLabel4"), QStringLiteral("Última actualización: 00/00/0"));
    forms().unloadAll();

    updates = 0;
    test::escribirDatos2002();
    test::escribirFecha("1", "2", "2003");
    openFromIndex();
    get<QLabel>("aLabel7")->setText(QStringLiteral("12345"));
    click("Command5");
    EXPECT_EQ(updates, 0);
    EXPECT_EQ(text("aLabel7"), QStringLiteral("4415896"));
    EXPECT_EQ(text("aLabel4"), QStringLiteral("Última actualización: 01/02/2003"));
}

TEST_F(MatriculasTest, CalculatePadsTheBoxesAndDatesThePlateByTheLoadedTable)
{
    const struct {
        const char *name;
        bool data, english, enter;
        const char *digits, *letters, *boxes, *ordinal, *fecha;
    } rows[] = {
        {"no data: only the first plate", false, false, false, "0000", "BBB", "0000BBB", "0",
         "Septiembre del 2000"},
        {"no data: the next one", false, false, false, "0001", "BBC", "0001BBC", "10001",
         "No designado"},
        {"padded and upper-cased", false, false, false, "5", "bcd", "0005BCD", "220005",
         "No designado"},
        {"Enter calculates", false, false, true, "7", "BBB", "0007BBB", "7", "No designado"},
        {"English month then year", false, true, false, "0000", "BBB", "0000BBB", "0",
         "September 2000"},
        {"English, not assigned", false, true, false, "0001", "BBB", "0001BBB", "1",
         "Not assigned"},
        // By hand: 2463190 - 52000 is 14.6 months of 165000, so the 15th after September 2000.
        {"running totals", true, false, false, "3190", "BRJ", "3190BRJ", "2463190",
         "Diciembre del 2001"},
        {"first of a letter", true, false, false, "0000", "CBB", "0000CBB", "4000000",
         "Octubre del 2002"},
        {"past the table", true, false, false, "5896", "DBH", "5896DBH", "8055896", "No designado"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        row.english ? CargarIngles() : CargarEspanol();
        if (row.data) {
            test::escribirDatos2002();
            test::escribirFecha("15", "1", "2003");
        }
        openFromIndex();
        click("Command5");
        if (row.enter) {
            get<QLineEdit>("aText1")->setText(QLatin1String(row.digits));
            QTest::keyClick(get<QLineEdit>("aText1"), Qt::Key_Return);
        } else {
            calculate(QLatin1String(row.digits), QLatin1String(row.letters));
        }
        EXPECT_EQ(text("aText1") + text("aText5") + text("aText6") + text("aText7"),
                  QLatin1String(row.boxes));
        EXPECT_EQ(text("aLabel7"), QLatin1String(row.ordinal));
        EXPECT_EQ(text("aLabel5"), QString::fromUtf8(row.fecha));
        forms().unloadAll();
    }
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(MatriculasTest, BadLettersGiveOneErrorEachAndCountAsB)
{
    openFromIndex();
    click("Command5");
    // The change step would refuse vowels while typing; Calculate meets them when the
    // boxes are filled some other way.
    for (const char *box : {"aText5", "aText6", "aText7"})
        get<QLineEdit>(box)->blockSignals(true);
    calculate(QStringLiteral("1234"), QStringLiteral("AAA"));
    ASSERT_EQ(fakes().dialogs.messages.size(), 3);
    const int mensajes[] = {slot::PrimeraLetraInvalida, slot::SegundaLetraInvalida,
                            slot::TerceraLetraInvalida};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(fakes().dialogs.messages[i].text, texto(mensajes[i]));
        EXPECT_EQ(fakes().dialogs.messages[i].title, QStringLiteral("Error"));
    }
    EXPECT_EQ(text("aText5") + text("aText6") + text("aText7"), QStringLiteral("BBB"));
    EXPECT_EQ(text("aLabel7"), QStringLiteral("1234"));
}

// --- Typing in the four boxes ---------------------------------------------------------------

TEST_F(MatriculasTest, LetterBoxesRefuseAnythingButConsonants)
{
    openFromIndex();
    click("Command5");
    auto *first = get<QLineEdit>("aText5");
    first->clear();
    QTest::keyClicks(first, QStringLiteral("a"));
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].text, QStringLiteral("Solo puedes poner consonantes"));
    EXPECT_EQ(fakes().dialogs.messages[0].title, QStringLiteral("Inválido"));
    EXPECT_TRUE(first->text().isEmpty());
    QTest::keyClicks(first, QStringLiteral("k"));
    EXPECT_EQ(first->text(), QStringLiteral("k"));
    EXPECT_EQ(fakes().dialogs.messages.size(), 1);
}

TEST_F(MatriculasTest, StartingTextsLeaveOnFocusAndComeBackWhenEmpty)
{
    openFromIndex();
    click("Command5");
    window->activateWindow();
    auto *digits = get<QLineEdit>("aText1");
    auto *last = get<QLineEdit>("aText7");
    QFocusEvent in(QEvent::FocusIn), out(QEvent::FocusOut);
    QCoreApplication::sendEvent(digits, &in);
    EXPECT_TRUE(digits->text().isEmpty());
    QCoreApplication::sendEvent(digits, &out);
    EXPECT_EQ(digits->text(), QStringLiteral("9876"));
    QCoreApplication::sendEvent(last, &in);
    EXPECT_TRUE(last->text().isEmpty());
    last->setText(QStringLiteral("x"));
    QCoreApplication::sendEvent(last, &out);
    EXPECT_EQ(last->text(), QStringLiteral("x"));
}

// --- The about window ----------------------------------------------------------------------

TEST_F(MatriculasTest, AboutShowsTheToolsVersionUnderTheLauncherAndTheSuitesAlone)
{
    test::escribirFecha("8", "3", "2010");
    openFromIndex();
    trigger("menuacerca");
    QWidget *about = forms().find(QStringLiteral("matacercade"));
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->windowTitle(), QStringLiteral("Acerca de Zafro Matrículas"));
    EXPECT_EQ(about->findChild<QLabel *>(QStringLiteral("Label2"))->text(),
              QStringLiteral("Versión: 1.4.3"));
    EXPECT_EQ(about->findChild<QLabel *>(QStringLiteral("Label3"))->text(),
              QStringLiteral("Última actualización: 08/03/2010"));
    QTest::mouseClick(about->findChild<QLabel *>(QStringLiteral("Label6")), Qt::LeftButton);
    EXPECT_EQ(fakes().desktop.openedUrls.size(), 1);
    forms().unloadAll();

    writeConfig(QStringLiteral("idioma"), QStringLiteral("2"), kSub);
    openAlone();
    trigger("menuacerca");
    about = forms().find(QStringLiteral("matacercade"));
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->findChild<QLabel *>(QStringLiteral("Label2"))->text(),
              QStringLiteral("Version: %1.%2.%3")
                  .arg(ZAFRO_VERSION_MAJOR)
                  .arg(ZAFRO_VERSION_MINOR)
                  .arg(ZAFRO_VERSION_REVISION));
    EXPECT_EQ(about->findChild<QLabel *>(QStringLiteral("Label3"))->text(),
              QStringLiteral("Last update: 03/08/2010"));
    QTest::mouseClick(about->findChild<QPushButton *>(QStringLiteral("Command1")), Qt::LeftButton);
    EXPECT_EQ(forms().find(QStringLiteral("matacercade")), nullptr);
}

} // namespace
} // namespace zafro
