#include "error_number.h"
#include "fakes.h"
#include "maths/romanos.h"
#include "maths/romanos_window.h"
#include "runtime/runtime_error.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"
#include "window_test.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;

// --- Arabic to Roman -------------------------------------------------------------

TEST(ConvertirRomano, WritesEachPlaceWithItsOwnSymbolsAndNothingForZeroOrFiveDigits)
{
    // clang-format off
    const struct {
        qint16 numero;
        const char *romano;
    } rows[] = {
        {1, "I"},           {3, "III"}, {4, "IV"},          {5, "V"}, {8, "VIII"},        {9, "IX"},
        {14, "XIV"},        {40, "XL"}, {49, "XLIX"},       {90, "XC"},
        {400, "CD"},        {900, "CM"}, {1994, "MCMXCIV"},  {3999, "MMMCMXCIX"},
        {4000, "MQ"},       {5000, "Q"}, {6000, "QM"},       {8000, "QMMM"},
        {9000, "MH"},       {8888, "QMMMDCCCLXXXVIII"}, {9999, "MHCMXCIX"}, {0, ""},
        {10000, ""},        {32767, ""},
    };
    // clang-format on
    for (const auto &row : rows)
        EXPECT_EQ(ConvertirRomano(row.numero), QLatin1String(row.romano)) << row.numero;
    for (qint16 numero : {-1, -32768})
        EXPECT_EQ(test::errorNumber([numero] { ConvertirRomano(numero); }), 13)
            << numero << ": the sign is a type mismatch";
}

TEST(ConvertirRomano, EveryWritableNumberReadsBackToItself)
{
    for (int numero = 1; numero <= 9999; ++numero) {
        const QString romano = ConvertirRomano(qint16(numero));
        ASSERT_EQ(ConvertirArabe(romano), numero) << numero << " " << romano.toStdString();
    }
}

// --- Roman to Arabic -------------------------------------------------------------

TEST(ConvertirArabe, AddsOrSubtractsEachLetterByTheOneAfterItWithoutGrammar)
{
    const struct {
        const char *romano;
        qint16 valor;
    } rows[] = {
        {"", 0},      {"   ", 0},   {"MQ", 4000},    {"Q", 5000},
        {"MH", 9000}, {"H", 10000}, {"IIII", 4},     {"IC", 99},
        {"IM", 999},  {"ABC", 100}, {"iv", 0},       {"XLH", 9940},
        {"VX", 5},    {"IIV", 5},   {"  XIV  ", 14}, {"HHHMMDCCLXVII", 32767},
    };
    for (const auto &row : rows)
        EXPECT_EQ(ConvertirArabe(QLatin1String(row.romano)), row.valor) << '"' << row.romano << '"';
    for (const char *romano : {"HHHMMDCCLXVIII", "HHHH", "QQQQQQQ"})
        EXPECT_EQ(test::errorNumber([romano] { ConvertirArabe(QLatin1String(romano)); }), 6)
            << romano << ": beyond sixteen bits";
    const struct {
        const char *letra;
        qint16 valor;
    } letters[] = {{"I", 1},   {"V", 5},    {"X", 10},   {"L", 50},    {"C", 100},
                   {"D", 500}, {"M", 1000}, {"Q", 5000}, {"H", 10000}, {"i", 0},
                   {"A", 0},   {"", 0},     {"II", 0}};
    for (const auto &row : letters)
        EXPECT_EQ(VerValor(QLatin1String(row.letra)), row.valor) << '"' << row.letra << '"';
}

// --- Number bases ----------------------------------------------------------------

TEST(HexADec, ReadsBothCasesAndSkipsOtherCharactersKeepingTheirPlace)
{
    // clang-format off
    const struct {
        const char *hexa;
        double valor;
    } rows[] = {
        {"ff", 255}, {"fF", 255}, {"1G", 16}, {"G1", 1}, {"1x0", 256}, {"", 0}, {"A", 10},
        {"400", 1024}, {"7FFFFFFF", 2147483647.0}, {"FFFFFFFFFF", 1099511627775.0},
    };
    // clang-format on
    for (const auto &row : rows)
        EXPECT_EQ(HexADec(QLatin1String(row.hexa)), row.valor) << row.hexa;
    EXPECT_GT(HexADec(QLatin1Char('F') + QString(255, QLatin1Char('0'))), 1e307);
    const QString tooLong = QLatin1Char('1') + QString(256, QLatin1Char('0'));
    EXPECT_EQ(test::errorNumber([&] { HexADec(tooLong); }), 6) << "beyond the double range";
}

TEST(BinADec, ReadsEachCharacterAsANumberByItsPlace)
{
    // clang-format off
    const struct {
        const char *binario;
        qint32 valor;
    } rows[] = {
        {"101", 5}, {"", 0}, {"0001", 1}, {"2", 2}, {"12", 4},
        {"1111111111111111111111111111111", 2147483647},
    };
    // clang-format on
    for (const auto &row : rows)
        EXPECT_EQ(BinADec(QLatin1String(row.binario)), row.valor) << row.binario;
    for (const char *binario : {"1a", "1 1", "1.1", "-1", "1,0", "b"})
        EXPECT_EQ(test::errorNumber([binario] { BinADec(QLatin1String(binario)); }), 13) << binario;
    const QString twoToThe31 = QLatin1Char('1') + QString(31, QLatin1Char('0'));
    EXPECT_EQ(test::errorNumber([&] { BinADec(twoToThe31); }), 6);
    EXPECT_EQ(BinADec(QString(40, QLatin1Char('0')) + QLatin1String("11")), 3);
}

TEST(DecABin, WritesRemaindersFromTheLastAndKeepsTheirSignForNegatives)
{
    const struct {
        qint32 valor;
        const char *binario;
    } rows[] = {
        {0, "0"},   {1, "1"},    {5, "101"},    {2147483647, "1111111111111111111111111111111"},
        {-1, "-1"}, {-2, "-10"}, {-5, "-10-1"}, {-6, "-1-10"}};
    for (const auto &row : rows)
        EXPECT_EQ(DecABin(row.valor), QLatin1String(row.binario)) << row.valor;
    EXPECT_EQ(DecABin(-2147483647 - 1), QLatin1String("-1") + QString(31, QLatin1Char('0')));
}

// --- The window ------------------------------------------------------------------

class RomanosWindowTest : public test::WindowTest {
protected:
    void SetUp() override
    {
        forms().registerForm(u"romanos"_s, [] { return new RomanosWindow; });
        guardarSkin(1);
        CargarEspanol();
    }
    RomanosWindow *abrir()
    {
        auto *romanos = static_cast<RomanosWindow *>(open("romanos"));
        text1 = get<QLineEdit>("Text1");
        text2 = get<QLineEdit>("Text2");
        label1 = get<QLabel>("Label1");
        return romanos;
    }
    void clickOn(QWidget *w) { QTest::mouseClick(w, Qt::LeftButton); }

    QLineEdit *text1 = nullptr;
    QLineEdit *text2 = nullptr;
    QLabel *label1 = nullptr;
};

TEST_F(RomanosWindowTest, LoadsWithItsExamplesInTheSkinAndLanguage)
{
    guardarSkin(7);
    abrir();
    EXPECT_EQ(text1->text() + text2->text(), u"123CXXIII"_s);
    EXPECT_EQ(textOf("Command2"), u"a romanos"_s);
    EXPECT_EQ(window->findChild<QTimer *>(u"Timer1"_s), nullptr)
        << "this window has no animated title";
    const BuiltInSkin *skin = builtInSkin(7);
    ASSERT_NE(skin, nullptr);
    EXPECT_EQ(get<QLabel>("Label2")->palette().color(QPalette::WindowText),
              colourFromNumber(skin->tituloForeColor));
    EXPECT_EQ(label1->palette().color(QPalette::WindowText), colourFromNumber(skin->foreColor));

    forms().unload(u"romanos"_s);
    CargarIngles();
    abrir();
    EXPECT_EQ(textOf("Label2") + textOf("Command1"), u"Roman Numeralsto arabic"_s);
}

TEST_F(RomanosWindowTest, TypingAndEnterConvertBothWaysAndEnterStaysOutOfTheBox)
{
    abrir();
    QSignalSpy returns1(text1, &QLineEdit::returnPressed);
    clickOn(text1);
    EXPECT_EQ(text1->text(), QString()) << "the example goes at the first click";
    QTest::keyClicks(text1, u"1994"_s);
    QTest::keyClick(text1, Qt::Key_Return);
    EXPECT_EQ(label1->text(), u"MCMXCIV"_s);
    EXPECT_EQ(text1->text(), u"1994"_s);
    EXPECT_EQ(returns1.count(), 0);

    QSignalSpy returns2(text2, &QLineEdit::returnPressed);
    clickOn(text2);
    EXPECT_EQ(text2->text(), QString());
    QTest::keyClicks(text2, u"iv"_s);
    QTest::keyClick(text2, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(text2->text() + label1->text(), u"IV4"_s);
    EXPECT_EQ(returns2.count(), 0);
    QTest::keyClick(text1, Qt::Key_A);
    EXPECT_EQ(text1->text(), u"1994a"_s) << "other keys are typed as usual";
}

TEST_F(RomanosWindowTest, TheButtonsReadTheBoxesAndAClickEmptiesOnlyAnExample)
{
    abrir();
    text1->setText(u"124"_s);
    text2->setText(u"cxxiii"_s);
    clickOn(text1);
    clickOn(text2);
    EXPECT_EQ(text1->text() + text2->text(), u"124cxxiii"_s);
    click("Command1"); // upper-cases it into the example
    EXPECT_EQ(label1->text(), u"123"_s);
    clickOn(text2);
    EXPECT_EQ(text2->text(), QString());

    const struct {
        const char *arabe, *romano;
    } rows[] = {{"10000", ""}, {"abc", ""}, {"12.5", "XII"}, {"&H10", "XVI"}};
    for (const auto &row : rows) {
        text1->setText(QLatin1String(row.arabe));
        label1->setText(u"previous"_s);
        click("Command2");
        EXPECT_EQ(label1->text(), QLatin1String(row.romano)) << row.arabe;
    }
    text2->setText(u" mcmxciv "_s);
    click("Command1");
    EXPECT_EQ(text2->text() + label1->text(), u" MCMXCIV 1994"_s);
}

TEST_F(RomanosWindowTest, SixteenBitOverflowsAndTheSignLeaveTheHandlerAsRunTimeErrors)
{
    RomanosWindow *romanos = abrir();
    for (const char *arabe : {"40000", "-40000"}) {
        text1->setText(QLatin1String(arabe));
        EXPECT_EQ(test::errorNumber([&] { romanos->command2Click(); }), 6) << arabe;
        int enter = 13;
        EXPECT_EQ(test::errorNumber([&] { romanos->text1KeyPress(enter); }), 6) << arabe;
    }
    text1->setText(u"-5"_s);
    EXPECT_EQ(test::errorNumber([&] { romanos->command2Click(); }), 13);
    text2->setText(u"hhhh"_s);
    int enter = 13;
    EXPECT_EQ(test::errorNumber([&] { romanos->text2KeyPress(enter); }), 6);
    EXPECT_EQ(text2->text(), u"HHHH"_s) << "the box is rewritten before the sum";
}

TEST_F(RomanosWindowTest, TheLongestNumeralAndEveryCaptionFitTheirControls)
{
    for (auto loader : {&CargarEspanol, &CargarIngles, &CargarValenciano}) {
        loader();
        abrir();
        text1->setText(u"8888"_s);
        click("Command2");
        for (QLabel *label : window->findChildren<QLabel *>())
            EXPECT_LE(label->sizeHint().width(), label->width())
                << label->objectName().toStdString();
        for (QPushButton *button : window->findChildren<QPushButton *>())
            EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), button->width())
                << button->objectName().toStdString();
        forms().unload(u"romanos"_s);
    }
}

} // namespace
} // namespace zafro
