#include "fakes.h"
#include "http_fixture.h"
#include "online/fetch_cycle.h"
#include "runtime/runtime_error.h"
#include "shell/language.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;
using test::HttpFixture;

struct PlatesDoc {
    int rows = 20;
    bool extraComment = false;
    QByteArray identity = "Matriculas Zafro";
    int missingCochesAt = -1; // a node position
};

// Positions: declaration 1, comment 2, root 3, header 4, two elements with a text
// each 5-8, the limit 9, the server's name 10 (a zafro attribute too, so that a
// shift by one reads a wrong identity rather than none), the identity 11, rows
// from 12.
QByteArray platesDocument(const PlatesDoc &d)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- Zafro -->\n";
    if (d.extraComment)
        xml += "<!-- one more -->\n";
    xml += "<datos>\n  <cabecera>\n    <titulo>Matrículas</titulo>\n"
           "    <autor>Tirsamontes</autor>\n  </cabecera>\n  <info numero=\"-2000\"/>\n"
           "  <servidor zafro=\"Tirsamontes\"/>\n  <identidad zafro=\"" +
           d.identity + "\"/>\n";
    for (int i = 0; i < d.rows; ++i) {
        const int position = 12 + i;
        xml += "  <m mes=\"" + QByteArray::number(i + 1) + "\"";
        if (position != d.missingCochesAt)
            xml += " coches=\"" + QByteArray::number(1000 + i) + "\"";
        xml += "/>\n";
    }
    return xml + "</datos>\n";
}

// What the window would show and store, recorded.
struct Recorder {
    QStringList statuses;
    QString identity;
    QString console = QStringLiteral("(untouched)");
    int goEnabled = -1;
    QList<QPair<QString, QString>> rows;
    int levelEnds = 0;
    int closings = 0;
    int beforeParse = 0;

    FetchHooks hooks()
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
        h.storeRow = [this](const QString &a, const QString &b) { rows << qMakePair(a, b); };
        h.levelEnd = [this] { ++levelEnds; };
        h.closingWork = [this] { ++closings; };
        return h;
    }
};

class FetchCycleTest : public ::testing::Test {
protected:
    void SetUp() override { CargarEspanol(); }

    QString writeFile(const QByteArray &content, const QString &name = QStringLiteral("d.xml"))
    {
        QFile file(dir_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    static bool waitForComplete(const FetchCycle &cycle)
    {
        return QTest::qWaitFor([&] { return cycle.readyState() == 4; }, 5000);
    }

    // Runs the steps the timers would run, without their seconds.
    static void throughVerify(FetchCycle &cycle)
    {
        ASSERT_TRUE(waitForComplete(cycle));
        cycle.pollTick();
        cycle.settleTick();
        if (cycle.verifyTimer()->isActive())
            cycle.verifyTick();
    }

    QTemporaryDir dir_;
};

QStringList messageTexts()
{
    QStringList texts;
    for (const auto &m : fakes().dialogs.messages)
        texts << m.text;
    return texts;
}

TEST(XmlDocumentTest, LocalFilePassesEveryStateInOrderAndCountsNodesAsTheWalksDo)
{
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("n.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    // declaration, comment, root, PI, element + text, white space dropped, CDATA
    file.write("<?xml version=\"1.0\"?>\n<!-- c -->\n<r>\n   \n<?p x?>\n<a>t</a>\n"
               "<b>  </b><![CDATA[z]]></r>");
    file.close();
    XmlDocument doc;
    QList<int> states;
    QObject::connect(&doc, &XmlDocument::readyStateChanged, [&](int s) { states << s; });
    EXPECT_EQ(doc.readyState(), 0);
    EXPECT_TRUE(doc.load(file.fileName()));
    EXPECT_EQ(doc.readyState(), 1); // the load itself never waits for the data
    ASSERT_TRUE(QTest::qWaitFor([&] { return doc.readyState() == 4; }, 2000));
    EXPECT_EQ(states, (QList<int>{1, 2, 3, 4}));
    EXPECT_EQ(XmlDocument::countNodes(doc.document()), 8);
}

TEST(XmlDocumentTest, MissingOrMalformedSourcesCompleteEmpty)
{
    QTemporaryDir dir;
    XmlDocument missing;
    EXPECT_FALSE(missing.load(dir.filePath(QStringLiteral("none.xml"))));
    EXPECT_EQ(missing.readyState(), 4);
    EXPECT_FALSE(missing.document().first_child());

    XmlDocument scheme;
    EXPECT_FALSE(scheme.load(QStringLiteral("ftp://127.0.0.1/doc.xml")));

    QFile file(dir.filePath(QStringLiteral("bad.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<?xml version=\"1.0\"?><r><a x=\"1\"/><b></r>");
    file.close();
    XmlDocument bad;
    EXPECT_TRUE(bad.load(file.fileName()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return bad.readyState() == 4; }, 2000));
    // Nothing of the part before the fault is kept.
    EXPECT_EQ(XmlDocument::countNodes(bad.document()), 0);
}

TEST(XmlDocumentTest, EntitiesAreNeverExpandedNorFetched)
{
    HttpFixture server;
    server.body = "<secret>leaked</secret>";
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("e.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QByteArray laughs = "<?xml version=\"1.0\"?>\n<!DOCTYPE lolz [\n<!ENTITY lol \"lol\">\n";
    for (int i = 1; i <= 9; ++i) {
        laughs += "<!ENTITY lol" + QByteArray::number(i) + " \"";
        for (int j = 0; j < 10; ++j)
            laughs += "&lol" + (i == 1 ? QByteArray() : QByteArray::number(i - 1)) + ";";
        laughs += "\">\n";
    }
    laughs +=
        "<!ENTITY ext SYSTEM \"" + server.url().toUtf8() + "\">\n]>\n<lolz>&lol9;&ext;</lolz>";
    file.write(laughs);
    file.close();

    XmlDocument doc;
    doc.setValidateOnParse(false);
    ASSERT_TRUE(doc.load(file.fileName()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return doc.readyState() == 4; }, 2000));
    const pugi::xml_node root = doc.document().child("lolz");
    ASSERT_TRUE(root);
    const QString text = QString::fromUtf8(root.child_value());
    EXPECT_LT(text.size(), 100);
    EXPECT_FALSE(text.contains(QLatin1String("leaked")));
    QTest::qWait(50);
    EXPECT_EQ(server.requests, 0);
    // declaration, document type, root, its one text node
    EXPECT_EQ(XmlDocument::countNodes(doc.document()), 4);
}

TEST(XmlDocumentTest, HttpLoadsReportStatesInOrderAndFailuresCompleteEmpty)
{
    HttpFixture server;
    server.body = platesDocument({});
    XmlDocument doc;
    QList<int> states;
    QObject::connect(&doc, &XmlDocument::readyStateChanged, [&](int s) { states << s; });
    ASSERT_TRUE(doc.load(server.url()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return doc.readyState() == 4; }, 5000));
    EXPECT_EQ(states, (QList<int>{1, 2, 3, 4}));
    EXPECT_EQ(XmlDocument::countNodes(doc.document()), 11 + 20);

    server.mode = HttpFixture::Mode::NotFound;
    XmlDocument missing;
    ASSERT_TRUE(missing.load(server.url()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return missing.readyState() == 4; }, 5000));
    EXPECT_FALSE(missing.document().first_child());
}

TEST_F(FetchCycleTest, GoodDocumentFromServerStoresItsRowsAfterTheTimedSteps)
{
    HttpFixture server;
    server.body = platesDocument({});
    Recorder rec;
    FetchCycle cycle(FetchUserKind::Plates, rec.hooks(), nullptr);
    EXPECT_FALSE(cycle.pollTimer()->isActive()); // the plates window starts it on request
    cycle.start(server.url());
    EXPECT_EQ(rec.console,
              QStringLiteral("\r\n\r\nConectando con el servidor de noticias de Zafro....."));
    ASSERT_TRUE(QTest::qWaitFor([&] { return rec.closings == 1; }, 6000));

    EXPECT_EQ(rec.statuses.first(), QStringLiteral("Conectando al servidor..."));
    EXPECT_EQ(rec.statuses.last(), QStringLiteral("Conexión establecida"));
    EXPECT_EQ(rec.identity, QStringLiteral("Matriculas Zafro"));
    EXPECT_EQ(rec.console, QString());
    EXPECT_EQ(rec.goEnabled, 1);
    ASSERT_EQ(rec.rows.size(), 20);
    EXPECT_EQ(rec.rows.first(), qMakePair(QStringLiteral("1"), QStringLiteral("1000")));
    EXPECT_EQ(rec.rows.last(), qMakePair(QStringLiteral("20"), QStringLiteral("1019")));
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
    for (QTimer *t :
         {cycle.pollTimer(), cycle.settleTimer(), cycle.verifyTimer(), cycle.parseTimer()})
        EXPECT_FALSE(t->isActive()) << t->objectName().toStdString();
}

TEST_F(FetchCycleTest, IdentityMustSitAtItsPositionAndMatchExactly)
{
    for (const PlatesDoc &d : {PlatesDoc{20, true, "Matriculas Zafro", -1},
                               PlatesDoc{20, false, "matriculas zafro", -1}}) {
        fakes().dialogs.messages.clear();
        Recorder rec;
        FetchCycle cycle(FetchUserKind::Plates, rec.hooks(), nullptr);
        cycle.start(writeFile(platesDocument(d)));
        throughVerify(cycle);
        EXPECT_EQ(messageTexts(),
                  QStringList{QStringLiteral("No ha sido posible la conexión con el servidor; "
                                             "comprueba que estas conectado a internet!")});
        EXPECT_EQ(rec.statuses.last(), QStringLiteral("No conectado al servidor"));
        EXPECT_TRUE(rec.console.endsWith(QStringLiteral(":\r\nzafro@tirsamontes.com")));
        EXPECT_EQ(rec.goEnabled, 1); // hidden on this window, enabled all the same
        EXPECT_FALSE(cycle.parseTimer()->isActive());
        EXPECT_TRUE(rec.rows.isEmpty());
    }
}

TEST_F(FetchCycleTest, AnIdentityNodeWithoutTheAttributeIsARunTimeError)
{
    QByteArray xml = platesDocument({});
    xml.replace("<identidad zafro=\"Matriculas Zafro\"/>", "<?identidad zafro?>");
    Recorder rec;
    FetchCycle cycle(FetchUserKind::Plates, rec.hooks(), nullptr);
    cycle.start(writeFile(xml));
    ASSERT_TRUE(waitForComplete(cycle));
    cycle.pollTick();
    EXPECT_THROW(cycle.settleTick(), RuntimeError);
    EXPECT_FALSE(cycle.verifyTimer()->isActive());
}

TEST_F(FetchCycleTest, RatesWaitForTheUserAndDisableGoOnAWrongIdentity)
{
    const QByteArray feed = "<?xml version=\"1.0\"?><e><s>x</s><f><n>y</n></f><C><C t=\"d\">"
                            "<C currency=\"USD\" rate=\"1.2\"/><C currency=\"JPY\" rate=\"140\"/>"
                            "<C currency=\"CYP\" rate=\"0.5\"/><C currency=\"CZK\" rate=\"28\"/>"
                            "<C currency=\"%1\" rate=\"7.4\"/></C></C></e>";
    for (const char *fifth : {"DKK", "SEK"}) {
        fakes().dialogs.messages.clear();
        Recorder rec;
        FetchCycle cycle(FetchUserKind::Rates, rec.hooks(), nullptr);
        EXPECT_TRUE(cycle.pollTimer()->isActive()); // running from the window's creation
        cycle.start(writeFile(QByteArray(feed).replace("%1", fifth)));
        throughVerify(cycle);
        const bool good = QByteArray(fifth) == "DKK";
        EXPECT_EQ(rec.goEnabled, good ? 1 : 0);
        ASSERT_EQ(fakes().dialogs.messages.size(), 1);
        EXPECT_TRUE(fakes().dialogs.messages[0].text.startsWith(
            good ? QStringLiteral("Conexión establecida correctamente")
                 : QStringLiteral("No ha sido posible la conexión con el servidor;")));
        EXPECT_FALSE(cycle.parseTimer()->isActive());
        EXPECT_EQ(rec.beforeParse, 0);
        if (good) {
            cycle.go();
            EXPECT_EQ(rec.beforeParse, 1);
            cycle.parseTick();
            ASSERT_EQ(rec.rows.size(), 5);
            EXPECT_EQ(rec.rows[4], qMakePair(QStringLiteral("DKK"), QStringLiteral("7.4")));
        }
    }
}

TEST_F(FetchCycleTest, GoBeforeTheDocumentIsCompleteOnlyTellsTheUser)
{
    HttpFixture server;
    server.mode = HttpFixture::Mode::NeverFinish;
    server.body = platesDocument({}).left(200);
    Recorder rec;
    FetchCycle cycle(FetchUserKind::Rates, rec.hooks(), nullptr);
    cycle.start(server.url());
    cycle.go();
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_TRUE(fakes().dialogs.messages[0].text.startsWith(
        QStringLiteral("Todavía no hemos establecido conexión con el servidor")));
    EXPECT_TRUE(fakes().dialogs.messages[0].text.endsWith(QStringLiteral("zafro@tirsamontes.com")));
    EXPECT_FALSE(cycle.parseTimer()->isActive());
    EXPECT_EQ(rec.beforeParse, 0);

    // The server never finishes: no time-out, the poll runs on, the status stays.
    QTest::qWait(400);
    EXPECT_EQ(cycle.readyState(), 3);
    EXPECT_TRUE(cycle.pollTimer()->isActive());
    EXPECT_EQ(rec.statuses.last(), QStringLiteral("Conectando con el servidor..."));
}

TEST_F(FetchCycleTest, UnreachableOrMalformedSourcesStaySilentlyInReadingIdentity)
{
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost, 0));
    const quint16 port = closed.serverPort();
    closed.close();
    const QString sources[] = {
        QStringLiteral("http://127.0.0.1:%1/x.xml").arg(port),
        writeFile("<?xml version=\"1.0\"?><datos><m mes=\"1\"></datos>", QStringLiteral("m.xml")),
        writeFile("<?xml version=\"1.0\"?><datos><a/><b/></datos>", QStringLiteral("s.xml"))};
    for (const QString &source : sources) {
        Recorder rec;
        FetchCycle cycle(FetchUserKind::Plates, rec.hooks(), nullptr);
        cycle.start(source);
        throughVerify(cycle);
        EXPECT_TRUE(fakes().dialogs.messages.isEmpty()) << source.toStdString();
        EXPECT_EQ(rec.goEnabled, -1);
        EXPECT_TRUE(rec.identity.isEmpty());
        EXPECT_FALSE(cycle.verifyTimer()->isActive());
        EXPECT_FALSE(cycle.pollTimer()->isActive());
        EXPECT_EQ(rec.console.left(6), QStringLiteral("\r\n\r\nCo"));
    }
}

TEST_F(FetchCycleTest, MissingDataAttributeStopsAfterTheRowsBeforeIt)
{
    Recorder rec;
    FetchCycle cycle(FetchUserKind::Plates, rec.hooks(), nullptr);
    cycle.start(writeFile(platesDocument({40, false, "Matriculas Zafro", 30})));
    ASSERT_TRUE(waitForComplete(cycle));
    cycle.pollTick();
    cycle.settleTick();
    cycle.verifyTick();
    EXPECT_TRUE(cycle.parseTimer()->isActive());
    try {
        cycle.parseTick();
        FAIL() << "the walk went past a node without its data";
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), 91);
    }
    ASSERT_EQ(rec.rows.size(), 18); // positions 12 to 29
    EXPECT_EQ(rec.rows.last().first, QStringLiteral("18"));
    EXPECT_EQ(rec.closings, 0);
}

TEST_F(FetchCycleTest, DataIsReadAtAnyDepthAndEveryWalkLevelEndIsSeen)
{
    // Rows nest inside rows; a level ends at the document, the root and each row
    // with children.
    QByteArray xml = platesDocument({2});
    xml.replace("<m mes=\"2\" coches=\"1001\"/>",
                "<m mes=\"2\" coches=\"1001\"><m mes=\"3\" coches=\"5\"><m mes=\"4\" coches=\"6\"/>"
                "</m></m>");
    Recorder rec;
    FetchCycle cycle(FetchUserKind::Plates, rec.hooks(), nullptr);
    cycle.start(writeFile(xml));
    throughVerify(cycle);
    cycle.parseTick();
    ASSERT_EQ(rec.rows.size(), 4);
    EXPECT_EQ(rec.rows[2], qMakePair(QStringLiteral("3"), QStringLiteral("5")));
    EXPECT_EQ(rec.rows[3], qMakePair(QStringLiteral("4"), QStringLiteral("6")));
    // document, datos, cabecera, titulo, autor, m(2), m(3)
    EXPECT_EQ(rec.levelEnds, 7);
    EXPECT_EQ(rec.closings, 1);
}

TEST_F(FetchCycleTest, ASecondStartReplacesTheDocumentUnderTheOnePoll)
{
    const QString bad = writeFile(platesDocument({5, false, "Otra"}), QStringLiteral("a.xml"));
    const QString good = writeFile(platesDocument({5}), QStringLiteral("b.xml"));
    Recorder rec;
    QObject owner;
    FetchCycle cycle(FetchUserKind::Plates, rec.hooks(), &owner);
    cycle.start(bad);
    QPointer<XmlDocument> first = cycle.document();
    cycle.start(good);
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(owner.findChildren<QTimer *>(QStringLiteral("Timern2")).size(), 1);
    EXPECT_EQ(owner.findChildren<XmlDocument *>().size(), 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return rec.closings == 1; }, 6000));
    EXPECT_EQ(rec.rows.size(), 5);
    EXPECT_TRUE(fakes().dialogs.messages.isEmpty());
}

} // namespace
} // namespace zafro
