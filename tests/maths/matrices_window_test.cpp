#include "fakes.h"
#include "maths/matrices_window.h"
#include "runtime/numtext.h"
#include "runtime/region.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"

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

using test::fakes;

class MatricesWindowTest : public ::testing::Test {
protected:
    // The editor writes cells in the region's form: a point region unless a test says.
    void SetUp() override
    {
        forceDecimalMark(QLatin1Char('.'));
        forms().registerForm(QStringLiteral("matrices"), [] { return new MatricesWindow; });
        guardarSkin(1);
        CargarEspanol();
        open();
    }
    void TearDown() override { restoreDecimalMark(); }

    void open()
    {
        window = qobject_cast<MatricesWindow *>(forms().show(QStringLiteral("matrices")));
        ASSERT_NE(window, nullptr);
    }

    template <typename T = QWidget> T *get(const QString &name) const
    {
        T *found = window->findChild<T *>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    template <typename T = QWidget> T *get(const char *name) const
    {
        return get<T>(QLatin1String(name));
    }
    QLineEdit *cell(int fila, int columna) const
    {
        return get<QLineEdit>(QStringLiteral("a%1%2").arg(fila).arg(columna));
    }
    QString box(const char *name) const { return get<QPlainTextEdit>(name)->toPlainText(); }
    void click(const char *name) { QTest::mouseClick(get(name), Qt::LeftButton); }
    void type(const char *name, const QString &text)
    {
        get<QLineEdit>(name)->clear();
        QTest::keyClicks(get<QLineEdit>(name), text);
    }

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

    QStringList messages() const
    {
        QStringList texts;
        for (const auto &m : fakes().dialogs.messages)
            texts << m.text;
        return texts;
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

    MatricesWindow *window = nullptr;
};

TEST_F(MatricesWindowTest, LoadsTwoRandomFiveByFiveMatricesAtItsPlace)
{
    for (const Matriz *m : {&window->matrizA(), &window->matrizB()}) {
        EXPECT_EQ(m->filas(), 5);
        EXPECT_EQ(m->columnas(), 5);
        EXPECT_GE(m->valores().minCoeff(), 0.0);
        EXPECT_LE(m->valores().maxCoeff(), 9.0);
    }
    EXPECT_NE(window->matrizA().valores(), window->matrizB().valores());
    EXPECT_EQ(box("txtMatrixA"), window->matrizA().aTexto(1));
    EXPECT_EQ(box("txtMatrixB"), window->matrizB().aTexto(1));
    EXPECT_EQ(box("txtMatrixA").split('\n').size(), 5);
    for (const char *name : {"txtMatrixA", "txtMatrixB", "txtMatrixC"}) {
        EXPECT_TRUE(get<QPlainTextEdit>(name)->isReadOnly()) << name;
        EXPECT_TRUE(QFontInfo(get<QPlainTextEdit>(name)->font()).fixedPitch()) << name;
    }
    // The fake screen is 19200 by 14400 twips.
    EXPECT_EQ(window->pos(), QPoint(twipsToPixelsX((19200 - 11800) / 2),
                                    twipsToPixelsY(2 * (14400 - MatricesWindow::kAlto) / 6)));
    EXPECT_EQ(window->width(), twipsToPixelsX(MatricesWindow::kAnchoCerrado));
    EXPECT_TRUE(get<QLabel>("Label4")->isHidden());
    EXPECT_EQ(get<QLineEdit>("Text4")->text(), QStringLiteral("1"));
    EXPECT_EQ(get<QLineEdit>("Text3")->text(), QStringLiteral("1"));
}

TEST_F(MatricesWindowTest, CaptionsComeFromTheLanguageTableWithTheirFixedEndings)
{
    const struct {
        const char *control, *es, *en;
    } rows[] = {
        {"cmdPlus", "Suma de A+B", "Sum of A+B"},
        {"cmdMinus", "Resta de A-B", "Subtract of A-B"},
        {"cmdMultiply", "Multiplicar AxB", "Multiply AxB"},
        {"Command10", "Multiplicar BxA", "Multiply BxA"},
        {"Command8", "Multiplicar A x nº", "Multiply A x nº"},
        {"Command9", "Multiplicar B x nº", "Multiply B x nº"},
        {"Command11", "Normalizar A", "Normalize A"},
        {"cmdNormalize", "Normalizar B", "Normalize B"},
        {"cmdTranspose", "Traspuesta de A", "Transpose of A"},
        {"Command12", "Traspuesta de B", "Transpose of B"},
        {"cmdInverse", "Inversa de A", "Inverse of A"},
        {"Command13", "Inversa de B", "Inverse of B"},
        {"Command14", "Determinante de A", "Determinant of A"},
        {"Command15", "Determinante de B", "Determinant of B"},
        {"Command2", "Definir Mat A", "Define Mat A"},
        {"Command5", "Definir Mat B", "Define Mat B"},
        {"Command3", "Editar Mat A", "Edit Mat A"},
        {"Command4", "Editar Mat B", "Edit Mat B"},
        {"Command6", "Guardar", "Save"},
        {"Command7", "<--- Volver   ", "<--- Back   "},
    };
    const auto check = [&](bool spanish) {
        for (const auto &row : rows)
            EXPECT_EQ(get<QPushButton>(row.control)->text(),
                      QString::fromUtf8(spanish ? row.es : row.en))
                << row.control;
    };
    check(true);
    EXPECT_EQ(get<QLabel>("Label1")->text(), QStringLiteral("Matriz A"));
    EXPECT_EQ(get<QLabel>("Label3")->text(), QStringLiteral("Matriz C"));
    EXPECT_EQ(get<QLabel>("Label10")->text(), QStringLiteral("Cálculos con Matrices"));
    EXPECT_EQ(get<QLabel>("Label11")->text(), QStringLiteral("Crear o editar Matriz"));
    EXPECT_EQ(get<QLabel>("Label8")->text(), QStringLiteral("Cerrar"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Zafro Suite - Cálculos con Matrices"));

    forms().unload(QStringLiteral("matrices"));
    CargarIngles();
    open();
    check(false);
    EXPECT_EQ(get<QLabel>("Label2")->text(), QStringLiteral("Matrix B"));
    EXPECT_EQ(get<QLabel>("Label6")->text(), QStringLiteral("Decimals: "));
}

TEST_F(MatricesWindowTest, TheTitleLabelsTakeTheTitleColourAndLabel8Closes)
{
    const BuiltInSkin *skin = builtInSkin(1);
    for (const char *name : {"Label10", "Label11"})
        EXPECT_EQ(get(name)->palette().color(QPalette::WindowText),
                  colourFromNumber(skin->tituloForeColor))
            << name;
    EXPECT_EQ(get(QStringLiteral("Label1"))->palette().color(QPalette::WindowText),
              colourFromNumber(skin->foreColor));
    EXPECT_EQ(get(QStringLiteral("txtMatrixC"))->palette().color(QPalette::Base),
              colourFromNumber(skin->backColor));
    EXPECT_EQ(get<QTimer>("Timer1")->interval(), 50);
    EXPECT_EQ(get<QTimer>("Timer2")->interval(), 50);
    EXPECT_FALSE(get<QTimer>("Timer1")->isActive());

    click("Label8");
    EXPECT_EQ(forms().find(QStringLiteral("matrices")), nullptr);
}

TEST_F(MatricesWindowTest, EachCalculationButtonShowsItsOwnMessageAndKeepsC)
{
    define('A', {{1, 2, 3}, {4, 5, 6}, {7, 8, 10}});
    get<QPlainTextEdit>("txtMatrixC")->setPlainText(QStringLiteral("before"));
    const struct {
        const char *button, *message;
    } sizes[] = {
        {"cmdPlus", "Esta suma no es posible"},
        {"cmdMinus", "Esta resta no es posible"},
        {"cmdMultiply", "Esta multiplicación no es posible"},
        {"Command10", "Esta multiplicación no es posible"},
    };
    for (const auto &row : sizes) {
        fakes().dialogs.messages.clear();
        click(row.button);
        EXPECT_EQ(messages(), QStringList{QString::fromUtf8(row.message)}) << row.button;
        EXPECT_EQ(box("txtMatrixC"), QStringLiteral("before")) << row.button;
    }

    // The operations that cannot fail on sizes fail on a decimals box out of range.
    type("Text4", QStringLiteral("40000"));
    const struct {
        const char *button, *message;
    } decimals[] = {
        {"Command8", "Esta multiplicación no es posible"},
        {"Command9", "Esta multiplicación no es posible"},
        {"Command11", "No se puede normalizar"},
        {"cmdNormalize", "No se puede normalizar"},
        {"cmdTranspose", "No es posible hacer la transpuesta"},
        {"Command12", "No es posible hacer la transpuesta"},
    };
    for (const auto &row : decimals) {
        fakes().dialogs.messages.clear();
        click(row.button);
        EXPECT_EQ(messages(), QStringList{QString::fromUtf8(row.message)}) << row.button;
        EXPECT_EQ(box("txtMatrixC"), QStringLiteral("before")) << row.button;
    }

    fakes().dialogs.messages.clear();
    type("Text4", QStringLiteral("0"));
    click("cmdTranspose");
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("1  4   7\n2  5   8\n3  6  10"));
    type("Text4", QStringLiteral("2"));
    type("Text3", QStringLiteral("-1.5"));
    click("Command8");
    EXPECT_EQ(box("txtMatrixC").split('\n').first(), QStringLiteral(" -1.50   -3.00   -4.50"));
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(MatricesWindowTest, TheSumOfThreeByThreeAndFiveByFiveGivesTheMessage)
{
    define('A', {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
    EXPECT_EQ(window->matrizA().filas(), 3);
    EXPECT_EQ(window->matrizB().filas(), 5);
    click("cmdPlus");
    EXPECT_EQ(messages(), QStringList{QStringLiteral("Esta suma no es posible")});
    EXPECT_EQ(box("txtMatrixC"), QString());

    fakes().dialogs.messages.clear();
    define('B', {{1, 1, 1}, {1, 1, 1}, {1, 1, 1}});
    click("cmdPlus");
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_EQ(box("txtMatrixC").split('\n').first(), QStringLiteral("2.0  3.0   4.0"));
    EXPECT_EQ(box("txtMatrixA"), window->matrizA().aTexto(1));
}

TEST_F(MatricesWindowTest, TheInverseWritesItsAnswerIntoTheResultBox)
{
    define('A', {{1, 1, 1}, {1, 1, 1}, {1, 1, 1}});
    click("cmdInverse");
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("La Matriz A no tiene inversa"));
    define('B', {{2, 3, 1}, {4, 5, 6}});
    click("Command13");
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("No es posible hacer la inversa de la matriz B"));
    define('B', {{2, 2}, {2, 2}});
    click("Command13");
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("La Matriz B no tiene inversa"));

    define('A', {{2, 0}, {0, 4}});
    type("Text4", QStringLiteral("2"));
    click("cmdInverse");
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("0.50  0.00\n0.00  0.25"));
    type("Text4", QStringLiteral("40000"));
    click("cmdInverse");
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("No es posible hacer la inversa de la matriz A"));
    EXPECT_TRUE(messages().isEmpty()) << "the inverse shows no message box";
}

TEST_F(MatricesWindowTest, TheDeterminantIsPlainTextAndNonSquareGivesTheMessage)
{
    define('A', {{1, 2}, {3, 4}});
    type("Text4", QStringLiteral("40000")); // not used by the determinant
    click("Command14");
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("-2"));
    define('B', {{1, 2, 3}, {4, 5, 6}});
    click("Command15");
    EXPECT_EQ(messages(),
              QStringList{QStringLiteral("No se puede hacer el determinante de esa matriz")});
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("-2"));
}

TEST_F(MatricesWindowTest, DecimalsZeroShowsNoneAndFortyThousandGivesTheMessage)
{
    define('A', {{1.25, 2}, {3, 4}});
    define('B', {{1, 0}, {0, 1}});
    EXPECT_EQ(box("txtMatrixA"), QStringLiteral("1.3  2.0\n3.0  4.0")) << "saved with 1 decimal";
    type("Text4", QStringLiteral("0"));
    click("cmdMultiply");
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("1  2\n3  4"));
    type("Text4", QStringLiteral("3"));
    click("cmdMultiply");
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("1.250  2.000\n3.000  4.000"));
    type("Text4", QStringLiteral("40000"));
    click("cmdMultiply");
    EXPECT_EQ(messages(), QStringList{QStringLiteral("Esta multiplicación no es posible")});
    EXPECT_EQ(box("txtMatrixC"), QStringLiteral("1.250  2.000\n3.000  4.000"));
}

TEST_F(MatricesWindowTest, TheOrderBoxesHideRowsAndColumnsAndRefuseOtherValues)
{
    click("Command2");
    type("Text1", QStringLiteral("3"));
    EXPECT_EQ(visibleCells(), 18);
    EXPECT_TRUE(cell(4, 1)->isHidden());
    type("Text2", QStringLiteral("2"));
    EXPECT_EQ(visibleCells(), 6);
    EXPECT_FALSE(cell(3, 2)->isHidden());
    EXPECT_TRUE(cell(3, 3)->isHidden());
    get<QLineEdit>("Text2")->clear(); // empty: changes nothing beyond showing all first
    EXPECT_EQ(visibleCells(), 18);
    EXPECT_TRUE(messages().isEmpty());

    type("Text2", QStringLiteral("6"));
    type("Text1", QStringLiteral("7"));
    EXPECT_EQ(messages(),
              QStringList{QStringLiteral(
                  "En número de filas no es correcto. Este puede ser desde 2 hasta 6!")});
    EXPECT_EQ(get<QLineEdit>("Text1")->text(), QStringLiteral("6"));
    EXPECT_EQ(visibleCells(), 36);

    fakes().dialogs.messages.clear();
    get<QLineEdit>("Text2")->setText(QStringLiteral("1"));
    EXPECT_EQ(messages(), QStringList{QStringLiteral("En número de columnas no es correcto. "
                                                     "Este puede ser desde 2 hasta 6!")});
    EXPECT_EQ(get<QLineEdit>("Text2")->text(), QStringLiteral("6"));
    EXPECT_EQ(visibleCells(), 36);
}

TEST_F(MatricesWindowTest, EditingAgainAtTheSameOrderReadsCellsBeyondTheMatrixAsZero)
{
    const Matriz a = window->matrizA();
    click("Command3");
    EXPECT_EQ(get<QLineEdit>("Text1")->text(), QStringLiteral("5"));
    EXPECT_EQ(get<QLabel>("Label5")->text(), QStringLiteral("Matriz A"));
    EXPECT_EQ(get<QLabel>("Label4")->text(), QStringLiteral("1"));
    EXPECT_EQ(visibleCells(), 25);
    EXPECT_EQ(cell(2, 3)->text(), CStr(a.elemento(1, 2)));
    click("Command7");
    EXPECT_EQ(cell(2, 3)->text(), QString());

    // The boxes already hold 5 and 5: nothing hides the sixth row and column.
    click("Command3");
    EXPECT_EQ(visibleCells(), 36);
    EXPECT_EQ(cell(6, 6)->text(), QStringLiteral("0"));
    EXPECT_EQ(cell(1, 6)->text(), QStringLiteral("0"));
    EXPECT_EQ(cell(5, 5)->text(), CStr(a.elemento(4, 4)));
    // Saving now makes the matrix 5 by 5 again: the sixth row and column are dropped.
    // Each element went through its 15-digit text and back.
    click("Command6");
    ASSERT_EQ(window->matrizA().filas(), 5);
    ASSERT_EQ(window->matrizA().columnas(), 5);
    EXPECT_LT((window->matrizA().valores() - a.valores()).cwiseAbs().maxCoeff(), 1e-13);
}

TEST_F(MatricesWindowTest, CellsPassThroughTheRegionsTextOnTheirWayIntoTheEditor)
{
    define('B', {{3.5, 1}, {2, 4}});
    const ScopedDecimalMark comma(QLatin1Char(','));
    click("Command4");
    EXPECT_EQ(cell(1, 1)->text(), QStringLiteral("3")) << "3,5 read back as 3";
    EXPECT_EQ(get<QLabel>("Label5")->text(), QStringLiteral("Matriz B"));
    EXPECT_EQ(get<QLabel>("Label4")->text(), QStringLiteral("2"));
}

TEST_F(MatricesWindowTest, SavingTakesTheVisibleCellsAndEmptyOnesReadAsZero)
{
    click("Command5");
    type("Text1", QStringLiteral("2"));
    type("Text2", QStringLiteral("3"));
    cell(1, 1)->setText(QStringLiteral("2.75x"));
    cell(1, 2)->setText(QStringLiteral("abc"));
    cell(2, 3)->setText(QStringLiteral("-4"));
    cell(3, 1)->setText(QStringLiteral("99")); // hidden row: not saved
    type("Text4", QStringLiteral("3"));
    click("Command6");
    EXPECT_EQ(window->matrizB().filas(), 2);
    EXPECT_EQ(window->matrizB().columnas(), 3);
    EXPECT_EQ(box("txtMatrixB"), QStringLiteral("2.8  0.0   0.0\n0.0  0.0  -4.0"));
    for (int f = 1; f <= 6; ++f)
        for (int c = 1; c <= 6; ++c)
            EXPECT_TRUE(cell(f, c)->text().isEmpty());
    EXPECT_TRUE(get<QTimer>("Timer2")->isActive());
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(MatricesWindowTest, TheEditorSlidesOpenAndClosedAtTheGivenWidths)
{
    click("Command2");
    EXPECT_TRUE(get<QTimer>("Timer1")->isActive());
    // 7410 plus 300 at a time until 11800 is reached, then the last tick sets 12030.
    EXPECT_EQ(runToEnd("Timer1"), 16);
    EXPECT_EQ(window->anchoTwips(), 12030);
    EXPECT_EQ(window->width(), twipsToPixelsX(12030));

    click("Command7");
    EXPECT_EQ(runToEnd("Timer2"), 16);
    EXPECT_EQ(window->anchoTwips(), 7335);

    // Each timer stops the other: a save in the middle of opening turns it round.
    click("Command2");
    QMetaObject::invokeMethod(get<QTimer>("Timer1"), "timeout", Qt::DirectConnection);
    click("Command7");
    QMetaObject::invokeMethod(get<QTimer>("Timer2"), "timeout", Qt::DirectConnection);
    EXPECT_FALSE(get<QTimer>("Timer1")->isActive());
    EXPECT_EQ(window->anchoTwips(), 7335);
}

} // namespace
} // namespace zafro
