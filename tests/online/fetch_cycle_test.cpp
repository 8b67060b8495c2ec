#include "fakes.h"
#include "http_fixture.h"
#include "online/fetch_cycle.h"
#include "online/rates_feed.h"
#include "runtime/runtime_error.h"
#include "shell/language.h"
#include "window_test.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;
using test::HttpFixture;
using Row = QPair<QString, QString>;

// Positions: declaration 1, comment 2, root 3, header 4, two elements with a text
// each 5-8, the limit 9, the server's name 10 (a zafro attribute too, so that a
// shift by one reads a wrong identity rather than none), the identity 11, rows
// from 12.
QByteArray platesDocument(int rows = 20, const QByteArray &identity = "Matriculas Zafro",
                          bool extraComment = false, int missingCochesAt = -1)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- Zafro -->\n";
    if (extraComment)
        xml += "<!-- one more -->\n";
    xml += "<datos>\n  <cabecera>\n    <titulo>Matrículas</titulo>\n"
           "    <autor>Tirsamontes</autor>\n  </cabecera>\n  <info numero=\"-2000\"/>\n"
           "  <servidor zafro=\"Tirsamontes\"/>\n  <identidad zafro=\"" +
           identity + "\"/>\n";
    for (int i = 0; i < rows; ++i) {
        xml += "  <m mes=\"" + QByteArray::number(i + 1) + "\"";
        if (12 + i != missingCochesAt)
            xml += " coches=\"" + QByteArray::number(1000 + i) + "\"";
        xml += "/>\n";
    }
    return xml + "</datos>\n";
}

QByteArray feed(const char *name)
{
    QFile file(QString(ZAFRO_FEEDS_DIR "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

// "USD=1.0406 JPY=162.41 ..." in document order.
QStringList rates(const QByteArray &document)
{
    static const QRegularExpression pair("currency=['\"](\\w+)['\"] rate=['\"]([^'\"]+)['\"]");
    QStringList found;
    for (const auto &m : pair.globalMatch(QString::fromUtf8(document)))
        found << m.captured(1) + u'=' + m.captured(2);
    return found;
}

const QString kRefused =
    "No ha sido posible la conexión con el servidor; comprueba que estas conectado a internet!";

class FetchCycleTest : public test::WindowTest {
protected:
    void SetUp() override { CargarEspanol(); }

    QString writeFile(const QByteArray &content, const QString &name = "d.xml")
    {
        QFile file(dir_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    // A cycle whose hooks record what the window would show and store.
    FetchCycle &cycle(FetchUserKind kind = FetchUserKind::Plates, QObject *parent = nullptr)
    {
        FetchHooks h;
        h.setStatus = [this](const QString &t) {
            if (statuses.isEmpty() || statuses.last() != t)
                statuses << t;
        };
        h.setIdentity = [this](const QString &t) { identity = t; };
        h.setConsole = [this](const QString &t) { console = t; };
        h.setGoEnabled = [this](bool on) { goEnabled = on; };
        h.beforeParse = [this] { ++beforeParse; };
        h.storeRow = [this](const QString &a, const QString &b) { rows << Row(a, b); };
        h.levelEnd = [this] { ++levelEnds; };
        h.closingWork = [this] { ++closings; };
        cycle_ = std::make_unique<FetchCycle>(kind, h, parent);
        return *cycle_;
    }
    // Runs the steps the timers would run, without their seconds.
    void throughVerify()
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return cycle_->readyState() == 4; }, 5000));
        cycle_->pollTick();
        cycle_->settleTick();
        if (cycle_->verifyTimer()->isActive())
            cycle_->verifyTick();
    }
    QTemporaryDir dir_;
    QObject owner; // outlives the cycle
    std::unique_ptr<FetchCycle> cycle_;
    QStringList statuses;
    QString identity, console = "(untouched)";
    int goEnabled = -1, levelEnds = 0, closings = 0, beforeParse = 0;
    QList<Row> rows;
};

TEST_F(FetchCycleTest, DocumentsPassEveryStateInOrderAndFailuresCompleteEmpty)
{
    HttpFixture server;
    server.body = platesDocument();
    HttpFixture missing;
    missing.mode = HttpFixture::Mode::NotFound;
    const struct {
        const char *name;
        QString source;
        bool loads;
        int nodes;
    } sources[] = {
        // declaration, comment, root, PI, element + text, white space dropped, CDATA
        {"local file",
         writeFile("<?xml version=\"1.0\"?>\n<!-- c -->\n<r>\n   \n<?p x?>\n<a>t</a>\n"
                   "<b>  </b><![CDATA[z]]></r>"),
         true, 8},
        {"served", server.url(), true, 11 + 20},
        {"malformed: nothing before the fault is kept",
         writeFile("<?xml version=\"1.0\"?><r><a x=\"1\"/><b></r>", "bad.xml"), true, 0},
        {"not found", missing.url(), true, 0},
        {"missing file", dir_.filePath("none.xml"), false, 0},
        {"unknown scheme", "ftp://127.0.0.1/doc.xml", false, 0},
        {"no host", "http:///doc.xml", false, 0},
    };
    for (const auto &row : sources) {
        SCOPED_TRACE(row.name);
        XmlDocument doc;
        QList<int> states;
        QObject::connect(&doc, &XmlDocument::readyStateChanged, [&](int s) { states << s; });
        EXPECT_EQ(doc.readyState(), 0);
        EXPECT_EQ(doc.load(row.source), row.loads);
        if (row.loads) {
            EXPECT_EQ(doc.readyState(), 1) << "the load itself never waits for the data";
            ASSERT_TRUE(QTest::qWaitFor([&] { return doc.readyState() == 4; }, 5000));
            EXPECT_EQ(states, QList<int>({1, 2, 3, 4}));
        }
        EXPECT_EQ(doc.readyState(), 4);
        EXPECT_EQ(XmlDocument::countNodes(doc.document()), row.nodes);
    }
}

TEST_F(FetchCycleTest, EntitiesAreNeverExpandedNorFetched)
{
    HttpFixture server;
    server.body = "<secret>leaked</secret>";
    QByteArray laughs = "<?xml version=\"1.0\"?>\n<!DOCTYPE lolz [\n<!ENTITY lol \"lol\">\n";
    for (int i = 1; i <= 9; ++i) {
        laughs += "<!ENTITY lol" + QByteArray::number(i) + " \"";
        for (int j = 0; j < 10; ++j)
            laughs += "&lol" + (i == 1 ? QByteArray() : QByteArray::number(i - 1)) + ";";
        laughs += "\">\n";
    }
    laughs +=
        "<!ENTITY ext SYSTEM \"" + server.url().toUtf8() + "\">\n]>\n<lolz>&lol9;&ext;</lolz>";
    XmlDocument doc;
    doc.setValidateOnParse(false);
    ASSERT_TRUE(doc.load(writeFile(laughs)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return doc.readyState() == 4; }, 2000));
    const QString text = QString::fromUtf8(doc.document().child("lolz").child_value());
    EXPECT_LT(text.size(), 100);
    EXPECT_FALSE(text.contains("leaked"));
    QTest::qWait(50);
    EXPECT_EQ(server.requests, 0);
    // declaration, document type, root, its one text node
    EXPECT_EQ(XmlDocument::countNodes(doc.document()), 4);
}

TEST_F(FetchCycleTest, TheIdentityMustSitAtItsPositionAndMatchExactly)
{
    for (const bool shifted : {true, false}) {
        fakes().dialogs.messages.clear();
        goEnabled = -1;
        cycle().start(writeFile(
            platesDocument(20, shifted ? "Matriculas Zafro" : "matriculas zafro", shifted)));
        throughVerify();
        EXPECT_EQ(messageTexts(), QStringList{kRefused}) << shifted;
        EXPECT_EQ(statuses.last(), "No conectado al servidor");
        EXPECT_TRUE(console.endsWith(":\r\nzafro@tirsamontes.com"));
        EXPECT_EQ(goEnabled, 1); // hidden on this window, enabled all the same
        EXPECT_FALSE(cycle_->parseTimer()->isActive());
        EXPECT_TRUE(rows.isEmpty());
    }
}

TEST_F(FetchCycleTest, AnIdentityNodeWithoutTheAttributeIsARunTimeError)
{
    QByteArray xml = platesDocument();
    xml.replace("<identidad zafro=\"Matriculas Zafro\"/>", "<?identidad zafro?>");
    FetchCycle &c = cycle();
    c.start(writeFile(xml));
    ASSERT_TRUE(QTest::qWaitFor([&] { return c.readyState() == 4; }, 5000));
    c.pollTick();
    EXPECT_THROW(c.settleTick(), RuntimeError);
    EXPECT_FALSE(c.verifyTimer()->isActive());
}

TEST_F(FetchCycleTest, RatesWaitForTheUserAndDisableGoOnAWrongIdentity)
{
    const QByteArray feed = "<?xml version=\"1.0\"?><e><s>x</s><f><n>y</n></f><C><C t=\"d\">"
                            "<C currency=\"USD\" rate=\"1.2\"/><C currency=\"JPY\" rate=\"140\"/>"
                            "<C currency=\"CYP\" rate=\"0.5\"/><C currency=\"CZK\" rate=\"28\"/>"
                            "<C currency=\"%1\" rate=\"7.4\"/></C></C></e>";
    for (const char *fifth : {"SEK", "DKK"}) {
        const bool good = QByteArray(fifth) == "DKK";
        fakes().dialogs.messages.clear();
        FetchCycle &c = cycle(FetchUserKind::Rates);
        EXPECT_TRUE(c.pollTimer()->isActive()); // running from the window's creation
        c.start(writeFile(QByteArray(feed).replace("%1", fifth)));
        throughVerify();
        EXPECT_EQ(goEnabled, good ? 1 : 0);
        ASSERT_EQ(fakes().dialogs.messages.size(), 1);
        EXPECT_TRUE(messageTexts()[0].startsWith(good ? "Conexión establecida correctamente"
                                                      : kRefused.left(40)));
        EXPECT_FALSE(c.parseTimer()->isActive());
        EXPECT_EQ(beforeParse, 0);
    }
    cycle_->go();
    EXPECT_EQ(beforeParse, 1);
    cycle_->parseTick();
    ASSERT_EQ(rows.size(), 5);
    EXPECT_EQ(rows[4], Row("DKK", "7.4"));
}

TEST_F(FetchCycleTest, GoBeforeTheDocumentIsCompleteOnlyTellsTheUserAndNothingTimesOut)
{
    HttpFixture server;
    server.mode = HttpFixture::Mode::NeverFinish;
    server.body = platesDocument().left(200);
    FetchCycle &c = cycle(FetchUserKind::Rates);
    c.start(server.url());
    c.go();
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_TRUE(
        messageTexts()[0].startsWith("Todavía no hemos establecido conexión con el servidor"));
    EXPECT_TRUE(messageTexts()[0].endsWith("zafro@tirsamontes.com"));
    EXPECT_FALSE(c.parseTimer()->isActive());
    EXPECT_EQ(beforeParse, 0);

    // The server never finishes: no time-out, the poll runs on, the status stays.
    QTest::qWait(400);
    EXPECT_EQ(c.readyState(), 3);
    EXPECT_TRUE(c.pollTimer()->isActive());
    EXPECT_EQ(statuses.last(), "Conectando con el servidor...");
}

TEST_F(FetchCycleTest, UnreachableOrMalformedSourcesStaySilentlyInReadingIdentity)
{
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost, 0));
    const quint16 port = closed.serverPort();
    closed.close();
    for (const QString &source :
         {QString("http://127.0.0.1:%1/x.xml").arg(port),
          writeFile("<?xml version=\"1.0\"?><datos><m mes=\"1\"></datos>", "m.xml"),
          writeFile("<?xml version=\"1.0\"?><datos><a/><b/></datos>", "s.xml")}) {
        goEnabled = -1;
        FetchCycle &c = cycle();
        c.start(source);
        throughVerify();
        EXPECT_TRUE(fakes().dialogs.messages.isEmpty()) << source.toStdString();
        EXPECT_EQ(goEnabled, -1);
        EXPECT_TRUE(identity.isEmpty());
        EXPECT_FALSE(c.verifyTimer()->isActive());
        EXPECT_FALSE(c.pollTimer()->isActive());
        EXPECT_EQ(console.left(6), "\r\n\r\nCo");
    }
}

TEST_F(FetchCycleTest, AMissingDataAttributeStopsAfterTheRowsBeforeIt)
{
    FetchCycle &c = cycle();
    c.start(writeFile(platesDocument(40, "Matriculas Zafro", false, 30)));
    throughVerify();
    EXPECT_TRUE(c.parseTimer()->isActive());
    try {
        c.parseTick();
        FAIL() << "the walk went past a node without its data";
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), 91);
    }
    ASSERT_EQ(rows.size(), 18); // positions 12 to 29
    EXPECT_EQ(rows.last().first, "18");
    EXPECT_EQ(closings, 0);
}

TEST_F(FetchCycleTest, DataIsReadAtAnyDepthAndEveryWalkLevelEndIsSeen)
{
    // Rows nest inside rows; a level ends at the document, the root and each row
    // with children.
    QByteArray xml = platesDocument(2);
    xml.replace("<m mes=\"2\" coches=\"1001\"/>",
                "<m mes=\"2\" coches=\"1001\"><m mes=\"3\" coches=\"5\"><m mes=\"4\" coches=\"6\"/>"
                "</m></m>");
    cycle().start(writeFile(xml));
    throughVerify();
    cycle_->parseTick();
    EXPECT_EQ(rows.mid(2), QList<Row>({Row("3", "5"), Row("4", "6")}));
    // document, datos, cabecera, titulo, autor, m(2), m(3)
    EXPECT_EQ(levelEnds, 7);
    EXPECT_EQ(closings, 1);
}

// The timers run the cycle by themselves; a second start, here from the server,
// replaces the document under the one poll.
TEST_F(FetchCycleTest, AGoodDocumentStoresItsRowsAfterTheTimedStepsOfTheLastStart)
{
    FetchCycle &c = cycle(FetchUserKind::Plates, &owner);
    EXPECT_FALSE(c.pollTimer()->isActive()); // the plates window starts it on request
    c.start(writeFile(platesDocument(5, "Otra"), "a.xml"));
    EXPECT_EQ(console, "\r\n\r\nConectando con el servidor de noticias de Zafro.....");
    QPointer<XmlDocument> first = c.document();
    HttpFixture server;
    server.body = platesDocument();
    c.start(server.url());
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(owner.findChildren<QTimer *>("Timern2").size(), 1);
    EXPECT_EQ(owner.findChildren<XmlDocument *>().size(), 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return closings == 1; }, 6000));

    EXPECT_EQ(statuses.first(), "Conectando al servidor...");
    EXPECT_EQ(statuses.last(), "Conexión establecida");
    EXPECT_EQ(identity, "Matriculas Zafro");
    EXPECT_EQ(console, QString());
    EXPECT_EQ(goEnabled, 1);
    ASSERT_EQ(rows.size(), 20);
    EXPECT_EQ(rows.first(), Row("1", "1000"));
    EXPECT_EQ(rows.last(), Row("20", "1019"));
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
    for (QTimer *t : {c.pollTimer(), c.settleTimer(), c.verifyTimer(), c.parseTimer()})
        EXPECT_FALSE(t->isActive()) << t->objectName().toStdString();
}

TEST_F(FetchCycleTest, TodaysBankListGetsDkkFifthWithEveryRateTextKept)
{
    const QByteArray bank = feed("today.xml");
    const RatesRewrite rewrite = rewriteRatesFeed(bank);
    ASSERT_TRUE(rewrite.ok) << rewrite.reason.toStdString();
    QStringList expected = rates(bank);
    ASSERT_EQ(expected.indexOf("DKK=7.4597"), 3) << "the bank has DKK fourth";
    expected.move(3, 4);
    EXPECT_EQ(rates(rewrite.document), expected);
    EXPECT_TRUE(rewrite.document.contains("time=\"2026-11-20\""));
    EXPECT_EQ(rewriteRatesFeed(rewrite.document).document, rewrite.document) << "a fixed point";

    // What the maker's server hands out passes the suite's own check and gives every
    // row, to a user that takes nothing but the rows.
    QStringList stored;
    FetchHooks hooks;
    hooks.storeRow = [&](const QString &a, const QString &b) { stored << a + u'=' + b; };
    FetchCycle c(FetchUserKind::Rates, hooks, nullptr);
    c.start(writeFile(rewrite.document));
    ASSERT_TRUE(QTest::qWaitFor([&] { return c.readyState() == 4; }, 5000));
    c.pollTick();
    c.settleTick();
    EXPECT_EQ(c.identidad(), "DKK");
    c.verifyTick();
    EXPECT_EQ(messageTexts(), QStringList{texto(slot::ConexionCorrecta)});
    c.go();
    c.parseTick();
    EXPECT_EQ(stored, rates(rewrite.document));
}

TEST_F(FetchCycleTest, BankFeedsThatCannotServeAreRefused)
{
    for (const char *name : {"no-dkk.xml", "truncated.xml", "error-page.html", "empty.xml"}) {
        const RatesRewrite rewrite = rewriteRatesFeed(feed(name));
        EXPECT_FALSE(rewrite.ok) << name;
        EXPECT_FALSE(rewrite.reason.isEmpty()) << name;
    }
    // Fewer than ten pairs, though DKK is there.
    EXPECT_FALSE(rewriteRatesFeed("<a><Cube time='x'><Cube currency='USD' rate='1'/><Cube "
                                  "currency='DKK' rate='7'/></Cube></a>")
                     .ok);
}

} // namespace
} // namespace zafro
