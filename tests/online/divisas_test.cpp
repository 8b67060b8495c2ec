#include "fakes.h"
#include "http_fixture.h"
#include "online/divisas.h"
#include "online/fetch_cycle.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"
#include "window_test.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

namespace zafro {
namespace {

using test::fakes;
using test::HttpFixture;

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

class DivisasTest : public test::WindowTest {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
    }
    void TearDown() override { setSourceAddress(FetchUserKind::Rates, QString()); }

    void serve(HttpFixture &server, const QByteArray &body)
    {
        server.body = body;
        setSourceAddress(FetchUserKind::Rates, server.url());
    }
    static void storeRates()
    {
        for (const auto &[name, value] : {std::pair{"Entrado", "1"},
                                          {"Fecha", "01/02/2006"},
                                          {"USD", "1.2345"},
                                          {"JPY", "140.5"}})
            writeConfig(name, value, "Divisas");
    }
    static QString stored(const char *name) { return LeerClaveShell(configPath(name, "Divisas")); }
    void choose(const char *combo, int index)
    {
        get<QComboBox>(combo)->setCurrentIndex(index);
        Q_EMIT get<QComboBox>(combo)->activated(index);
    }
};

TEST_F(DivisasTest, ConversionRoundsToThreeDecimalsWithHalvesToEven)
{
    const struct {
        const char *name, *amount, *from, *to;
        std::optional<double> result;
    } rows[] = {
        {"plain", "100", "1", "1.2", 120.0},
        {"rounded", "1", "1.2345", "1", 0.81},
        {"exact half down to even", "2.0625", "1", "1", 2.062},
        {"exact half up to even", "2.0635", "2", "2", 2.064},
        {"no source rate", "5", "0", "1", std::nullopt},
        {"no target rate", "5", "1", "", std::nullopt},
        {"a comma ends the number", "10", "1", "1,5", 10.0},
    };
    for (const auto &row : rows)
        EXPECT_EQ(convertirDivisa(row.amount, row.from, row.to), row.result) << row.name;
    EXPECT_EQ(resultadoDivisa("1", "A", 0.81, "B", false), "1 A = 0.81 B");
    EXPECT_EQ(resultadoDivisa("1", "A", 0.81, "B", true), "0.81");
    EXPECT_EQ(fechaActualizacion(QDate(2006, 3, 5)), "05/03/2006");
    EXPECT_EQ(fechaActualizacion(QDate(2006, 12, 25)), "25/12/2006");
}

TEST_F(DivisasTest, TheFeedIsKnownByTheListsFifthCurrencyAndNamesFollowTheLanguage)
{
    EXPECT_EQ(QString::fromUtf16(fetchUser(FetchUserKind::Rates).expected),
              QLatin1String(monedas()[5].codigo));
    QSet<QString> codes;
    for (const Moneda &m : monedas())
        codes << QLatin1String(m.codigo);
    EXPECT_EQ(codes.size(), qsizetype(monedas().size()));
    EXPECT_EQ(nombreMoneda(9), "Lita letón");
    CargarIngles();
    EXPECT_EQ(nombreMoneda(1), "US Dollar");
}

TEST_F(DivisasTest, FirstUseFetchesTheFeedStoresItAndConverts)
{
    HttpFixture server;
    serve(server, ratesFeed());
    fakes().clock.current = QDateTime(QDate(2006, 3, 5), QTime(9, 0));

    forms().show("divisas");
    ASSERT_TRUE(QTest::qWaitFor([&] { return window = forms().find("divisasact"); }, 2000));
    EXPECT_EQ(forms().find("divisas"), nullptr);
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_TRUE(messageTexts()[0].startsWith("Puesto que nunca as ejecutado esta sección"));
    EXPECT_EQ(fakes().dialogs.messages[0].title, "Actualizar Valores");
    EXPECT_EQ(textOf("Label1"), "Nunca sincronizado");
    ASSERT_TRUE(QTest::qWaitFor([] { return fakes().dialogs.messages.size() == 2; }, 5000));
    EXPECT_EQ(messageTexts()[1],
              "Conexión establecida correctamente con el servidor. Puede actualizar los datos");
    EXPECT_EQ(textOf("Label9"), "Conexión establecida");
    EXPECT_TRUE(get("Command1")->isEnabled());

    // Timers keep ticking behind the last box: the parse must not run again.
    fakes().dialogs.onMessage = [](const test::MsgBoxCall &call) {
        if (call.text.startsWith("Valores de divisas"))
            QTest::qWait(400);
    };
    click("Command1");
    ASSERT_TRUE(QTest::qWaitFor([&] { return window = forms().find("divisas"); }, 3000));
    EXPECT_EQ(messageTexts().mid(2),
              QStringList({"Este proceso puede tardar unos instantes, por favor, espere",
                           "Valores de divisas actualizados correctamente con el servidor"}));
    QStringList values;
    for (const char *name : {"USD", "DKK", "XYZ", "Entrado", "Fecha"})
        values << stored(name);
    EXPECT_EQ(values.join(' '), "1.2 7.46 2 1 05/03/2006"); // XYZ: stored, never listed
    QTest::qWait(50);
    EXPECT_EQ(forms().find("divisasact"), nullptr);
    EXPECT_EQ(forms().find("divisasactualizando"), nullptr);

    ASSERT_EQ(get<QComboBox>("Combo1")->count(), 36);
    EXPECT_EQ(get<QComboBox>("Combo1")->currentIndex(), -1);
    get<QLineEdit>("Text1")->setText("100");
    choose("Combo1", 0);
    choose("Combo2", 1);
    click("Command3");
    EXPECT_EQ(textOf("Label6"), "100 Euro = 120 Dólar de EEUU");
}

TEST_F(DivisasTest, TheUpdateWindowRefusesTheFrameAndLeavesByItsButtons)
{
    HttpFixture server;
    server.mode = HttpFixture::Mode::NeverFinish;
    serve(server, ratesFeed().left(100));
    storeRates();
    forms().show("divisas");
    open("divisasact")->close();
    EXPECT_EQ(textOf("Label1"), "Última actualización: 01/02/2006");
    EXPECT_TRUE(forms().find("divisasact") == window && window->isVisible());

    click("Command1");
    EXPECT_EQ(messageTexts().size(), 1);
    EXPECT_TRUE(messageTexts().value(0).startsWith("Todavía no hemos establecido conexión"));
    EXPECT_EQ(forms().find("divisasactualizando"), nullptr);
    click("Command2");
    EXPECT_EQ(forms().find("divisasact"), nullptr);
    EXPECT_EQ(forms().find("divisas"), nullptr);
}

TEST_F(DivisasTest, ManualEntryAndCalculation)
{
    storeRates();
    open("divisas");
    auto *text3 = get<QLineEdit>("Text3");
    EXPECT_EQ(get<QComboBox>("Combo2")->itemText(2), "Yen japonés");
    EXPECT_FALSE(text3->isVisibleTo(window));

    get<QLineEdit>("Text1")->setText("1");
    click("Command3"); // no choice yet
    EXPECT_EQ(messageTexts(),
              QStringList{"Los datos introducidos manualmente no pueden ser nulos o igual a 0"});
    EXPECT_EQ(textOf("Label6"), "Resultado");

    choose("Combo1", 1);
    choose("Combo2", 0);
    EXPECT_EQ(textOf("Text3") + " " + textOf("Text4"), "1.2345 1");
    click("Command3");
    EXPECT_EQ(textOf("Label6"), "1 Dólar de EEUU = 0.81 Euro");

    click("Check1");
    EXPECT_TRUE(text3->isVisibleTo(window));
    EXPECT_TRUE(get("Command4")->isVisibleTo(window));
    text3->setText("2");
    get<QLineEdit>("Text1")->setText("3");
    click("Command3");
    EXPECT_EQ(textOf("Label6"), "1.5");            // the value alone
    Q_EMIT get<QComboBox>("Combo1")->activated(1); // the stored rate comes back
    EXPECT_EQ(textOf("Text3"), "1.2345");

    text3->clear();
    click("Check1");
    EXPECT_FALSE(text3->isVisibleTo(window));
    EXPECT_EQ(textOf("Text3") + " " + textOf("Text4"), "1 1");

    get<QLineEdit>("Text1")->setText("abc");
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(textOf("Text1"), QString());
    EXPECT_EQ(textOf("Label6"), "Resultado");
    click("Label2");
    ASSERT_EQ(fakes().desktop.openedUrls.size(), 1);
    EXPECT_TRUE(fakes().desktop.openedUrls[0].contains("ecb.europa.eu"));
}

} // namespace
} // namespace zafro
