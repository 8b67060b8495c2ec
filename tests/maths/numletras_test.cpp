#include "fakes.h"
#include "maths/numeros.h"
#include "runtime/region.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace zafro {
namespace {

using test::fakes;

TEST(NroEnLetras, SpellsEveryStepWithItsBlanksAndBrackets)
{
    const struct {
        const char *name;
        double numero;
        const char *letras;
    } rows[] = {
        {"cero", 0, "CERO"},
        {"medio", 0.5, "CERO CON 50/100"},
        {"entreMenosUnoYCeroSinCero", -0.5, " CON 50/100"},
        {"diez", 10, "DIEZ"},
        {"veinte", 20, "VEINTE"},
        {"veintiuno", 21, "VEINTIUNO"},
        {"veintidos", 22, "VEINTIDOS"},
        {"treinta", 30, "TREINTA"},
        {"treintaYUno", 31, "TREINTA Y UNO"},
        {"noventaYNueve", 99, "NOVENTA Y NUEVE"},
        {"cien", 100, "CIEN"},
        {"cientoUno", 101, "CIENTO UNO"},
        {"cientoQuince", 115, "CIENTO QUINCE"},
        {"cientoVeinte", 120, "CIENTO VEINTE"},
        {"centenaSola", 300, "TRESCIENTOS "},
        {"milConUn", 1000, "UN MIL "},
        {"veintiunMil", 21000, "VEINTIUN MIL "},
        {"unMillon", 1e6, "UN MILLON "},
        {"dosMillones", 2e6, "DOS MILLONES "},
        {"millonYMil", 1001000, "UN MILLON UN MIL "},
        {"millonDeMillones", 1e12, "UN MILLON MILLONES "},
        {"exponente", 1e15, "UN MIL MILLONES MILLONES "},
        {"sinBillones", 1e20, "CIEN MILLONES MILLONES MILLONES "},
        {"mayorDeTrece", 9999999999999,
         "NUEVE MILLONES NOVECIENTOS NOVENTA Y NUEVE MIL NOVECIENTOS NOVENTA Y NUEVE MILLONES "
         "NOVECIENTOS NOVENTA Y NUEVE MIL NOVECIENTOS NOVENTA Y NUEVE"},
        {"menosCincoSinParentesis", -5, "CINCO"},
        {"menosDoceSinParentesis", -12, "DOCE"},
        {"menosVeinticinco", -25, "(VEINTICINCO)"},
        {"menosTreinta", -30, "(TREINTA)"},
        {"menosDiezConDecenas", -10.25, "(DIEZ CON 25/100)"},
        {"fraccion", 25.5, "VEINTICINCO CON 50/100"},
        {"mitadAlPar", 0.125, "CERO CON 12/100"},
        {"cienCentesimas", 0.999, "CERO CON 100/100"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(NroEnLetras(row.numero), QString::fromUtf8(row.letras)) << row.name;
    EXPECT_EQ(NroEnLetras(21, false), QStringLiteral("VEINTIUN"));
    // Far beyond 2^53 the counts need only be some division's, but must end.
    EXPECT_FALSE(NroEnLetras(1.7e308).isEmpty());
}

TEST(EnglishWords, KeepsTheWordsBlanksAndGroupsAsTheyAre)
{
    const struct {
        const char *name;
        const char *value;
        const char *words;
    } rows[] = {
        {"empty", "", ""},
        {"notANumber", "abc", "Non Numeric text"},
        {"twelveWithLeadingBlanks", "12", "   Twelve"},
        {"elevan", "11", "   Elevan"},
        {"fifteen", "15", "   fifteen"},
        {"ninteen", "19", "   Ninteen"},
        {"twentyOne", "21", "  Twenty One"},
        {"thousandTrailingBlanks", "1000", "One Thousand   "},
        {"allGroups", "1234", "One Thousand Two Hundred Thirty Four"},
        {"lakhsDoubleBlank", "123456", "One Lakhs  Twenty Three Thousand Four Hundred Fifty Six"},
        {"tenMillionsNamedMillions", "20000000", "Two millions      "},
        {"hundredLowerCase", "1000000000", "One hundred  millions      "},
        {"leadingMinus", "-5", " Minus    Five"},
        {"trailingMinusDropped", "5-", "   Five"},
        {"leadingPlus", "+5", "   Five"},
        {"tooLarge", "10000000000", "More than 999 millions"},
        {"tooLargeNegative", "-10000000000", " Minus More than 999 millions"},
        {"exponent", "1E+15", "More than 999 millions"},
    };
    const ScopedDecimalMark point(QLatin1Char('.'));
    for (const auto &row : rows)
        EXPECT_EQ(EnglishWords(QString::fromUtf8(row.value)), QString::fromUtf8(row.words))
            << row.name;
}

// The window: Spanish with a message at every bad keystroke, English without.
class NumletrasWindowTest : public ::testing::Test {
protected:
    void open(void (*loader)())
    {
        guardarSkin(1);
        loader();
        window = forms().show(QStringLiteral("numletras"));
        ASSERT_NE(window, nullptr);
        numero = window->findChild<QLineEdit *>(QStringLiteral("Numero"));
        letras = window->findChild<QLabel *>(QStringLiteral("Letras"));
        ASSERT_TRUE(numero && letras);
    }
    void type(const char *keys)
    {
        numero->selectAll();
        QTest::keyClicks(numero, QString::fromUtf8(keys));
    }
    qsizetype messages() const { return fakes().dialogs.messages.size(); }

    QWidget *window = nullptr;
    QLineEdit *numero = nullptr;
    QLabel *letras = nullptr;
};

TEST_F(NumletrasWindowTest, SpanishWarnsAtEveryKeystrokeThatLeavesNoNumber)
{
    const ScopedDecimalMark comma(QLatin1Char(','));
    open(CargarEspanol);
    EXPECT_EQ(numero->text(), QStringLiteral(","));
    EXPECT_EQ(numero->maxLength(), 13);
    EXPECT_EQ(messages(), 0);
    type("1x");
    EXPECT_EQ(letras->text(), QStringLiteral("UNO"));
    ASSERT_EQ(messages(), 1);
    const test::MsgBoxCall &aviso = fakes().dialogs.messages.first();
    EXPECT_EQ(aviso.text, QStringLiteral("Tienes que poner algun número"));
    EXPECT_EQ(aviso.style, 64);
    EXPECT_EQ(aviso.title, QStringLiteral("Atencion"));
    QTest::keyClick(numero, Qt::Key_Backspace);
    QTest::keyClick(numero, Qt::Key_Backspace);
    EXPECT_EQ(messages(), 2); // the empty box too
    EXPECT_EQ(letras->text(), QStringLiteral("UNO"));
    type("2,5");
    EXPECT_EQ(letras->text(), QStringLiteral("DOS CON 50/100"));
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(numero->text(), QStringLiteral("0,0"));
    EXPECT_TRUE(letras->text().isEmpty());
}

TEST_F(NumletrasWindowTest, APointRegionReadsTheCommaAsThousands)
{
    const ScopedDecimalMark point(QLatin1Char('.'));
    open(CargarEspanol);
    type("2,5");
    EXPECT_EQ(letras->text(), QStringLiteral("VEINTICINCO"));
    type("2.5");
    EXPECT_EQ(letras->text(), QStringLiteral("DOS CON 50/100"));
    EXPECT_EQ(messages(), 0);
}

TEST_F(NumletrasWindowTest, EnglishNeverWarnsAndValencianIsToldOnceThenSpelledInSpanish)
{
    open(CargarIngles);
    type("x");
    EXPECT_EQ(letras->text(), QStringLiteral("Non Numeric text"));
    type("12");
    EXPECT_EQ(letras->text(), QStringLiteral("   Twelve"));
    EXPECT_EQ(messages(), 0);

    forms().unload(QStringLiteral("numletras"));
    open(CargarValenciano);
    ASSERT_EQ(messages(), 1);
    EXPECT_EQ(fakes().dialogs.messages.first().text, texto(slot::SoloEspanol));
    type("12");
    EXPECT_EQ(letras->text(), QStringLiteral("DOCE"));
}

} // namespace
} // namespace zafro
