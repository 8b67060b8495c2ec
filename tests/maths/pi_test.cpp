#include "error_number.h"
#include "fakes.h"
#include "maths/pi.h"
#include "maths/pi_window.h"
#include "runtime/arith.h"
#include "runtime/numtext.h"
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

using namespace Qt::Literals::StringLiterals;

using test::errorNumber;
using test::fakes;

// One term at a time, in checked 32-bit arithmetic, as the method reads.
QString piLlano(qint32 grupos)
{
    std::vector<qint32> t(grupos + 2), s(grupos + 2);
    qint32 inicio = 1, fin = 2, divisor = 3;
    t[1] = s[1] = 3;
    t[2] = s[2] = 2000;
    const auto saltar = [&](qint32 hasta) {
        while (inicio <= hasta && t[inicio] == 0)
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
            // The term's own groups end at Fin + 1, which may lie past Grupos.
            for (qint32 i = inicio; i <= std::max(grupos, fin + 1); ++i) {
                const qint32 q = i <= fin + 1 ? (t[i] = dividir(r1, t[i], 25)) : 0;
                s[i] += signo * dividir(r2, q, divisor);
            }
            saltar(grupos + 1);
            if (t[fin + 1] > 0 && fin < grupos)
                ++fin;
            divisor += 2;
        }
    }
    qint32 resto = 4;
    for (qint32 i = 2; i <= grupos; ++i)
        s[i] -= (t[i] = dividir(resto, 0, 239));
    inicio = 2;
    divisor = 3;
    while (inicio < grupos) {
        qint32 r1 = t[inicio++], r2 = 0, r3 = 0, r4 = 0;
        for (qint32 i = inicio; i <= grupos; ++i) {
            const qint32 q = dividir(r1, t[i], 57121);
            s[i] += dividir(r2, q, divisor);
            t[i] = dividir(r3, q, 57121);
            s[i] -= dividir(r4, t[i], divisor + 2);
        }
        saltar(grupos);
        divisor += 4;
    }
    for (qint32 i = grupos; i >= 2; --i) {
        const qint32 c = s[i] >= 10000 ? s[i] / 10000 : s[i] < 0 ? s[i] / 10000 - 1 : 0;
        s[i] -= c * 10000;
        s[i - 1] += c;
    }
    if (s[grupos - 1] >= 5000)
        s[grupos - 2] += 1;
    const auto grupo = [&](qint32 i, const char *mascara) { return Format(s[i], mascara); };
    QString texto = u" PI = 3, \n "_s;
    const qint32 m = grupos / 3;
    for (qint32 i = 1; i < m; ++i) {
        texto +=
            grupo(3 * i - 1, "000\\ 0") + grupo(3 * i, "00\\ 00") + grupo(3 * i + 1, "0\\ 000\\ ");
        if (i % 5 == 0)
            texto += u"\n "_s;
    }
    return texto + grupo(3 * m - 1, "000\\ 0") + u"\n\n"_s;
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
    EXPECT_EQ(piRapido(0), u" PI = 3, \n 141 5\n\n"_s);
    // kept: the rounding lands on a group before the last one printed.
    EXPECT_EQ(piRapido(12), u" PI = 3, \n 141 592 653 590 793 2\n\n"_s);
}

TEST(Pi, TenThousandDecimalsMatchTheReferenceUpToTheRoundedLastGroup)
{
    QFile file(QStringLiteral(PI_REFERENCIA));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString referencia = QString::fromLatin1(file.readAll()).simplified().remove(u' ');
    QString impreso = piRapido(10000);
    impreso = impreso.mid(impreso.indexOf(u'\n')).remove(u' ').remove(u'\n');
    ASSERT_EQ(impreso.size(), 10000);
    EXPECT_EQ(impreso.left(9996), referencia.left(9996));
    EXPECT_EQ(referencia.mid(9996, 8), u"56785667"_s);
    EXPECT_EQ(impreso.right(4), u"5679"_s);
}

TEST(Pi, SizesTimeAndTheThirtyTwoBitCeiling)
{
    EXPECT_EQ(tamanoPi(5000.9).grupos, 1253);
    for (const double digitos : {1000001.0, 2147483640.0, 1e15})
        EXPECT_EQ(errorNumber([&] { tamanoPi(digitos); }), 6) << digitos;

    const ScopedDecimalMark comma(QLatin1Char(','));
    EXPECT_EQ(tiempoPi(100.0f, 101.5f), u"1,5"_s);
    EXPECT_EQ(tiempoPi(100.0f, 100.0f), u"0,00002"_s);
    EXPECT_EQ(tiempoPi(86399.5f, 0.5f), u"0,00002"_s); // over midnight
}

// The window: a run on its worker, its stop, and a close in the middle of one.
class PiWindowTest : public ::testing::Test {
protected:
    static PiWindow *abrir()
    {
        guardarSkin(1);
        CargarEspanol();
        return static_cast<PiWindow *>(forms().show(u"pi"_s));
    }
    template <typename T = QPushButton> T *get(const char *name) const
    {
        return window->findChild<T *>(QLatin1String(name));
    }
    bool corriendo() const
    {
        return text2->isHidden() && !command1->isEnabled() && !text1->isEnabled() &&
               get<QProgressBar>("ProgressBar1")->isVisible() && get("Command5")->isVisible();
    }

    PiWindow *window = abrir();
    QLineEdit *text1 = get<QLineEdit>("Text1");
    QPlainTextEdit *text2 = get<QPlainTextEdit>("Text2");
    QPushButton *command1 = get("Command1");
};

TEST_F(PiWindowTest, PrintsTheCountAskedStopsAndClosesMidRun)
{
    const ScopedDecimalMark comma(QLatin1Char(','));
    EXPECT_EQ(text1->text() + text2->toPlainText(), u"5000 PI = 3, \n"_s);
    fakes().clock.timerStep = 2.5f;
    text1->setText(u"-200"_s);
    QTest::mouseClick(command1, Qt::LeftButton);
    EXPECT_EQ(text1->text(), u"200"_s);
    EXPECT_TRUE(corriendo());
    QTRY_VERIFY(text2->isVisible() && command1->isEnabled() && text1->isEnabled());
    EXPECT_EQ(text2->toPlainText(), piLlano(tamanoPi(200).grupos) +
                                        u"\n Se ha tardado 2,5 segundos en generar 200 dígitos"_s);

    text1->setText(u"120000"_s);
    QTest::mouseClick(command1, Qt::LeftButton);
    ASSERT_TRUE(corriendo());
    QTRY_VERIFY(get<QProgressBar>("ProgressBar1")->value() > 0);
    const QString antes = text2->toPlainText();
    QTest::mouseClick(get("Command5"), Qt::LeftButton);
    EXPECT_TRUE(text2->isVisible() && command1->isEnabled() && text1->isEnabled());
    QTest::qWait(20); // nothing of the stopped run arrives later
    EXPECT_EQ(text2->toPlainText(), antes);
    text1->setText(u"muchos"_s);
    EXPECT_EQ(errorNumber([&] { window->command1Click(); }), 13);
    EXPECT_EQ(errorNumber([&] { window->calculoFallado(RuntimeError::overflow()); }), 6);

    text1->setText(u"120000"_s);
    QTest::mouseClick(command1, Qt::LeftButton);
    ASSERT_TRUE(corriendo());
    forms().unload(u"pi"_s); // closed mid-run
    EXPECT_EQ(forms().find(u"pi"_s), nullptr);
}

} // namespace
} // namespace zafro
