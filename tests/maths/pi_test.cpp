#include "error_number.h"
#include "fakes.h"
#include "maths/pi.h"
#include "maths/pi_window.h"
#include "runtime/arith.h"
#include "runtime/region.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

namespace zafro {
namespace {

using test::errorNumber;
using test::fakes;

// One term at a time, in checked 32-bit arithmetic, as the method reads.
QString piLlano(qint32 grupos)
{
    std::vector<qint32> t(size_t(grupos) + 2), s(size_t(grupos) + 2);
    qint32 inicio = 1, fin = 2, divisor = 3;
    t[1] = s[1] = 3;
    t[2] = s[2] = 2000;
    const auto saltar = [&](qint32 hasta) {
        while (inicio <= hasta && t[size_t(inicio)] == 0)
            ++inicio;
    };
    const auto dividir = [](qint32 &resto, qint32 entra, qint32 d) {
        const qint32 x = add32(mul32(resto, 10000), entra);
        resto = x % d;
        return x / d;
    };
    while (inicio < grupos) {
        for (const int signo : {-1, 1}) {
            qint32 r1 = 0, r2 = 0;
            for (qint32 i = inicio; i <= grupos; ++i) {
                const qint32 q = i <= fin + 1 ? (t[size_t(i)] = dividir(r1, t[size_t(i)], 25)) : 0;
                s[size_t(i)] += signo * dividir(r2, q, divisor);
            }
            if (fin == grupos) // its last group lies past Grupos
                s[size_t(grupos) + 1] +=
                    signo * dividir(r2,
                                    t[size_t(grupos) + 1] = dividir(r1, t[size_t(grupos) + 1], 25),
                                    divisor);
            saltar(grupos + 1);
            if (t[size_t(fin) + 1] > 0 && fin < grupos)
                ++fin;
            divisor += 2;
        }
    }
    qint32 resto = 4;
    for (qint32 i = 2; i <= grupos; ++i)
        s[size_t(i)] -= (t[size_t(i)] = dividir(resto, 0, 239));
    inicio = 2;
    divisor = 3;
    while (inicio < grupos) {
        qint32 r1 = t[size_t(inicio++)], r2 = 0, r3 = 0, r4 = 0;
        for (qint32 i = inicio; i <= grupos; ++i) {
            const qint32 q = dividir(r1, t[size_t(i)], 57121);
            s[size_t(i)] += dividir(r2, q, divisor);
            t[size_t(i)] = dividir(r3, q, 57121);
            s[size_t(i)] -= dividir(r4, t[size_t(i)], divisor + 2);
        }
        saltar(grupos);
        divisor += 4;
    }
    for (qint32 i = grupos; i >= 2; --i) {
        const qint32 c = s[size_t(i)] >= 10000 ? s[size_t(i)] / 10000
                         : s[size_t(i)] < 0    ? s[size_t(i)] / 10000 - 1
                                               : 0;
        s[size_t(i)] -= c * 10000;
        s[size_t(i) - 1] += c;
    }
    if (s[size_t(grupos) - 1] >= 5000)
        s[size_t(grupos) - 2] += 1;
    const auto grupo = [&](qint32 indice, int corte) {
        const QString d = QString::number(s[size_t(indice)]).rightJustified(4, QLatin1Char('0'));
        return d.chopped(4 - corte) + QLatin1Char(' ') + d.right(4 - corte);
    };
    QString texto = QStringLiteral(" PI = 3, \n ");
    const qint32 m = grupos / 3;
    for (qint32 i = 1; i < m; ++i) {
        texto += grupo(3 * i - 1, 3) + grupo(3 * i, 2) + grupo(3 * i + 1, 1) + QLatin1Char(' ');
        if (i % 5 == 0)
            texto += QStringLiteral("\n ");
    }
    return texto + grupo(3 * m - 1, 3) + QStringLiteral("\n\n");
}

QString piRapido(double digitos)
{
    const PiTamano tamano = tamanoPi(digitos);
    std::vector<qint32> suma;
    EXPECT_TRUE(calcularSumaPi(tamano.grupos, suma));
    return imprimirPi(suma, tamano.grupos);
}

TEST(Pi, PrintsWhatTheTermByTermMethodPrints)
{
    for (int digitos = 0; digitos <= 200; ++digitos)
        ASSERT_EQ(piRapido(digitos), piLlano(tamanoPi(digitos).grupos)) << digitos;
    for (const int digitos : {1000, 2345, 5000})
        EXPECT_EQ(piRapido(digitos), piLlano(tamanoPi(digitos).grupos)) << digitos;
    EXPECT_EQ(piRapido(0), QStringLiteral(" PI = 3, \n 141 5\n\n"));
    // kept: the rounding lands on a group before the last one printed.
    EXPECT_EQ(piRapido(12), QStringLiteral(" PI = 3, \n 141 592 653 590 793 2\n\n"));
}

TEST(Pi, TenThousandDecimalsMatchTheReferenceUpToTheRoundedLastGroup)
{
    QFile file(QStringLiteral(PI_REFERENCIA));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString referencia = QString::fromLatin1(file.readAll()).simplified().remove(u' ');
    QString impreso = piRapido(10000);
    const QStringList lineas = impreso.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lineas.size(), 1 + 167);
    EXPECT_EQ(lineas[1].size(), 81); // a blank, then 60 digits in blocks of three
    impreso = impreso.mid(impreso.indexOf(u'\n')).remove(u' ').remove(u'\n');
    ASSERT_EQ(impreso.size(), 10000);
    EXPECT_EQ(impreso.left(9996), referencia.left(9996));
    EXPECT_EQ(referencia.mid(9996, 8), QStringLiteral("56785667"));
    EXPECT_EQ(impreso.right(4), QStringLiteral("5679"));
}

TEST(Pi, SizesTimeAndTheThirtyTwoBitCeiling)
{
    EXPECT_EQ(tamanoPi(5000).cifras, 5008);
    EXPECT_EQ(tamanoPi(5000).grupos, 1253);
    EXPECT_EQ(tamanoPi(10.9).cifras, 18);
    for (const double digitos : {1000001.0, 2147483640.0, 1e15})
        EXPECT_EQ(errorNumber([&] { tamanoPi(digitos); }), 6) << digitos;

    const ScopedDecimalMark comma(QLatin1Char(','));
    EXPECT_EQ(tiempoPi(100.0f, 101.5f), QStringLiteral("1,5"));
    EXPECT_EQ(tiempoPi(100.0f, 100.0f), QStringLiteral("0,00002"));
    EXPECT_EQ(tiempoPi(86399.5f, 0.5f), QStringLiteral("0,00002")); // over midnight
}

// The window: a run on its worker, its stop, and a close in the middle of one.
class PiWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
        window = forms().show(QStringLiteral("pi"));
        ASSERT_NE(window, nullptr);
        pi = static_cast<PiWindow *>(window);
        text1 = window->findChild<QLineEdit *>(QStringLiteral("Text1"));
        text2 = window->findChild<QPlainTextEdit *>(QStringLiteral("Text2"));
        command1 = window->findChild<QPushButton *>(QStringLiteral("Command1"));
        barra = window->findChild<QProgressBar *>(QStringLiteral("ProgressBar1"));
        parar = window->findChild<QPushButton *>(QStringLiteral("Command5"));
        ASSERT_TRUE(text1 && text2 && command1 && barra && parar);
    }
    bool corriendo() const
    {
        return text2->isHidden() && !command1->isEnabled() && !text1->isEnabled() &&
               barra->isVisible() && parar->isVisible();
    }

    QWidget *window = nullptr;
    PiWindow *pi = nullptr;
    QLineEdit *text1 = nullptr;
    QPlainTextEdit *text2 = nullptr;
    QPushButton *command1 = nullptr;
    QProgressBar *barra = nullptr;
    QPushButton *parar = nullptr;
};

TEST_F(PiWindowTest, PrintsTheDigitsAndTheTimeOfTheCountAsked)
{
    const ScopedDecimalMark comma(QLatin1Char(','));
    EXPECT_EQ(text1->text(), QStringLiteral("5000"));
    EXPECT_EQ(text2->toPlainText(), QStringLiteral(" PI = 3, \n"));
    fakes().clock.timerStep = 2.5f;
    text1->setText(QStringLiteral("-200"));
    QTest::mouseClick(command1, Qt::LeftButton);
    EXPECT_EQ(text1->text(), QStringLiteral("200"));
    EXPECT_TRUE(corriendo());
    QTRY_VERIFY(text2->isVisible());
    EXPECT_EQ(text2->toPlainText(),
              piLlano(tamanoPi(200).grupos) +
                  QStringLiteral("\n Se ha tardado 2,5 segundos en generar 200 dígitos"));
    EXPECT_TRUE(command1->isEnabled() && text1->isEnabled());
    EXPECT_FALSE(barra->isVisible() || parar->isVisible());

    text1->setText(QStringLiteral("muchos"));
    EXPECT_EQ(errorNumber([&] { pi->command1Click(); }), 13);
    EXPECT_EQ(errorNumber([&] { pi->calculoFallado(RuntimeError::overflow()); }), 6);
    pi->command4Click();
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages.first().title, QStringLiteral("dígitos"));
}

TEST_F(PiWindowTest, StoppingLeavesTheOldTextAndClosingMidRunEndsCleanly)
{
    text1->setText(QStringLiteral("120000"));
    QTest::mouseClick(command1, Qt::LeftButton);
    ASSERT_TRUE(corriendo());
    QTRY_VERIFY(barra->value() > 0);
    QTest::mouseClick(parar, Qt::LeftButton);
    EXPECT_TRUE(text2->isVisible());
    EXPECT_EQ(text2->toPlainText(), QStringLiteral(" PI = 3, \n"));
    EXPECT_TRUE(command1->isEnabled());
    QTest::qWait(20); // nothing of the stopped run arrives later
    EXPECT_EQ(text2->toPlainText(), QStringLiteral(" PI = 3, \n"));

    QTest::mouseClick(command1, Qt::LeftButton);
    ASSERT_TRUE(corriendo());
    forms().unload(QStringLiteral("pi"));
    EXPECT_EQ(forms().find(QStringLiteral("pi")), nullptr);
}

} // namespace
} // namespace zafro
