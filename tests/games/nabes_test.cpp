#include "games/nabes_state.h"

#include <gtest/gtest.h>

#include <QRect>

#include <functional>

namespace zafro::nabes {
namespace {

using S = NabesState;

// One game event on a loaded game, and what must hold afterwards. The ship starts
// at 3480 by 4200 and the enemy at 12480 by 4440.
struct Case {
    const char *name;
    std::function<void(S &)> run;
    std::function<void(const S &)> check;
};

std::function<void(S &)> keyAt(int left, int top, int code = 0, int shift = 0)
{
    return [=](S &s) {
        s.nave1.left = left;
        s.nave1.top = top;
        s.keyDown(code, shift);
    };
}
std::function<void(S &)> then(std::function<void(S &)> arrange, void (S::*timer)())
{
    return [=](S &s) { arrange(s), (s.*timer)(); };
}
// An enemy's timer tick with the enemy at the given height and no timer in its way.
std::function<void(S &)> tick(void (S::*timer)(), int bossTop, bool shield = false)
{
    return [=](S &s) {
        s.timers = Timers{};
        s.timers.espera = false;
        s.boss.top = bossTop;
        s.shield.visible = shield;
        (s.*timer)();
    };
}
// Keys with the enemy's life at the given value.
std::function<void(S &)> keysWithLife(const char *life, int keys = 1)
{
    return [=](S &s) {
        s.boss.tag = QLatin1String(life);
        for (int i = 0; i < keys; ++i)
            s.keyDown(0, 0);
    };
}
std::function<void(const S &)> rammed(bool yes) // found by the same key's end test
{
    return [=](const S &s) {
        EXPECT_EQ(s.explosion3.visible && s.explosion.visible && s.timers.timer1, yes);
    };
}

const Case kCases[] = {
    {"RamAtEnemyLeftLess600", keyAt(12480 - 600, 4440), rammed(true)},
    {"NoRamAtEnemyLeftLess601", keyAt(12480 - 601, 4440), rammed(false)},
    {"RamAtEnemyLeftPlus700", keyAt(12480 + 700, 4440), rammed(true)},
    {"RamAtEnemyTopLess700", keyAt(12480, 4440 - 700), rammed(true)},
    {"RamAtEnemyTopPlus700", keyAt(12480, 4440 + 700), rammed(true)},
    {"BoundsOnlyFirstTestRuns",
     [](S &s) {
         s.boss.top = kAlto - 999;
         s.boss.left = 20000;
         s.keyDown(0, 0);
     },
     [](const S &s) { EXPECT_EQ(QPoint(s.boss.left, s.boss.top), QPoint(20000, kAlto - 1999)); }},
    {"FlameTrailsShipMovesForwards", keyAt(5000, 4200, TeclaDerecha),
     [](const S &s) { EXPECT_EQ(QPoint(s.flama1.left, s.nave1.left), QPoint(4750, 5250)); }},
    {"TurboMovesAndSwapsFlames", keyAt(5000, 4200, TeclaEspacio),
     [](const S &s) {
         EXPECT_TRUE(s.flama2.left == 5197 - 450 && s.flama2.visible && !s.flama1.visible);
     }},
    {"BothShotsHitCounterLagsOneHit", keyAt(3000, 4440, TeclaA),
     [](const S &s) {
         EXPECT_TRUE(s.label1 + s.boss.tag == "49804960" && s.explosion1.visible &&
                     s.explosion2.visible);
     }},
    {"KeyAfterVictoryAlsoArmsDefeat", keysWithLife("0", 2),
     [](const S &s) { EXPECT_TRUE(s.timers.timer1 && s.timers.timer2); }},
    {"SpentShieldStaysUpForFree",
     [](S &s) {
         s.shield.tag = QStringLiteral("-1");
         s.shield.visible = true;
         s.keyUp(4);
     },
     [](const S &s) { EXPECT_TRUE(s.shield.visible && s.shield.tag == "-1"); }},
    {"ChargeAndBigShotPhase", keysWithLife("3600"),
     [](const S &s) { EXPECT_TRUE(s.timers.adelante && s.timers.balas && !s.timers.rayo1); }},
    {"RayPhaseClosedAt1500", keysWithLife("1500"),
     [](const S &s) { EXPECT_TRUE(s.timers.rayo1 && s.danger.visible); }},
    {"RayPhaseOverAbove2000", keysWithLife("2001"),
     [](const S &s) { EXPECT_FALSE(s.timers.rayo1 || s.rayo.visible || s.danger.visible); }},
    {"Disparar1TurnsAtBottom", tick(&S::disparar1Timer, kAlto - 1000),
     [](const S &s) { EXPECT_TRUE(s.boss.top == kAlto - 1000 && s.timers.disparar2); }},
    {"Disparar2TurnsAtTop", tick(&S::disparar2Timer, -2),
     [](const S &s) { EXPECT_TRUE(s.timers.disparar1 && !s.timers.disparar2); }},
    {"Disparar1FiresAt720", tick(&S::disparar1Timer, 4200 + 620),
     [](const S &s) { EXPECT_TRUE(s.estela2.left <= -1000 && s.label3 == "995"); }},
    {"Disparar2HoldsFireAt710", tick(&S::disparar2Timer, 4200 + 810),
     [](const S &s) { EXPECT_TRUE(s.boss.top == 4200 + 710 && s.nave1.tag == "1000"); }},
    {"Estela2OnShieldCostsShieldOnly", tick(&S::disparar1Timer, 4440, true),
     [](const S &s) { EXPECT_EQ(s.nave1.tag + s.label2, "10001495"); }},
    {"BalasCosts50", tick(&S::balasTimer, 4200),
     [](const S &s) { EXPECT_TRUE(s.label3 == "950" && s.estela3.left <= -1000); }},
    {"BalasOnShieldCosts20", tick(&S::balasTimer, 4200, true),
     [](const S &s) { EXPECT_EQ(s.nave1.tag + s.label2, "10001480"); }},
    {"RayGrowsAndDrainsShieldFarAway", [](S &s) { s.rayo1Timer(); },
     [](const S &s) {
         EXPECT_EQ(QPoint(s.rayo.left, s.rayo.width), QPoint(12480 - 1680, 1680 + 700));
         EXPECT_EQ(s.shield.tag + s.label2, "1498-"); // the counter waits for a key
     }},
    {"RayHitsShipInItsRow",
     then([](S &s) { s.nave1.left = 11000, s.nave1.top = 4320; }, &S::rayo1Timer),
     [](const S &s) { EXPECT_EQ(s.label3 + s.shield.tag, "9851500"); }},
    {"RayEndsAtZeroAndRestarts", then([](S &s) { s.rayo.left = 0; }, &S::rayo1Timer),
     [](const S &s) {
         EXPECT_EQ(QRect(s.rayo.left, s.rayo.top, s.rayo.width, 1), QRect(13340, 4440, 720, 1));
         EXPECT_TRUE(s.danger.visible && !s.rayo.visible);
     }},
    {"ChargeMovesLeftWithExhaust", [](S &s) { s.adelanteTimer(); },
     [](const S &s) {
         EXPECT_EQ(QRect(s.boss.left, s.estela1.left, s.estela1.visible, 0),
                   QRect(12410, 12770, 1, 0));
     }},
    {"ChargeJumpsBackInShipRow", then([](S &s) { s.boss.left = kAncho - 501; }, &S::adelanteTimer),
     [](const S &s) { EXPECT_EQ(QPoint(s.boss.left, s.boss.top), QPoint(kAncho - 600, 4200)); }},
};

class NabesStateTest : public ::testing::TestWithParam<Case> {};

TEST_P(NabesStateTest, Event)
{
    S s;
    s.formLoad();
    GetParam().run(s);
    GetParam().check(s);
}

INSTANTIATE_TEST_SUITE_P(Nabes, NabesStateTest, ::testing::ValuesIn(kCases),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace
} // namespace zafro::nabes
