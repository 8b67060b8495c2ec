#include "fakes.h"
#include "http_fixture.h"
#include "online/divisas.h"
#include "online/fetch_cycle.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace zafro {
namespace {

using test::fakes;
using test::HttpFixture;

const QString kDivisas = QStringLiteral("Divisas");

QString stored(const QString &name)
{
    return LeerClaveShell(configPath(name, kDivisas));
}

template <typename T> T *child(QWidget *window, const char *name)
{
    T *found = window ? window->findChild<T *>(QLatin1String(name)) : nullptr;
    EXPECT_NE(found, nullptr) << name;
    return found;
}

// The bank's old daily feed as the suite reads it: the fifth currency is the
// identity, every node from the tenth on a currency with its rate.
QByteArray ratesFeed(const char *fifth = "DKK")
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                     "<gesmes:Envelope xmlns:gesmes=\"http://www.gesmes.org/xml/2002-08-01\" "
                     "xmlns=\"http://www.ecb.int/vocabulary/2002-08-01/eurofxref\">\n"
                     "  <gesmes:subject>Reference rates</gesmes:subject>\n"
                     "  <gesmes:Sender>\n    <gesmes:name>European Central Bank</gesmes:name>\n"
                     "  </gesmes:Sender>\n  <Cube>\n    <Cube time=\"2006-03-03\">\n";
    const char *codes[] = {"USD", "JPY", "CYP", "CZK", fifth, "EEK", "GBP", "XYZ"};
    const char *rates[] = {"1.2", "140.5", "0.57", "28.5", "7.46", "15.6", "0.68", "2"};
    for (int i = 0; i < 8; ++i)
        xml +=
            QByteArray("      <Cube currency=\"") + codes[i] + "\" rate=\"" + rates[i] + "\"/>\n";
    return xml + "    </Cube>\n  </Cube>\n</gesmes:Envelope>\n";
}

QStringList messageTexts()
{
    QStringList texts;
    for (const auto &m : fakes().dialogs.messages)
        texts << m.text;
    return texts;
}

TEST(DivisasTest, ConversionRoundsToThreeDecimalsWithHalvesToEven)
{
    EXPECT_EQ(convertirDivisa(QStringLiteral("100"), QStringLiteral("1"), QStringLiteral("1.2")),
              120.0);
    EXPECT_EQ(convertirDivisa(QStringLiteral("1"), QStringLiteral("1.2345"), QStringLiteral("1")),
              0.81);
    // Exact halves in binary: to the even third decimal.
    EXPECT_EQ(convertirDivisa(QStringLiteral("2.0625"), QStringLiteral("1"), QStringLiteral("1")),
              2.062);
    EXPECT_EQ(convertirDivisa(QStringLiteral("2.0635"), QStringLiteral("2"), QStringLiteral("2")),
              2.064);
    EXPECT_EQ(convertirDivisa(QStringLiteral("5"), QStringLiteral("0"), QStringLiteral("1")),
              std::nullopt);
    EXPECT_EQ(convertirDivisa(QStringLiteral("5"), QStringLiteral("1"), QString()), std::nullopt);
    // A comma is read as the end of the number.
    EXPECT_EQ(convertirDivisa(QStringLiteral("10"), QStringLiteral("1"), QStringLiteral("1,5")),
              10.0);
    EXPECT_EQ(
        resultadoDivisa(QStringLiteral("1"), QStringLiteral("A"), 0.81, QStringLiteral("B"), false),
        QStringLiteral("1 A = 0.81 B"));
    EXPECT_EQ(
        resultadoDivisa(QStringLiteral("1"), QStringLiteral("A"), 0.81, QStringLiteral("B"), true),
        QStringLiteral("0.81"));
    EXPECT_EQ(fechaActualizacion(QDate(2006, 3, 5)), QStringLiteral("05/03/2006"));
    EXPECT_EQ(fechaActualizacion(QDate(2006, 12, 25)), QStringLiteral("25/12/2006"));
}

TEST(DivisasTest, CurrencyTableFollowsTheFeedAndTheLanguage)
{
    ASSERT_EQ(monedas().size(), 36u);
    // The feed is recognised by its fifth currency, the lists' index 5.
    EXPECT_EQ(QString::fromUtf16(fetchUser(FetchUserKind::Rates).expected),
              QLatin1String(monedas()[5].codigo));
    QStringList codes;
    for (const Moneda &m : monedas())
        codes << QLatin1String(m.codigo);
    EXPECT_EQ(codes.size(), QSet<QString>(codes.begin(), codes.end()).size());
    CargarEspanol();
    EXPECT_EQ(nombreMoneda(0), QStringLiteral("Euro"));
    EXPECT_EQ(nombreMoneda(9), QStringLiteral("Lita letón"));
    EXPECT_EQ(nombreMoneda(35), QStringLiteral("Rand sudafricano"));
    CargarIngles();
    EXPECT_EQ(nombreMoneda(1), QStringLiteral("US Dollar"));
}

class DivisasWindows : public ::testing::Test {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
    }
    void TearDown() override { setSourceAddress(FetchUserKind::Rates, QString()); }

    void storeRates()
    {
        writeConfig(QStringLiteral("Entrado"), QStringLiteral("1"), kDivisas);
        writeConfig(QStringLiteral("Fecha"), QStringLiteral("01/02/2006"), kDivisas);
        writeConfig(QStringLiteral("USD"), QStringLiteral("1.2345"), kDivisas);
        writeConfig(QStringLiteral("JPY"), QStringLiteral("140.5"), kDivisas);
    }
};

TEST_F(DivisasWindows, FirstUseFetchesTheFeedStoresItAndConverts)
{
    HttpFixture server;
    server.body = ratesFeed();
    setSourceAddress(FetchUserKind::Rates, server.url());
    fakes().clock.current = QDateTime(QDate(2006, 3, 5), QTime(9, 0));

    forms().show(QStringLiteral("divisas"));
    ASSERT_TRUE(QTest::qWaitFor([] { return forms().find(QStringLiteral("divisasact")); }, 2000));
    EXPECT_EQ(forms().find(QStringLiteral("divisas")), nullptr);
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_TRUE(fakes().dialogs.messages[0].text.startsWith(
        QStringLiteral("Puesto que nunca as ejecutado esta sección")));
    EXPECT_EQ(fakes().dialogs.messages[0].title, QStringLiteral("Actualizar Valores"));

    QWidget *act = forms().find(QStringLiteral("divisasact"));
    EXPECT_EQ(child<QLabel>(act, "Label1")->text(), QStringLiteral("Nunca sincronizado"));
    ASSERT_TRUE(QTest::qWaitFor([] { return fakes().dialogs.messages.size() == 2; }, 5000));
    EXPECT_EQ(fakes().dialogs.messages[1].text,
              QStringLiteral("Conexión establecida correctamente con el servidor. Puede "
                             "actualizar los datos"));
    EXPECT_EQ(child<QLabel>(act, "Label9")->text(), QStringLiteral("Conexión establecida"));
    EXPECT_TRUE(child<QPushButton>(act, "Command1")->isEnabled());

    // Timers keep ticking behind the last box: the parse must not run again.
    fakes().dialogs.onMessage = [](const test::MsgBoxCall &call) {
        if (call.text.startsWith(QStringLiteral("Valores de divisas")))
            QTest::qWait(400);
    };
    QTest::mouseClick(child<QPushButton>(act, "Command1"), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([] { return forms().find(QStringLiteral("divisas")); }, 3000));
    EXPECT_EQ(messageTexts().mid(2),
              (QStringList{QStringLiteral("Este proceso puede tardar unos instantes, por favor, "
                                          "espere"),
                           QStringLiteral("Valores de divisas actualizados correctamente con el "
                                          "servidor")}));
    EXPECT_EQ(stored(QStringLiteral("USD")), QStringLiteral("1.2"));
    EXPECT_EQ(stored(QStringLiteral("DKK")), QStringLiteral("7.46"));
    EXPECT_EQ(stored(QStringLiteral("XYZ")), QStringLiteral("2")); // stored, never listed
    EXPECT_EQ(stored(QStringLiteral("Entrado")), QStringLiteral("1"));
    EXPECT_EQ(stored(QStringLiteral("Fecha")), QStringLiteral("05/03/2006"));
    QTest::qWait(50);
    EXPECT_EQ(forms().find(QStringLiteral("divisasact")), nullptr);
    EXPECT_EQ(forms().find(QStringLiteral("divisasactualizando")), nullptr);

    QWidget *divisas = forms().find(QStringLiteral("divisas"));
    auto *combo1 = child<QComboBox>(divisas, "Combo1");
    auto *combo2 = child<QComboBox>(divisas, "Combo2");
    ASSERT_EQ(combo1->count(), 36);
    EXPECT_EQ(combo1->currentIndex(), -1);
    child<QLineEdit>(divisas, "Text1")->setText(QStringLiteral("100"));
    combo1->setCurrentIndex(0);
    Q_EMIT combo1->activated(0);
    combo2->setCurrentIndex(1);
    Q_EMIT combo2->activated(1);
    QTest::mouseClick(child<QPushButton>(divisas, "Command3"), Qt::LeftButton);
    EXPECT_EQ(child<QLabel>(divisas, "Label6")->text(),
              QStringLiteral("100 Euro = 120 Dólar de EEUU"));
}

TEST_F(DivisasWindows, AFeedWhoseFifthCurrencyIsNotDkkIsRefused)
{
    HttpFixture server;
    server.body = ratesFeed("SEK");
    setSourceAddress(FetchUserKind::Rates, server.url());
    storeRates();
    QWidget *act = forms().show(QStringLiteral("divisasact"));
    EXPECT_EQ(child<QLabel>(act, "Label1")->text(),
              QStringLiteral("Última actualización: 01/02/2006"));
    ASSERT_TRUE(QTest::qWaitFor([] { return !fakes().dialogs.messages.isEmpty(); }, 5000));
    EXPECT_EQ(messageTexts(), QStringList{QStringLiteral(
                                  "No ha sido posible la conexión con el servidor; comprueba que "
                                  "estas conectado a internet!")});
    EXPECT_FALSE(child<QPushButton>(act, "Command1")->isEnabled());
    EXPECT_EQ(child<QLabel>(act, "Label9")->text(), QStringLiteral("No conectado al servidor"));
    EXPECT_EQ(stored(QStringLiteral("USD")), QStringLiteral("1.2345"));
}

TEST_F(DivisasWindows, TheUpdateWindowRefusesTheFrameAndLeavesByItsButtons)
{
    HttpFixture server;
    server.mode = HttpFixture::Mode::NeverFinish;
    server.body = ratesFeed().left(100);
    setSourceAddress(FetchUserKind::Rates, server.url());
    storeRates();
    forms().show(QStringLiteral("divisas"));
    QWidget *act = forms().show(QStringLiteral("divisasact"));
    act->close();
    EXPECT_EQ(forms().find(QStringLiteral("divisasact")), act);
    EXPECT_TRUE(act->isVisible());

    QTest::mouseClick(child<QPushButton>(act, "Command1"), Qt::LeftButton);
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_TRUE(fakes().dialogs.messages[0].text.startsWith(
        QStringLiteral("Todavía no hemos establecido conexión")));
    EXPECT_EQ(forms().find(QStringLiteral("divisasactualizando")), nullptr);

    QTest::mouseClick(child<QPushButton>(act, "Command2"), Qt::LeftButton);
    EXPECT_EQ(forms().find(QStringLiteral("divisasact")), nullptr);
    EXPECT_EQ(forms().find(QStringLiteral("divisas")), nullptr);
}

TEST_F(DivisasWindows, ManualEntryAndCalculation)
{
    storeRates();
    QWidget *divisas = forms().show(QStringLiteral("divisas"));
    auto *text1 = child<QLineEdit>(divisas, "Text1");
    auto *text3 = child<QLineEdit>(divisas, "Text3");
    auto *text4 = child<QLineEdit>(divisas, "Text4");
    auto *combo1 = child<QComboBox>(divisas, "Combo1");
    auto *combo2 = child<QComboBox>(divisas, "Combo2");
    auto *check1 = child<QCheckBox>(divisas, "Check1");
    auto *label6 = child<QLabel>(divisas, "Label6");
    auto *calcular = child<QPushButton>(divisas, "Command3");
    EXPECT_EQ(combo2->itemText(2), QStringLiteral("Yen japonés"));
    EXPECT_FALSE(text3->isVisibleTo(divisas));

    text1->setText(QStringLiteral("1"));
    QTest::mouseClick(calcular, Qt::LeftButton); // no choice yet
    EXPECT_EQ(messageTexts(), QStringList{QStringLiteral(
                                  "Los datos introducidos manualmente no pueden ser nulos o igual "
                                  "a 0")});
    EXPECT_EQ(label6->text(), QStringLiteral("Resultado"));

    combo1->setCurrentIndex(1);
    Q_EMIT combo1->activated(1);
    combo2->setCurrentIndex(0);
    Q_EMIT combo2->activated(0);
    EXPECT_EQ(text3->text(), QStringLiteral("1.2345"));
    EXPECT_EQ(text4->text(), QStringLiteral("1"));
    QTest::mouseClick(calcular, Qt::LeftButton);
    EXPECT_EQ(label6->text(), QStringLiteral("1 Dólar de EEUU = 0.81 Euro"));

    QTest::mouseClick(check1, Qt::LeftButton);
    EXPECT_TRUE(text3->isVisibleTo(divisas));
    EXPECT_TRUE(child<QPushButton>(divisas, "Command4")->isVisibleTo(divisas));
    text3->setText(QStringLiteral("2"));
    text1->setText(QStringLiteral("3"));
    QTest::mouseClick(calcular, Qt::LeftButton);
    EXPECT_EQ(label6->text(), QStringLiteral("1.5")); // the value alone
    Q_EMIT combo1->activated(1);                      // the stored rate comes back
    EXPECT_EQ(text3->text(), QStringLiteral("1.2345"));

    text3->clear();
    QTest::mouseClick(check1, Qt::LeftButton);
    EXPECT_FALSE(text3->isVisibleTo(divisas));
    EXPECT_EQ(text3->text(), QStringLiteral("1"));
    EXPECT_EQ(text4->text(), QStringLiteral("1"));

    text1->setText(QStringLiteral("abc"));
    QTest::mouseClick(divisas, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(text1->text(), QString());
    EXPECT_EQ(label6->text(), QStringLiteral("Resultado"));

    QTest::mouseClick(child<QLabel>(divisas, "Label2"), Qt::LeftButton);
    ASSERT_EQ(fakes().desktop.openedUrls.size(), 1);
    EXPECT_TRUE(fakes().desktop.openedUrls[0].contains(QLatin1String("ecb.europa.eu")));
}

} // namespace
} // namespace zafro
