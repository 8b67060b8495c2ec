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

#include <optional>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;

using test::fakes;

TEST(NroEnLetras, SpellsEveryStepWithItsBlanksAndBrackets)
{
    // clang-format off
    const struct {
        const char *name;
        double numero;
        const char *letras;
    } rows[] = {
        {"cero", 0, "CERO"}, {"medio", 0.5, "CERO CON 50/100"},
        {"entreMenosUnoYCeroSinCero", -0.5, " CON 50/100"}, {"veintidos", 22, "VEINTIDOS"},
        {"treintaYUno", 31, "TREINTA Y UNO"}, {"noventaYNueve", 99, "NOVENTA Y NUEVE"},
        {"cientoQuince", 115, "CIENTO QUINCE"}, {"centenaSola", 300, "TRESCIENTOS "},
        {"milConUn", 1000, "UN MIL "}, {"veintiunMil", 21000, "VEINTIUN MIL "},
        {"dosMillones", 2e6, "DOS MILLONES "}, {"millonYMil", 1001000, "UN MILLON UN MIL "},
        {"millonDeMillones", 1e12, "UN MILLON MILLONES "},
        {"exponente", 1e15, "UN MIL MILLONES MILLONES "}, {"menosDoceSinParentesis", -12, "DOCE"},
        {"menosTreinta", -30, "(TREINTA)"}, {"menosDiezConDecenas", -10.25, "(DIEZ CON 25/100)"},
        {"mitadAlPar", 0.125, "CERO CON 12/100"}, {"cienCentesimas", 0.999, "CERO CON 100/100"},
    };
    // clang-format on
    for (const auto &row : rows)
        EXPECT_EQ(NroEnLetras(row.numero), QString::fromUtf8(row.letras)) << row.name;
    EXPECT_EQ(NroEnLetras(21, false), u"VEINTIUN"_s);
    const QString nueves = QStringLiteral("NUEVE MILLONES NOVECIENTOS NOVENTA Y NUEVE MIL "
                                          "NOVECIENTOS NOVENTA Y NUEVE");
    EXPECT_EQ(NroEnLetras(9999999999999), nueves + u" MILLONES "_s + nueves.mid(15));
}

TEST(EnglishWords, KeepsTheWordsBlanksAndGroupsAsTheyAre)
{
    const struct {
        const char *name;
        const char *value;
        const char *words;
    } rows[] = {
        {"notANumber", "abc", "Non Numeric text"},
        {"twelveWithLeadingBlanks", "12", "   Twelve"},
        {"elevan", "11", "   Elevan"},
        {"fifteenLowerCase", "15", "   fifteen"},
        {"ninteen", "19", "   Ninteen"},
        {"thousandTrailingBlanks", "1000", "One Thousand   "},
        {"allGroups", "1234", "One Thousand Two Hundred Thirty Four"},
        {"lakhsDoubleBlank", "123456", "One Lakhs  Twenty Three Thousand Four Hundred Fifty Six"},
        {"tenMillionsNamedMillions", "20000000", "Two millions      "},
        {"hundredLowerCase", "1000000000", "One hundred  millions      "},
        {"leadingMinus", "-5", " Minus    Five"},
        {"trailingMinusDropped", "5-", "   Five"},
        {"exponent", "1E+15", "More than 999 millions"}};
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
        window = forms().show(u"numletras"_s);
        numero = window->findChild<QLineEdit *>(u"Numero"_s);
        letras = window->findChild<QLabel *>(u"Letras"_s);
    }
    QString type(const char *keys)
    {
        numero->selectAll();
        QTest::keyClicks(numero, QString::fromUtf8(keys));
        return letras->text();
    }
    qsizetype messages() const { return fakes().dialogs.messages.size(); }

    QWidget *window = nullptr;
    QLineEdit *numero = nullptr;
    QLabel *letras = nullptr;
};

TEST_F(NumletrasWindowTest, SpanishWarnsAtEveryKeystrokeThatLeavesNoNumberInBothRegions)
{
    std::optional<ScopedDecimalMark> region(std::in_place, QLatin1Char(','));
    open(CargarEspanol);
    EXPECT_EQ(numero->text(), u","_s);
    EXPECT_EQ(type("1x"), u"UNO"_s);
    ASSERT_EQ(messages(), 1); // at "x" only, none at load
    const test::MsgBoxCall &aviso = fakes().dialogs.messages.first();
    EXPECT_EQ(aviso.text + aviso.title, u"Tienes que poner algun númeroAtencion"_s);
    EXPECT_EQ(aviso.style, 64);
    QTest::keyClick(numero, Qt::Key_Backspace);
    QTest::keyClick(numero, Qt::Key_Backspace);
    EXPECT_EQ(messages(), 2); // the empty box too
    EXPECT_EQ(type("2,5"), u"DOS CON 50/100"_s);
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(numero->text() + letras->text(), u"0,0"_s);

    region.emplace(QLatin1Char('.'));
    EXPECT_EQ(type("2,5"), u"VEINTICINCO"_s);
    EXPECT_EQ(type("2.5"), u"DOS CON 50/100"_s);
    EXPECT_EQ(messages(), 2);
}

TEST_F(NumletrasWindowTest, EnglishNeverWarnsAndValencianIsToldOnceThenSpelledInSpanish)
{
    open(CargarIngles);
    EXPECT_EQ(type("x"), u"Non Numeric text"_s);
    EXPECT_EQ(type("12"), u"   Twelve"_s);
    EXPECT_EQ(messages(), 0);

    forms().unload(u"numletras"_s);
    open(CargarValenciano);
    ASSERT_EQ(messages(), 1);
    EXPECT_EQ(fakes().dialogs.messages.first().text, texto(slot::SoloEspanol));
    EXPECT_EQ(type("12"), u"DOCE"_s);
}

} // namespace
} // namespace zafro
