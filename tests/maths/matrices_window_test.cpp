#include "fakes.h"
#include "maths/matrices_window.h"
#include "runtime/numtext.h"
#include "runtime/region.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"
#include "window_test.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <initializer_list>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::fakes;

class MatricesWindowTest : public test::WindowTest {
protected:
    // The editor writes cells in the region's form: a point region unless a test says.
    void SetUp() override
    {
        forceDecimalMark(u'.');
        forms().registerForm(u"matrices"_s, [] { return new MatricesWindow; });
        guardarSkin(1);
        CargarEspanol();
        reopen();
    }
    void TearDown() override { restoreDecimalMark(); }
    void reopen() { matrices = static_cast<MatricesWindow *>(open("matrices")); }
    QLineEdit *cell(int fila, int columna) const
    {
        return get<QLineEdit>(qPrintable(u"a%1%2"_s.arg(fila).arg(columna)));
    }
    QString box(const char *name) const { return get<QPlainTextEdit>(name)->toPlainText(); }

    // Through the editor, as a user would: define, order, cells, save.
    void define(char cual, std::initializer_list<std::initializer_list<double>> filas)
    {
        click(cual == 'A' ? "Command2" : "Command5");
        type("Text1", QString::number(filas.size()));
        type("Text2", QString::number(filas.begin()->size()));
        int f = 1;
        for (const auto &fila : filas) {
            int c = 1;
            for (double x : fila)
                cell(f, c++)->setText(QString::number(x));
            ++f;
        }
        click("Command6");
    }

    int visibleCells() const
    {
        int n = 0;
        for (int f = 1; f <= 6; ++f)
            for (int c = 1; c <= 6; ++c)
                n += cell(f, c)->isHidden() ? 0 : 1;
        return n;
    }

    // Runs a timer's ticks by hand until it stops itself; the number of ticks.
    int runToEnd(const char *timer)
    {
        auto *t = get<QTimer>(timer);
        int ticks = 0;
        while (t->isActive() && ticks < 100) {
            QMetaObject::invokeMethod(t, "timeout", Qt::DirectConnection);
            ++ticks;
        }
        return ticks;
    }

    MatricesWindow *matrices = nullptr;
};

TEST_F(MatricesWindowTest, LoadsTwoRandomFiveByFiveMatricesAtItsPlaceInTheSkinAndLanguage)
{
    for (const Matriz *m : {&matrices->matrizA(), &matrices->matrizB()}) {
        EXPECT_EQ(m->filas(), 5);
        EXPECT_EQ(m->columnas(), 5);
        EXPECT_GE(m->valores().minCoeff(), 0.0);
        EXPECT_LE(m->valores().maxCoeff(), 9.0);
    }
    EXPECT_NE(matrices->matrizA().valores(), matrices->matrizB().valores());
    EXPECT_EQ(box("txtMatrixA"), matrices->matrizA().aTexto(1));
    EXPECT_EQ(box("txtMatrixB"), matrices->matrizB().aTexto(1));
    for (const char *name : {"txtMatrixA", "txtMatrixB", "txtMatrixC"}) {
        EXPECT_TRUE(get<QPlainTextEdit>(name)->isReadOnly()) << name;
        EXPECT_TRUE(QFontInfo(get<QPlainTextEdit>(name)->font()).fixedPitch()) << name;
    }
    // The fake screen is 19200 by 14400 twips.
    EXPECT_EQ(window->pos(), QPoint(twipsToPixelsX((19200 - 11800) / 2),
                                    twipsToPixelsY(2 * (14400 - MatricesWindow::kAlto) / 6)));
    EXPECT_EQ(window->width(), twipsToPixelsX(MatricesWindow::kAnchoCerrado));
    EXPECT_TRUE(get<QLabel>("Label4")->isHidden());
    EXPECT_EQ(get<QLineEdit>("Text4")->text() + get<QLineEdit>("Text3")->text(), u"11"_s);

    const BuiltInSkin *skin = builtInSkin(1);
    EXPECT_EQ(get("Label10")->palette().color(QPalette::WindowText),
              colourFromNumber(skin->tituloForeColor));
    EXPECT_EQ(get("Label1")->palette().color(QPalette::WindowText),
              colourFromNumber(skin->foreColor));
    EXPECT_EQ(get("txtMatrixC")->palette().color(QPalette::Base),
              colourFromNumber(skin->backColor));
    EXPECT_EQ(get<QTimer>("Timer1")->interval(), 50);
    EXPECT_FALSE(get<QTimer>("Timer1")->isActive());
    // Captions come from the language table, some with endings of their own.
    EXPECT_EQ(get<QPushButton>("Command8")->text(), u"Multiplicar A x nº"_s);
    EXPECT_EQ(get<QPushButton>("Command7")->text(), u"<--- Volver   "_s);
    EXPECT_EQ(window->windowTitle(), u"Zafro Suite - Cálculos con Matrices"_s);
    forms().unload(u"matrices"_s);
    CargarIngles();
    reopen();
    EXPECT_EQ(get<QPushButton>("Command8")->text(), u"Multiply A x nº"_s);
    EXPECT_EQ(get<QPushButton>("Command7")->text(), u"<--- Back   "_s);
    EXPECT_EQ(get<QLabel>("Label6")->text(), u"Decimals: "_s);
    click("Label8");
    EXPECT_EQ(forms().find(u"matrices"_s), nullptr);
}

TEST_F(MatricesWindowTest, EachCalculationShowsItsResultInCOrItsOwnMessageAndKeepsC)
{
    define('A', {{1, 2, 3}, {4, 5, 6}, {7, 8, 10}});
    get<QPlainTextEdit>("txtMatrixC")->setPlainText(u"before"_s);
    // A is 3 by 3 and B 5 by 5: the sizes do not agree. The operations that cannot fail
    // on sizes fail on a decimals box out of range; the determinant does not use it.
    const struct {
        const char *button, *decimales, *message;
    } rows[] = {
        {"cmdPlus", "1", "Esta suma no es posible"},
        {"cmdMinus", "1", "Esta resta no es posible"},
        {"cmdMultiply", "1", "Esta multiplicación no es posible"},
        {"Command10", "1", "Esta multiplicación no es posible"},
        {"Command8", "40000", "Esta multiplicación no es posible"},
        {"Command9", "40000", "Esta multiplicación no es posible"},
        {"Command11", "40000", "No se puede normalizar"},
        {"cmdNormalize", "40000", "No se puede normalizar"},
        {"cmdTranspose", "40000", "No es posible hacer la transpuesta"},
        {"Command12", "40000", "No es posible hacer la transpuesta"},
    };
    for (const auto &row : rows) {
        fakes().dialogs.messages.clear();
        type("Text4", QLatin1String(row.decimales));
        click(row.button);
        EXPECT_EQ(messageTexts(), QStringList{QString::fromUtf8(row.message)}) << row.button;
        EXPECT_EQ(box("txtMatrixC"), u"before"_s) << row.button;
    }
    fakes().dialogs.messages.clear();
    type("Text4", u"0"_s);
    click("cmdTranspose");
    EXPECT_EQ(box("txtMatrixC"), u"1  4   7\n2  5   8\n3  6  10"_s);
    type("Text4", u"2"_s);
    type("Text3", u"-1.5"_s);
    click("Command8");
    EXPECT_EQ(box("txtMatrixC").split('\n').first(), u" -1.50   -3.00   -4.50"_s);

    define('A', {{1.25, 2}, {3, 4}});
    define('B', {{1, 1}, {1, 1}});
    EXPECT_EQ(box("txtMatrixA"), u"1.3  2.0\n3.0  4.0"_s) << "saved with 1 decimal";
    type("Text4", u"1"_s);
    click("cmdPlus");
    EXPECT_EQ(box("txtMatrixC"), u"2.3  3.0\n4.0  5.0"_s);
    type("Text4", u"3"_s);
    click("cmdMinus");
    EXPECT_EQ(box("txtMatrixC"), u"0.250  1.000\n2.000  3.000"_s);
    click("Command10");
    EXPECT_EQ(box("txtMatrixC"), u"4.250  6.000\n4.250  6.000"_s);
    type("Text4", u"40000"_s); // not used by the determinant
    click("Command14");
    EXPECT_EQ(box("txtMatrixC"), u"-1"_s);
    EXPECT_TRUE(messageTexts().isEmpty());
    define('B', {{1, 2, 3}, {4, 5, 6}});
    click("Command15");
    EXPECT_EQ(messageTexts(), QStringList{u"No se puede hacer el determinante de esa matriz"_s});
    EXPECT_EQ(box("txtMatrixC"), u"-1"_s);
}

TEST_F(MatricesWindowTest, TheInverseWritesItsAnswerIntoTheResultBox)
{
    define('A', {{1, 1, 1}, {1, 1, 1}, {1, 1, 1}});
    click("cmdInverse");
    EXPECT_EQ(box("txtMatrixC"), u"La Matriz A no tiene inversa"_s);
    define('B', {{2, 3, 1}, {4, 5, 6}});
    click("Command13");
    EXPECT_EQ(box("txtMatrixC"), u"No es posible hacer la inversa de la matriz B"_s);
    define('B', {{2, 2}, {2, 2}});
    click("Command13");
    EXPECT_EQ(box("txtMatrixC"), u"La Matriz B no tiene inversa"_s);
    define('A', {{2, 0}, {0, 4}});
    type("Text4", u"2"_s);
    click("cmdInverse");
    EXPECT_EQ(box("txtMatrixC"), u"0.50  0.00\n0.00  0.25"_s);
    type("Text4", u"40000"_s);
    click("cmdInverse");
    EXPECT_EQ(box("txtMatrixC"), u"No es posible hacer la inversa de la matriz A"_s);
    EXPECT_TRUE(messageTexts().isEmpty()) << "the inverse shows no message box";
}

TEST_F(MatricesWindowTest, TheOrderBoxesHideRowsAndColumnsAndRefuseOtherValues)
{
    click("Command2");
    type("Text1", u"3"_s);
    EXPECT_EQ(visibleCells(), 18);
    EXPECT_TRUE(cell(4, 1)->isHidden());
    type("Text2", u"2"_s);
    EXPECT_EQ(visibleCells(), 6);
    EXPECT_FALSE(cell(3, 2)->isHidden());
    EXPECT_TRUE(cell(3, 3)->isHidden());
    get<QLineEdit>("Text2")->clear(); // empty: changes nothing beyond showing all first
    EXPECT_EQ(visibleCells(), 18);
    EXPECT_TRUE(messageTexts().isEmpty());

    type("Text2", u"6"_s);
    type("Text1", u"7"_s);
    EXPECT_EQ(messageTexts(),
              QStringList{QStringLiteral(
                  "En número de filas no es correcto. Este puede ser desde 2 hasta 6!")});
    EXPECT_EQ(get<QLineEdit>("Text1")->text(), u"6"_s);
    EXPECT_EQ(visibleCells(), 36);

    fakes().dialogs.messages.clear();
    get<QLineEdit>("Text2")->setText(u"1"_s);
    EXPECT_EQ(messageTexts(), QStringList{QStringLiteral("En número de columnas no es correcto. "
                                                         "Este puede ser desde 2 hasta 6!")});
    EXPECT_EQ(get<QLineEdit>("Text2")->text(), u"6"_s);
    EXPECT_EQ(visibleCells(), 36);
}

TEST_F(MatricesWindowTest, EditingAgainAtTheSameOrderReadsCellsBeyondTheMatrixAsZero)
{
    const Matriz a = matrices->matrizA();
    click("Command3");
    EXPECT_EQ(get<QLineEdit>("Text1")->text(), u"5"_s);
    EXPECT_EQ(get<QLabel>("Label5")->text(), u"Matriz A"_s);
    EXPECT_EQ(get<QLabel>("Label4")->text(), u"1"_s);
    EXPECT_EQ(visibleCells(), 25);
    EXPECT_EQ(cell(2, 3)->text(), CStr(a.elemento(1, 2)));
    click("Command7");
    EXPECT_EQ(cell(2, 3)->text(), QString());

    // The boxes already hold 5 and 5: nothing hides the sixth row and column.
    click("Command3");
    EXPECT_EQ(visibleCells(), 36);
    EXPECT_EQ(cell(6, 6)->text(), u"0"_s);
    EXPECT_EQ(cell(1, 6)->text(), u"0"_s);
    EXPECT_EQ(cell(5, 5)->text(), CStr(a.elemento(4, 4)));
    // Saving now makes the matrix 5 by 5 again: the sixth row and column are dropped.
    // Each element went through its 15-digit text and back.
    click("Command6");
    ASSERT_EQ(matrices->matrizA().filas(), 5);
    ASSERT_EQ(matrices->matrizA().columnas(), 5);
    EXPECT_LT((matrices->matrizA().valores() - a.valores()).cwiseAbs().maxCoeff(), 1e-13);
}

TEST_F(MatricesWindowTest, CellsPassThroughTheRegionsTextOnTheirWayIntoTheEditor)
{
    define('B', {{3.5, 1}, {2, 4}});
    const ScopedDecimalMark comma(u',');
    click("Command4");
    EXPECT_EQ(cell(1, 1)->text(), u"3"_s) << "3,5 read back as 3";
    EXPECT_EQ(get<QLabel>("Label5")->text(), u"Matriz B"_s);
    EXPECT_EQ(get<QLabel>("Label4")->text(), u"2"_s);
}

TEST_F(MatricesWindowTest, SavingTakesTheVisibleCellsAndEmptyOnesReadAsZero)
{
    click("Command5");
    type("Text1", u"2"_s);
    type("Text2", u"3"_s);
    cell(1, 1)->setText(u"2.75x"_s);
    cell(1, 2)->setText(u"abc"_s);
    cell(2, 3)->setText(u"-4"_s);
    cell(3, 1)->setText(u"99"_s); // hidden row: not saved
    type("Text4", u"3"_s);
    click("Command6");
    EXPECT_EQ(matrices->matrizB().filas(), 2);
    EXPECT_EQ(matrices->matrizB().columnas(), 3);
    EXPECT_EQ(box("txtMatrixB"), u"2.8  0.0   0.0\n0.0  0.0  -4.0"_s);
    for (int f = 1; f <= 6; ++f)
        for (int c = 1; c <= 6; ++c)
            EXPECT_TRUE(cell(f, c)->text().isEmpty());
    EXPECT_TRUE(get<QTimer>("Timer2")->isActive());
    EXPECT_TRUE(messageTexts().isEmpty());
}

TEST_F(MatricesWindowTest, TheEditorSlidesOpenAndClosedAtTheGivenWidths)
{
    click("Command2");
    EXPECT_TRUE(get<QTimer>("Timer1")->isActive());
    // 7410 plus 300 at a time until 11800 is reached, then the last tick sets 12030.
    EXPECT_EQ(runToEnd("Timer1"), 16);
    EXPECT_EQ(matrices->anchoTwips(), 12030);
    EXPECT_EQ(window->width(), twipsToPixelsX(12030));

    click("Command7");
    EXPECT_EQ(runToEnd("Timer2"), 16);
    EXPECT_EQ(matrices->anchoTwips(), 7335);

    // Each timer stops the other: a save in the middle of opening turns it round.
    click("Command2");
    QMetaObject::invokeMethod(get<QTimer>("Timer1"), "timeout", Qt::DirectConnection);
    click("Command7");
    QMetaObject::invokeMethod(get<QTimer>("Timer2"), "timeout", Qt::DirectConnection);
    EXPECT_FALSE(get<QTimer>("Timer1")->isActive());
    EXPECT_EQ(matrices->anchoTwips(), 7335);
}

} // namespace
} // namespace zafro
