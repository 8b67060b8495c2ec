#include "online/news_panel.h"
#include "runtime/runtime_error.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "window_test.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

TEST(NewsScroll, StepsUpAndDown)
{
    const struct {
        const char *name;
        bool down;
        int top;
        double limite;
        int newTop;
        int subir, bajar; // 1 on, 0 off, -1 left alone
    } rows[] = {
        {"downFromTheStart", true, -480, -4200, -530, 0, -1},
        {"downAtTheLimit", true, -4180, -4200, -4230, 1, -1},
        {"downPastTheLimit", true, -4230, -4200, -4230, 1, 0},
        {"limitAtTheStartTurnsDownOff", true, -480, -480, -480, 0, 0},
        {"upAtTheTop", false, -480, -4200, -480, 0, 1},
        {"upFromBelow", false, -530, -4200, -480, 1, 1},
        {"upWithNoRoomBelow", false, -4230, -4200, -4180, 1, 1},
    };
    for (const auto &r : rows) {
        const PasoNoticias p = r.down ? pasoBajar(r.top, r.limite) : pasoSubir(r.top, r.limite);
        EXPECT_EQ(p.top, r.newTop) << r.name;
        EXPECT_EQ(p.movido, r.newTop != r.top) << r.name;
        EXPECT_EQ(p.flechaSubir.value_or(false) ? 1 : 0, r.subir) << r.name;
        EXPECT_EQ(p.flechaBajar ? int(*p.flechaBajar) : -1, r.bajar) << r.name;
    }
}

class NewsPanelTest : public test::WindowTest {
protected:
    void TearDown() override { setSourceAddress(FetchUserKind::News, QString()); }
    // The launcher with the news of a document, fetched and parsed.
    NewsPanel *loadWith(const QByteArray &xml)
    {
        QFile file(dir_.filePath(QStringLiteral("noticias.xml")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(xml);
        file.close();
        setSourceAddress(FetchUserKind::News, file.fileName());
        CargarEspanol();
        auto *panel = dynamic_cast<NewsPanel *>(qobject_cast<IndexWindow *>(open("index"))->news());
        EXPECT_TRUE(QTest::qWaitFor([&] { return panel->cycle()->readyState() == 4; }, 5000));
        panel->cycle()->pollTick();
        panel->cycle()->settleTick();
        if (panel->cycle()->verifyTimer()->isActive())
            panel->cycle()->verifyTick();
        return panel;
    }
    static QByteArray bundled()
    {
        QFile file(QStringLiteral(ZAFRO_NEWS_XML));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QTemporaryDir dir_;
};

TEST_F(NewsPanelTest, TheBundledNewsFillTheTextAndScrollByHovering)
{
    NewsPanel *panel = loadWith(bundled());
    EXPECT_FALSE(get("Image2")->isEnabled()) << "no scrolling before a parse";
    panel->cycle()->parseTick();
    const QString text = get<QPlainTextEdit>("Textn2")->toPlainText();
    EXPECT_TRUE(text.startsWith(QStringLiteral("\n\n14/01/2011\nYa están disponibles")));
    EXPECT_EQ(panel->limite().limite(), QStringLiteral("-2400"));
    EXPECT_TRUE(get("Image1")->isEnabled());
    EXPECT_TRUE(get("Line1")->isHidden());
    EXPECT_FALSE(get("Line4")->isHidden());

    panel->image2MouseMove();
    EXPECT_TRUE(get<QTimer>("Timern15")->isActive());
    EXPECT_NEAR(get<QPlainTextEdit>("Textn2")->height() * 15, 12400, 15) << "10000 - limit";
    EXPECT_EQ(static_cast<NewsLine *>(get("Line5"))->colour(), QColor(255, 0, 0));
    while (!get("Line4")->isHidden())
        panel->commandn5Click();
    EXPECT_GT(panel->top(), -2400 - 50);
    EXPECT_LE(panel->top(), -2400);
    EXPECT_FALSE(get("Line1")->isHidden());
    panel->image1MouseMove();
    EXPECT_FALSE(get<QTimer>("Timern15")->isActive());
    EXPECT_TRUE(get<QTimer>("Timern14")->isActive());
    panel->surfaceMoved();
    EXPECT_FALSE(get<QTimer>("Timern14")->isActive());
    EXPECT_EQ(static_cast<NewsLine *>(get("Line2"))->colour(), QColor(255, 255, 255));

    // A second parse counts on and leaves the limit as first read.
    const qint64 counted = panel->limite().contadorNumero();
    panel->sinLimite();
    panel->cycle()->parseTick();
    EXPECT_EQ(panel->limite().limite(), QStringLiteral("-1000000"));
    EXPECT_GT(panel->limite().contadorNumero(), counted);
}

TEST_F(NewsPanelTest, BadDocumentsTakeTheRunTimeErrorPath)
{
    QByteArray noLimit = bundled();
    noLimit.replace("numero=", "nombre=");
    EXPECT_THROW(loadWith(noLimit)->cycle()->parseTick(), RuntimeError);
    forms().unloadAll();

    QByteArray badNode = bundled();
    badNode.replace("<noticia fecha=\"02/12/2010\"", "<noticia dia=\"02/12/2010\""); // node 13
    EXPECT_THROW(loadWith(badNode)->cycle()->parseTick(), RuntimeError);
}

TEST_F(NewsPanelTest, WithoutAServerTheArrowsStayInert)
{
    setSourceAddress(FetchUserKind::News, dir_.filePath(QStringLiteral("absent.xml")));
    CargarEspanol();
    open("index");
    EXPECT_TRUE(get<QPlainTextEdit>("Textn2")->toPlainText().contains(
        QStringLiteral("No ha sido posible la conexión")));
    EXPECT_FALSE(get("Image1")->isEnabled());
    EXPECT_FALSE(get("Image2")->isEnabled());
}

} // namespace
} // namespace zafro
