#include "error_number.h"
#include "fakes.h"
#include "maths/romanos.h"
#include "maths/romanos_window.h"
#include "runtime/runtime_error.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>

namespace zafro {
namespace {

// --- Arabic to Roman -------------------------------------------------------------

TEST(ConvertirRomano, WritesEachPlaceWithItsOwnSymbols)
{
    const struct {
        qint16 numero;
        const char *romano;
    } rows[] = {
        {1, "I"},           {3, "III"},          {4, "IV"},
        {5, "V"},           {8, "VIII"},         {9, "IX"},
        {10, "X"},          {14, "XIV"},         {40, "XL"},
        {49, "XLIX"},       {90, "XC"},          {101, "CI"},
        {400, "CD"},        {900, "CM"},         {1994, "MCMXCIV"},
        {2024, "MMXXIV"},   {3999, "MMMCMXCIX"}, {4000, "MQ"},
        {5000, "Q"},        {6000, "QM"},        {7000, "QMM"},
        {8000, "QMMM"},     {9000, "MH"},        {8888, "QMMMDCCCLXXXVIII"},
        {9999, "MHCMXCIX"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(ConvertirRomano(row.numero), QLatin1String(row.romano)) << row.numero;
}

TEST(ConvertirRomano, ZeroAndFiveDigitNumbersGiveEmptyText)
{
    for (qint16 numero : {0, 10000, 10001, 12345, 20000, 32767})
        EXPECT_EQ(ConvertirRomano(numero), QString()) << numero;
}

TEST(ConvertirRomano, TheSignOfANegativeNumberIsATypeMismatch)
{
    for (qint16 numero : {-1, -5, -1234, -32768})
        EXPECT_EQ(test::errorNumber([numero] { ConvertirRomano(numero); }), 13) << numero;
}

TEST(ConvertirRomano, EveryWritableNumberReadsBackToItself)
{
    for (int numero = 1; numero <= 9999; ++numero) {
        const QString romano = ConvertirRomano(qint16(numero));
        ASSERT_EQ(ConvertirArabe(romano), numero) << numero << " " << romano.toStdString();
    }
}

// --- Roman to Arabic -------------------------------------------------------------

TEST(VerValor, KnowsNineUpperCaseLettersAndNothingElse)
{
    const struct {
        const char *letra;
        qint16 valor;
    } rows[] = {
        {"I", 1},    {"V", 5},    {"X", 10},    {"L", 50}, {"C", 100}, {"D", 500},
        {"M", 1000}, {"Q", 5000}, {"H", 10000}, {"i", 0},  {"q", 0},   {"h", 0},
        {"A", 0},    {"0", 0},    {" ", 0},     {"", 0},   {"II", 0},
    };
    for (const auto &row : rows)
        EXPECT_EQ(VerValor(QLatin1String(row.letra)), row.valor) << '"' << row.letra << '"';
}

TEST(ConvertirArabe, AddsOrSubtractsEachLetterByTheOneAfterItWithoutGrammar)
{
    const struct {
        const char *romano;
        qint16 valor;
    } rows[] = {
        {"", 0},
        {"   ", 0},
        {"MCMXCIV", 1994},
        {"MQ", 4000},
        {"Q", 5000},
        {"MH", 9000},
        {"H", 10000},
        {"IIII", 4},
        {"IC", 99},
        {"IM", 999},
        {"ABC", 100},
        {"  XIV  ", 14},
        {"iv", 0},
        {"XLH", 9940},
        {"VX", 5},
        {"IIV", 5},
        {"HHHMMDCCLXVII", 32767},
    };
    for (const auto &row : rows)
        EXPECT_EQ(ConvertirArabe(QLatin1String(row.romano)), row.valor) << '"' << row.romano << '"';
}

TEST(ConvertirArabe, ATotalBeyondSixteenBitsIsAnOverflow)
{
    for (const char *romano : {"HHHMMDCCLXVIII", "HHHH", "HHHQ", "QQQQQQQ"})
        EXPECT_EQ(test::errorNumber([romano] { ConvertirArabe(QLatin1String(romano)); }), 6)
            << romano;
}

// --- Number bases ----------------------------------------------------------------

TEST(HexADec, ReadsBothCasesAndSkipsOtherCharactersKeepingTheirPlace)
{
    const struct {
        const char *hexa;
        double valor;
    } rows[] = {
        {"FF", 255},
        {"ff", 255},
        {"fF", 255},
        {"1G", 16},
        {"G1", 1},
        {"1x0", 256},
        {"", 0},
        {"0", 0},
        {"A", 10},
        {"400", 1024},
        {"7FFFFFFF", 2147483647.0},
        {"FFFFFFFFFF", 1099511627775.0},
    };
    for (const auto &row : rows)
        EXPECT_EQ(HexADec(QLatin1String(row.hexa)), row.valor) << row.hexa;
}

TEST(HexADec, APlaceBeyondTheDoubleRangeIsAnOverflow)
{
    const QString largest = QLatin1Char('F') + QString(255, QLatin1Char('0'));
    EXPECT_GT(HexADec(largest), 1e307);
    const QString tooLong = QLatin1Char('1') + QString(256, QLatin1Char('0'));
    EXPECT_EQ(test::errorNumber([&] { HexADec(tooLong); }), 6);
}

TEST(BinADec, ReadsEachCharacterAsANumberByItsPlace)
{
    const struct {
        const char *binario;
        qint32 valor;
    } rows[] = {
        {"101", 5},
        {"0", 0},
        {"", 0},
        {"1", 1},
        {"10", 2},
        {"0001", 1},
        {"2", 2},
        {"12", 4},
        {"10000000000", 1024},
        {"1111111111111111111111111111111", 2147483647},
    };
    for (const auto &row : rows)
        EXPECT_EQ(BinADec(QLatin1String(row.binario)), row.valor) << row.binario;
}

TEST(BinADec, ACharacterThatIsNoNumberIsATypeMismatchAndBigSumsOverflow)
{
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
        {0, "0"},
        {1, "1"},
        {2, "10"},
        {5, "101"},
        {1024, "10000000000"},
        {2147483647, "1111111111111111111111111111111"},
        {-1, "-1"},
        {-2, "-10"},
        {-5, "-10-1"},
        {-6, "-1-10"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(DecABin(row.valor), QLatin1String(row.binario)) << row.valor;
    EXPECT_EQ(DecABin(-2147483647 - 1), QLatin1String("-1") + QString(31, QLatin1Char('0')));
}

// --- The window ------------------------------------------------------------------

template <typename T> T *child(QWidget *window, const char *name)
{
    T *found = window->findChild<T *>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

class RomanosWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        forms().registerForm(QStringLiteral("romanos"), [] { return new RomanosWindow; });
        guardarSkin(1);
        CargarEspanol();
    }

    RomanosWindow *open()
    {
        window = qobject_cast<RomanosWindow *>(forms().show(QStringLiteral("romanos")));
        EXPECT_NE(window, nullptr);
        text1 = child<QLineEdit>(window, "Text1");
        text2 = child<QLineEdit>(window, "Text2");
        label1 = child<QLabel>(window, "Label1");
        return window;
    }

    void click(QWidget *w) { QTest::mouseClick(w, Qt::LeftButton); }

    RomanosWindow *window = nullptr;
    QLineEdit *text1 = nullptr;
    QLineEdit *text2 = nullptr;
    QLabel *label1 = nullptr;
};

TEST_F(RomanosWindowTest, LoadsWithItsExamplesAndTheCaptionsOfTheLanguage)
{
    open();
    EXPECT_EQ(text1->text(), QStringLiteral("123"));
    EXPECT_EQ(text2->text(), QStringLiteral("CXXIII"));
    EXPECT_EQ(child<QLabel>(window, "Label2")->text(), QStringLiteral("Números Romanos"));
    EXPECT_EQ(child<QPushButton>(window, "Command2")->text(), QStringLiteral("a romanos"));
    EXPECT_EQ(child<QPushButton>(window, "Command1")->text(), QStringLiteral("a árabes"));
    EXPECT_EQ(window->findChild<QTimer *>(QStringLiteral("Timer1")), nullptr)
        << "this window has no animated title";

    forms().unload(QStringLiteral("romanos"));
    CargarIngles();
    open();
    EXPECT_EQ(child<QLabel>(window, "Label2")->text(), QStringLiteral("Roman Numerals"));
    EXPECT_EQ(child<QPushButton>(window, "Command2")->text(), QStringLiteral("to roman"));
    EXPECT_EQ(child<QPushButton>(window, "Command1")->text(), QStringLiteral("to arabic"));
}

TEST_F(RomanosWindowTest, TheTitleLabelTakesTheTitleColour)
{
    guardarSkin(7);
    open();
    const BuiltInSkin *skin = builtInSkin(7);
    ASSERT_NE(skin, nullptr);
    EXPECT_EQ(child<QLabel>(window, "Label2")->palette().color(QPalette::WindowText),
              colourFromNumber(skin->tituloForeColor));
    EXPECT_EQ(label1->palette().color(QPalette::WindowText), colourFromNumber(skin->foreColor));
}

TEST_F(RomanosWindowTest, TypingAndEnterConvertBothWaysAndEnterStaysOutOfTheBox)
{
    open();
    QSignalSpy returns1(text1, &QLineEdit::returnPressed);
    click(text1);
    EXPECT_EQ(text1->text(), QString()) << "the example goes at the first click";
    QTest::keyClicks(text1, QStringLiteral("1994"));
    QTest::keyClick(text1, Qt::Key_Return);
    EXPECT_EQ(label1->text(), QStringLiteral("MCMXCIV"));
    EXPECT_EQ(text1->text(), QStringLiteral("1994"));
    EXPECT_EQ(returns1.count(), 0);

    QSignalSpy returns2(text2, &QLineEdit::returnPressed);
    click(text2);
    EXPECT_EQ(text2->text(), QString());
    QTest::keyClicks(text2, QStringLiteral("iv"));
    QTest::keyClick(text2, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(text2->text(), QStringLiteral("IV"));
    EXPECT_EQ(label1->text(), QStringLiteral("4"));
    EXPECT_EQ(returns2.count(), 0);

    QTest::keyClick(text1, Qt::Key_A);
    EXPECT_EQ(text1->text(), QStringLiteral("1994a")) << "other keys are typed as usual";
}

TEST_F(RomanosWindowTest, AClickEmptiesABoxOnlyWhileItShowsItsExample)
{
    open();
    text1->setText(QStringLiteral("124"));
    text2->setText(QStringLiteral("cxxiii"));
    click(text1);
    click(text2);
    EXPECT_EQ(text1->text(), QStringLiteral("124"));
    EXPECT_EQ(text2->text(), QStringLiteral("cxxiii"));
    click(child<QPushButton>(window, "Command1")); // upper-cases it into the example
    click(text2);
    EXPECT_EQ(text2->text(), QString());
}

TEST_F(RomanosWindowTest, TheButtonsReadTheBoxesAsTheToolDoes)
{
    open();
    auto *command1 = child<QPushButton>(window, "Command1");
    auto *command2 = child<QPushButton>(window, "Command2");
    const struct {
        const char *arabe;
        const char *romano;
    } rows[] = {
        {"4000", "MQ"},  {"9000", "MH"},  {"10000", ""},   {"0", ""},    {"abc", ""},
        {"12.5", "XII"}, {"13.5", "XIV"}, {" 1 9", "XIX"}, {"1e3", "M"}, {"&H10", "XVI"},
    };
    for (const auto &row : rows) {
        text1->setText(QLatin1String(row.arabe));
        label1->setText(QStringLiteral("previous"));
        click(command2);
        EXPECT_EQ(label1->text(), QLatin1String(row.romano)) << row.arabe;
    }
    text2->setText(QStringLiteral(" mcmxciv "));
    click(command1);
    EXPECT_EQ(text2->text(), QStringLiteral(" MCMXCIV "));
    EXPECT_EQ(label1->text(), QStringLiteral("1994"));
    text2->setText(QStringLiteral("h"));
    click(command1);
    EXPECT_EQ(label1->text(), QStringLiteral("10000"));
}

TEST_F(RomanosWindowTest, SixteenBitOverflowsAndTheSignLeaveTheHandlerAsRunTimeErrors)
{
    open();
    label1->setText(QStringLiteral("before"));
    for (const char *arabe : {"40000", "32768", "-40000"}) {
        text1->setText(QLatin1String(arabe));
        EXPECT_EQ(test::errorNumber([this] { window->command2Click(); }), 6) << arabe;
        int enter = 13;
        EXPECT_EQ(test::errorNumber([&] { window->text1KeyPress(enter); }), 6) << arabe;
    }
    text1->setText(QStringLiteral("-5"));
    EXPECT_EQ(test::errorNumber([this] { window->command2Click(); }), 13);
    text1->setText(QStringLiteral("32767"));
    EXPECT_EQ(test::errorNumber([this] { window->command2Click(); }), 0);

    text2->setText(QStringLiteral("hhhh"));
    int enter = 13;
    EXPECT_EQ(test::errorNumber([&] { window->text2KeyPress(enter); }), 6);
    EXPECT_EQ(text2->text(), QStringLiteral("HHHH")) << "the box is rewritten before the sum";
    EXPECT_EQ(label1->text(), QString()) << "32767 has five digits";
}

TEST_F(RomanosWindowTest, TheLongestNumeralAndEveryCaptionFitTheirControls)
{
    for (auto loader : {&CargarEspanol, &CargarIngles, &CargarValenciano}) {
        loader();
        open();
        text1->setText(QStringLiteral("8888"));
        window->command2Click();
        for (const char *name : {"Label1", "Label2"}) {
            const QLabel *label = child<QLabel>(window, name);
            EXPECT_LE(label->sizeHint().width(), label->width()) << name;
        }
        for (const char *name : {"Command1", "Command2"}) {
            const QPushButton *button = child<QPushButton>(window, name);
            EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), button->width())
                << name;
        }
        forms().unload(QStringLiteral("romanos"));
    }
}

} // namespace
} // namespace zafro
