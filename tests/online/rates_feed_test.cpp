#include "fakes.h"
#include "online/fetch_cycle.h"
#include "online/rates_feed.h"
#include "shell/language.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

QByteArray feed(const char *name)
{
    QFile file(QStringLiteral(ZAFRO_FEEDS_DIR "/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

// "USD=1.0406 JPY=162.41 ..." in document order.
QStringList rates(const QByteArray &document)
{
    static const QRegularExpression pair(
        QStringLiteral("currency=['\"](\\w+)['\"] rate=['\"]([^'\"]+)['\"]"));
    QStringList found;
    for (const auto &m : pair.globalMatch(QString::fromUtf8(document)))
        found << m.captured(1) + u'=' + m.captured(2);
    return found;
}

TEST(RatesFeed, TodaysListGetsDkkFifthWithEveryRateTextKept)
{
    const QByteArray bank = feed("today.xml");
    const RatesRewrite rewrite = rewriteRatesFeed(bank);
    ASSERT_TRUE(rewrite.ok) << rewrite.reason.toStdString();
    QStringList expected = rates(bank);
    ASSERT_EQ(expected.indexOf(QStringLiteral("DKK=7.4597")), 3) << "the bank has DKK fourth";
    expected.move(3, 4);
    EXPECT_EQ(rates(rewrite.document), expected);
    EXPECT_TRUE(rewrite.document.contains("time=\"2026-11-20\""));
    EXPECT_EQ(rewriteRatesFeed(rewrite.document).document, rewrite.document) << "a fixed point";
}

TEST(RatesFeed, FeedsThatCannotServeAreRefused)
{
    for (const char *name : {"no-dkk.xml", "truncated.xml", "error-page.html", "empty.xml"}) {
        const RatesRewrite rewrite = rewriteRatesFeed(feed(name));
        EXPECT_FALSE(rewrite.ok) << name;
        EXPECT_FALSE(rewrite.reason.isEmpty()) << name;
    }
    // Fewer than ten pairs, though DKK is there.
    EXPECT_FALSE(
        rewriteRatesFeed("<a><Cube time='x'><Cube currency='USD' rate='1'/><Cube currency='DKK' "
                         "rate='7'/></Cube></a>")
            .ok);
}

// What the maker's server hands out passes the suite's own check and gives every row.
TEST(RatesFeed, TheRewrittenFeedPassesTheSuitesUpdate)
{
    CargarEspanol();
    const QByteArray served = rewriteRatesFeed(feed("today.xml")).document;
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("eurofxref-daily.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(served);
    file.close();

    QStringList rows;
    FetchHooks hooks;
    hooks.storeRow = [&rows](const QString &a, const QString &b) { rows << a + u'=' + b; };
    FetchCycle cycle(FetchUserKind::Rates, hooks, nullptr);
    cycle.start(file.fileName());
    ASSERT_TRUE(QTest::qWaitFor([&] { return cycle.readyState() == 4; }, 5000));
    cycle.settleTick();
    EXPECT_EQ(cycle.identidad(), QStringLiteral("DKK"));
    cycle.verifyTick();
    ASSERT_EQ(test::fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(test::fakes().dialogs.messages[0].text, texto(slot::ConexionCorrecta));
    cycle.go();
    cycle.parseTick();
    EXPECT_EQ(rows, rates(served));
    cycle.stop();
}

} // namespace
} // namespace zafro
