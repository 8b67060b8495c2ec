#include "fakes.h"
#include "games/nabes_window.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

class NabesWindowTest : public ::testing::Test {
protected:
    void SetUp() override { writeConfig(QStringLiteral("idioma"), QStringLiteral("1")); }
    void open() { game = qobject_cast<NabesWindow *>(forms().show(QStringLiteral("nabes"))); }
    template <typename T = QLabel> T *get(QWidget *w, const char *n)
    {
        return w->findChild<T *>(QLatin1String(n));
    }
    bool active(const char *timer) { return get<QTimer>(game, timer)->isActive(); }
    void ram() // flies straight into the enemy; the key that touches it ends the game
    {
        for (int i = 0; i < 35; ++i)
            QTest::keyClick(game, Qt::Key_Right);
    }

    NabesWindow *game = nullptr;
};

TEST_F(NabesWindowTest, LoadTellsTheKeysInEveryLanguage)
{
    CargarIngles();
    writeConfig(QStringLiteral("idioma"), QStringLiteral("2"));
    open();
    ASSERT_EQ(fakes().dialogs.messages.size(), 2);
    EXPECT_EQ(fakes().dialogs.messages[0].text, texto(slot::SoloEspanol));
    EXPECT_EQ(fakes().dialogs.messages[1].title, "Instrucciones");
    EXPECT_EQ(game->size(), QSize(960, 640));
    EXPECT_EQ(game->state().flama1.left, 3480 - 230);
    EXPECT_TRUE(active("espera") && active("disparar1"));
    EXPECT_FALSE(active("disparar2") || active("rayo1") || active("misiles") || active("Timer2"));
}

TEST_F(NabesWindowTest, KeysReachTheGameAndModifiersRaiseTheShield)
{
    open();
    QTest::keyClick(game, Qt::Key_A); // shot b lines up with the enemy
    EXPECT_EQ(get(game, "Label1")->text(), "5000");

    QTest::keyPress(game, Qt::Key_Shift);
    EXPECT_TRUE(get(game, "shield")->isVisible());
    EXPECT_EQ(get(game, "Label2")->text(), "1500"); // written before the shield's cost
    QKeyEvent repeat(QEvent::KeyRelease, Qt::Key_Shift, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(game, &repeat);
    EXPECT_TRUE(get(game, "shield")->isVisible());
    QTest::keyRelease(game, Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_FALSE(get(game, "shield")->isVisible());
    EXPECT_EQ(game->state().shield.tag, "1499"); // the release itself costs nothing
}

TEST_F(NabesWindowTest, FromTheLauncherWonLostAndPlayedAgain)
{
    writeConfig(QStringLiteral("Visitado"), QStringLiteral("5"));
    guardarSkin(1);
    QTest::mouseClick(get(forms().show(QStringLiteral("index")), "Labelcom10a"), Qt::LeftButton);
    ASSERT_NE(game = findForm<NabesWindow>(QStringLiteral("nabes")), nullptr);
    ram();
    EXPECT_TRUE(active("Timer1"));
    QTest::keyClick(game, Qt::Key_H);
    EXPECT_EQ(fakes().desktop.endStatuses, QList<int>{0});
    EXPECT_TRUE(active("Timer2"));

    const QPointer<QTimer> timer1 = get<QTimer>(game, "Timer1");
    game->timer2Timer();
    EXPECT_TRUE(!timer1 || !timer1->isActive()); // no second end window
    ASSERT_EQ(forms().loadedNames(), (QStringList{"index", "nabesg"}));
    QTest::mouseClick(get<QPushButton>(forms().find("nabesg"), "Command2"), Qt::LeftButton);
    ASSERT_EQ(forms().loadedNames(), (QStringList{"index", "nabes"}));
    game = findForm<NabesWindow>(QStringLiteral("nabes"));
    EXPECT_EQ(get(game, "Label1")->text(), "-");
    ram();
    game->timer1Timer();
    ASSERT_EQ(forms().loadedNames(), (QStringList{"index", "nabesp"}));
    QTest::mouseClick(get<QPushButton>(forms().find("nabesp"), "Command7"), Qt::LeftButton);
    EXPECT_EQ(forms().loadedNames(), QStringList{"index"});
}

} // namespace
} // namespace zafro
