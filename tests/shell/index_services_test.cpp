#include "shell/arrival_window.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/launcher.h"
#include "shell/settings.h"
#include "window_test.h"

#include <QAction>
#include <QMenu>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

class IndexServices : public test::WindowTest {
protected:
    IndexWindow *load(const char *visitado = "5")
    {
        CargarEspanol();
        writeConfig(QStringLiteral("Visitado"), QLatin1String(visitado));
        return qobject_cast<IndexWindow *>(open("index"));
    }
    static QString stored(const char *name)
    {
        return LeerClaveShell(configPath(QLatin1String(name)));
    }
    bool shown(const char *name) const { return !get(name)->isHidden(); }
};

TEST_F(IndexServices, ClockDateCommentAndGreetingAtLoad)
{
    fakes().clock.current = QDateTime(QDate(2026, 1, 2), QTime(0, 7, 3));
    writeConfig(QStringLiteral("hora"), QStringLiteral("2"));
    IndexWindow *index = load("749");
    EXPECT_EQ(textOf("Label4"), QStringLiteral("00:07"));
    EXPECT_EQ(textOf("Label8"), QStringLiteral("02/01/2026"));
    EXPECT_EQ(get("Label8")->toolTip(), QStringLiteral("Viernes - 02/01/2026"));
    EXPECT_EQ(textOf("Label5"), QStringLiteral("Feliz Navidad")) << "the greeting wins";
    click("Label4");
    EXPECT_EQ(stored("hora"), QStringLiteral("3"));
    EXPECT_EQ(textOf("Label4"), QStringLiteral("0:07:03 AM"));
    forms().unloadAll();

    fakes().clock.current = QDateTime(QDate(2026, 3, 3), QTime(9, 0));
    index = load("749");
    EXPECT_EQ(textOf("Label5"), QStringLiteral("Eres de los que más a entrado !!!"));
    index->timer3Timer();
    EXPECT_TRUE(fakes().desktop.cdCommands.isEmpty()) << "no door at 750 visits";
}

TEST_F(IndexServices, TheHundredthVisitOpensAndClosesTheDoor)
{
    IndexWindow *index = load("99");
    index->timer3Timer();
    EXPECT_EQ(fakes().desktop.cdCommands, QStringList{QStringLiteral("set Cdaudio door open")});
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_EQ(fakes().dialogs.messages[0].title, QStringLiteral("100 veces!!"));
    EXPECT_FALSE(get<QTimer>("Timer3")->isActive());
    ASSERT_TRUE(get<QTimer>("Timer7")->isActive());
    index->timer7Timer();
    EXPECT_EQ(fakes().desktop.cdCommands.last(), QStringLiteral("set Cdaudio door closed"));
    EXPECT_FALSE(get<QTimer>("Timer7")->isActive());
}

TEST_F(IndexServices, PopupOpensClosesAndWanders)
{
    writeConfig(QStringLiteral("topopen"), QStringLiteral("2"));
    IndexWindow *index = load();
    EXPECT_FALSE(get<QTimer>("Timer4")->isActive());
    EXPECT_EQ(textOf("Command10"), QStringLiteral("Restaurar popup"));
    EXPECT_FALSE(shown("Command9"));
    click("Command10");
    auto *arrival = qobject_cast<ArrivalWindow *>(forms().find(QStringLiteral("arrival")));
    ASSERT_NE(arrival, nullptr);
    EXPECT_TRUE(arrival->isVisible());
    EXPECT_EQ(stored("topopen"), QStringLiteral("1"));
    EXPECT_TRUE(shown("Command9"));
    EXPECT_FALSE(shown("Command10"));
    EXPECT_EQ(arrival->findChild<QLabel *>(QStringLiteral("Label1"))->text(),
              QStringLiteral("Zafro Suite v: 4.6"));
    EXPECT_EQ(arrival->limite(), QStringLiteral("16500")); // 19200 - 2700 twips

    arrival->setLeftTwips(16480);
    arrival->command1Click();
    arrival->command1Click();
    EXPECT_EQ(arrival->leftTwips(), 16520);
    EXPECT_TRUE(arrival->findChild<QTimer *>(QStringLiteral("Timer2"))->isActive());
    EXPECT_FALSE(arrival->findChild<QTimer *>(QStringLiteral("Timer1"))->isActive());

    arrival->am1()->findChild<QAction *>(QStringLiteral("am2"))->trigger();
    EXPECT_FALSE(arrival->isVisible());
    EXPECT_EQ(stored("topopen"), QStringLiteral("2"));
    EXPECT_TRUE(shown("Command10"));
    (void)index;
}

TEST_F(IndexServices, LettersChaseOnlyWhenAskedAndGatherAtTheCorner)
{
    fakes().desktop.cursor = QPoint(600, 120);
    IndexWindow *index = load();
    ASSERT_EQ(index->clip().size(), std::size(kTextoWeb) + 1); // design, letters, one empty
    EXPECT_EQ(textOf("clip_1"), QStringLiteral("z"));
    EXPECT_EQ(textOf(("clip_" + std::to_string(std::size(kTextoWeb))).c_str()), QString());
    writeConfig(QStringLiteral("perseguir"), QStringLiteral("0"));
    index->tmrPosTimer();
    EXPECT_EQ(index->clip()[0].left, 0);
    writeConfig(QStringLiteral("perseguir"), QStringLiteral("1x"));
    for (int i = 0; i < 200; ++i)
        index->tmrPosTimer();
    // Screen pixels taken as twips: 600 twips is 40 pixels into the window.
    EXPECT_NEAR(index->clip()[0].left, 600, 0.01);
    EXPECT_EQ(get("clip_0")->pos(), QPoint(40, 8));
}

TEST_F(IndexServices, HiddenSpotsLeadToTheSecretZoneAndBack)
{
    IndexWindow *index = load();
    click("Secreto3");
    EXPECT_FALSE(shown("Command13")) << "a spot not yet handed over does nothing";
    click("Secreto1");
    click("Secreto2");
    click("Secreto3");
    EXPECT_TRUE(shown("Command13"));
    EXPECT_TRUE(shown("Labeln1"));
    EXPECT_FALSE(get("Secreto3")->isEnabled());
    click("Secreto4");
    EXPECT_FALSE(index->isVisible());
    EXPECT_TRUE(shown("Secreto1"));
    const QStringList texts = messageTexts();
    ASSERT_EQ(texts.size(), 2);
    EXPECT_TRUE(texts[0].startsWith(QStringLiteral("Estas entrando en una zona secreta!")));
    EXPECT_EQ(fakes().dialogs.messages[1].style, 16);
    EXPECT_EQ(fakes().dialogs.messages[1].title, QStringLiteral("¡Infiltrado!"));

    window = forms().find(QStringLiteral("configuracion"));
    ASSERT_NE(window, nullptr);
    type("Text1", QStringLiteral("http://example.org"));
    click("Label4");
    EXPECT_EQ(LeerClaveShell(startPagePath()), QStringLiteral("http://example.org"));
    click("Command1");
    click("Command3");
    EXPECT_EQ(forms().find(QStringLiteral("index")), index);
    EXPECT_TRUE(index->isVisible());
    EXPECT_EQ(stored("Visitado"), QStringLiteral("6")) << "no new load, no new visit";
}

} // namespace
} // namespace zafro
