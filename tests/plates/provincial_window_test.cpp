#include "fakes.h"
#include "plates/matriculas_window.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace zafro {
namespace {

using test::fakes;

const QString kPonga = QStringLiteral("Ponga el número de la matrícula");
const QString kSeleccione = QStringLiteral("Seleccione una provincia de la lista");

class ProvincialPanesTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
        fakes().clock.current = QDateTime(QDate(2009, 6, 15), QTime(10, 0));
    }

    // Under the launcher unless asked otherwise; a fresh window each time.
    void open(bool porSuCuenta = false)
    {
        forms().unload(QStringLiteral("matriculasselect"));
        window = qobject_cast<MatriculasWindow *>(
            forms().show(QStringLiteral("matriculasselect"), [porSuCuenta](QWidget *w) {
                if (!porSuCuenta)
                    w->findChild<QLabel *>(QStringLiteral("ls"))->setText(QStringLiteral("1"));
            }));
        ASSERT_NE(window, nullptr);
        fakes().dialogs.messages.clear();
    }
    template <typename T = QWidget> T *get(const QString &name) const
    {
        T *found = window->findChild<T *>(name);
        EXPECT_NE(found, nullptr) << qPrintable(name);
        return found;
    }
    QString text(const QString &name) const
    {
        if (auto *box = window->findChild<QLineEdit *>(name))
            return box->text();
        return get<QLabel>(name)->text();
    }
    // Shows the pane ('b' 1971-2000, 'c' before 1971) and fills it; -1 chooses nothing.
    void rellenar(char panel, int provincia, const char *cifras, const char *letras = "")
    {
        const QString p(QLatin1Char{panel});
        if (panel == 'b')
            window->command4Click();
        else
            window->command1Click();
        if (provincia >= 0)
            get<QComboBox>(p + QStringLiteral("Combo1"))->setCurrentIndex(provincia);
        get<QLineEdit>(p + QStringLiteral("Text1"))->setText(QString::fromUtf8(cifras));
        if (panel == 'b')
            get<QLineEdit>(QStringLiteral("bText5"))->setText(QString::fromUtf8(letras));
        get<QLabel>(p + QStringLiteral("Label5"))->setText(QStringLiteral("x"));
    }
    void calcular(char panel)
    {
        QTest::mouseClick(
            get(panel == 'b' ? QStringLiteral("bCommand2") : QStringLiteral("cCommand1")),
            Qt::LeftButton);
    }

    MatriculasWindow *window = nullptr;
};

TEST_F(ProvincialPanesTest, ChoosingAnEntryShowsItsCodeAndKeepsItsIndex)
{
    open();
    EXPECT_EQ(get<QComboBox>("bCombo1")->currentText(), QString());
    EXPECT_EQ(text("bLabel2"), QStringLiteral("52"));
    EXPECT_EQ(get<QComboBox>("cCombo1")->count(), 61);
    EXPECT_EQ(get<QComboBox>("cCombo4")->itemText(1), QStringLiteral("1915"));
    const struct {
        const char *combo;
        int indice;
        const char *codigo;
    } filas[] = {
        {"bCombo1", 28, "M"},   {"bCombo1", 20, "SS"}, {"cCombo1", 51, "Z"},
        {"cCombo1", 53, "SHA"}, {"cCombo1", 60, "ME"}, {"cCombo1", 52, ""},
    };
    for (const auto &f : filas) {
        const QString panel = QLatin1String(f.combo).left(1);
        get<QComboBox>(QLatin1String(f.combo))->setCurrentIndex(f.indice);
        EXPECT_EQ(text(panel + QStringLiteral("Text7")), QLatin1String(f.codigo)) << f.combo;
        EXPECT_EQ(text(panel + QStringLiteral("Label2")), QString::number(f.indice)) << f.combo;
    }
}

TEST_F(ProvincialPanesTest, CalculateWritesTheDateOrTheReasonWhyNot)
{
    const struct {
        const char *nombre;
        char panel;
        int provincia;
        const char *cifras, *letras, *resultado;
        int mensajes; // all of them the same text, with the same title
        const QString &mensaje;
        const char *titulo, *cifrasDespues;
    } filas[] = {
        {"Alava 0500 A", 'b', 0, "0500", "A", "Coche matriculado en diciembre de 1971", 0, kPonga,
         "", "0500"},
        {"September at most in 2000", 'b', 28, "6814", "ZX",
         "Coche matriculado en septiembre de 2000", 0, kPonga, "", "6814"},
        {"digits padded, letters upper", 'b', 28, "7", "a", "Coche matriculado en mayo de 1971", 0,
         kPonga, "", "0007"},
        {"above the last year", 'b', 28, "9999", "ZZ", "Esa matrícula no existe en Madrid", 0,
         kPonga, "", "9999"},
        {"La Coruña's own name", 'b', 15, "9999", "ZZ", "Esa matrícula no existe en A Coruña", 0,
         kPonga, "", "9999"},
        {"two bad letters", 'b', 28, "1234", "QR", "", 2,
         QStringLiteral("Tienes que poner una letra válida"), "Error", "1234"},
        {"one bad letter", 'b', 28, "1234", "AÑ", "", 1,
         QStringLiteral("Tienes que poner una letra válida"), "Error", "1234"},
        {"no letters: nothing", 'b', 28, "1234", "", "x", 0, kPonga, "", "1234"},
        {"zero digits: once a year tried", 'b', 28, "0000", "AB",
         "Coche matriculado en marzo de 1974", 4, kPonga, "", "0000"},
        {"zero digits to the end", 'b', 28, "0", "ZZ", "Esa matrícula no existe en Madrid", 102,
         kPonga, "", "0000"},
        {"no province", 'b', -1, "1234", "AA", "x", 1, kSeleccione, "", "1234"},
        {"before 1914", 'c', 28, "2000", "", "Coche matriculado antes de 1914", 0, kPonga, "",
         "2000"},
        {"first number of 1915", 'c', 28, "2406", "", "Coche matriculado en enero de 1915", 0,
         kPonga, "", "2406"},
        {"1971 is a whole year here", 'c', 28, "960985", "",
         "Coche matriculado en diciembre de 1971", 0, kPonga, "", "960985"},
        {"number 0", 'c', 28, "0", "", "Coche matriculado antes de 1914", 1, kPonga, "", "000000"},
        {"Las Palmas' own name", 'c', 36, "999999", "", "Esa matrícula no existe en Las Palmas", 0,
         kPonga, "", "999999"},
        {"Sahara", 'c', 53, "1234", "", "Posterior a 1952", 0, kPonga, "", "1234"},
        {"Guinea", 'c', 54, "1234", "", "No hay datos de las matrículas de las antiguas colonias",
         0, kPonga, "", "1234"},
        {"the blank entry", 'c', 52, "1234", "", "x", 1, kSeleccione, "", "1234"},
    };
    for (const auto &f : filas) {
        open();
        rellenar(f.panel, f.provincia, f.cifras, f.letras);
        calcular(f.panel);
        const QString p(QLatin1Char{f.panel});
        EXPECT_EQ(text(p + QStringLiteral("Label5")), QString::fromUtf8(f.resultado)) << f.nombre;
        EXPECT_EQ(text(p + QStringLiteral("Text1")), QLatin1String(f.cifrasDespues)) << f.nombre;
        EXPECT_EQ(fakes().dialogs.messages.size(), f.mensajes) << f.nombre;
        for (const auto &m : fakes().dialogs.messages) {
            EXPECT_EQ(m.text, f.mensaje) << f.nombre;
            EXPECT_EQ(m.title, QLatin1String(f.titulo)) << f.nombre;
        }
        EXPECT_EQ(window->indice(), QStringLiteral("-1")) << f.nombre;
    }
}

TEST_F(ProvincialPanesTest, EnterCalculatesInEveryBoxAndGoesNoFurther)
{
    open();
    for (const char *caja :
         {"bText1", "bText5", "bText7", "bCombo1", "cText1", "cText7", "cCombo1"}) {
        const char panel = caja[0];
        rellenar(panel, 28, panel == 'b' ? "0500" : "2000", "A");
        QWidget *w = get(QLatin1String(caja));
        std::unique_ptr<QSignalSpy> pulsado;
        if (auto *box = qobject_cast<QLineEdit *>(w))
            pulsado = std::make_unique<QSignalSpy>(box, &QLineEdit::returnPressed);
        QTest::keyClick(w, Qt::Key_Return);
        EXPECT_EQ(text(QLatin1Char(panel) + QStringLiteral("Label5")),
                  panel == 'b' ? QStringLiteral("Coche matriculado en mayo de 1971")
                               : QStringLiteral("Coche matriculado antes de 1914"))
            << caja;
        EXPECT_TRUE(!pulsado || pulsado->isEmpty()) << caja;
    }
}

TEST_F(ProvincialPanesTest, StartingTextsLeaveOnFocusAndFourDigitsMoveOn)
{
    open();
    window->command4Click();
    for (const auto &[caja, inicial] :
         {std::pair{"bText1", "1234"}, {"bText5", "AA"}, {"cText1", "123456"}}) {
        auto *box = get<QLineEdit>(QLatin1String(caja));
        QFocusEvent in(QEvent::FocusIn), out(QEvent::FocusOut);
        QCoreApplication::sendEvent(box, &in);
        EXPECT_TRUE(box->text().isEmpty()) << caja;
        QCoreApplication::sendEvent(box, &out);
        EXPECT_EQ(box->text(), QLatin1String(inicial)) << caja;
    }
    QApplication::setActiveWindow(window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    auto *digits = get<QLineEdit>("bText1");
    digits->setFocus();
    digits->setText(QStringLiteral("0123"));
    EXPECT_TRUE(digits->hasFocus()) << "a leading zero stays";
    digits->setText(QStringLiteral("6497"));
    EXPECT_TRUE(get("bText5")->hasFocus());
    // Vowels are letters in this format: nothing stops them while typing.
    QTest::keyClicks(get("bText5"), QStringLiteral("ae"));
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

TEST_F(ProvincialPanesTest, ALanguageChangeEmptiesBothResultsAndTheNextIsInTheNewLanguage)
{
    open(true);
    rellenar('b', 0, "0500", "A");
    calcular('b');
    rellenar('c', 28, "2406");
    calcular('c');
    get<QLabel>("aLabel5")->setText(QStringLiteral("keep"));
    get<QAction>("menuingles")->trigger();
    EXPECT_EQ(text("bLabel5"), QString());
    EXPECT_EQ(text("cLabel5"), QString());
    EXPECT_EQ(text("aLabel5"), QStringLiteral("keep"));
    EXPECT_EQ(get<QWidget>("bCommand2")->property("text").toString(), QStringLiteral("Calculate"));
    rellenar('b', 0, "0500", "A");
    calcular('b');
    EXPECT_EQ(text("bLabel5"), QStringLiteral("Car registered in december 1971"));
    rellenar('c', 28, "2000");
    calcular('c');
    EXPECT_EQ(text("cLabel5"), QStringLiteral("Car registered before 1914"));
}

} // namespace
} // namespace zafro
