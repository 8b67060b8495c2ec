#include "error_number.h"
#include "fakes.h"
#include "runtime/region.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skins.h"
#include "signals/cronometro_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

struct Formato {
    const char *name;
    qint32 milisegundos;
    QString text;
};

class CronometroFormat : public ::testing::TestWithParam<Formato> {};

TEST_P(CronometroFormat, HoursMinutesAndSecondsToTheTenth)
{
    const ScopedDecimalMark point(u'.');
    EXPECT_EQ(formatoCronometro(GetParam().milisegundos), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CronometroFormat,
    ::testing::Values(Formato{"Zero", 0, u"00:00:00.0"_qs},
                      Formato{"HourAndAHalf", 5400000, u"01:30:00.0"_qs},
                      Formato{"TenthsRoundToTheNearest", 61250, u"00:01:01.3"_qs},
                      Formato{"kept_SixtySecondsShowWhenTheTenthRoundsUp", 59960, u"00:00:60.0"_qs},
                      Formato{"SinglePrecisionLosesTheTenths", 2000000050, u"555:33:20.0"_qs}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(CronometroClocks, TwoClocksFromTheTickCountWithPausesAndResets)
{
    const ScopedDecimalMark point(u'.');
    guardarSkin(1);
    CargarEspanol();
    auto *window = qobject_cast<CronometroWindow *>(forms().show(u"cronometro"_qs));
    const auto text = [window](const char *name) {
        return window->findChild<QLabel *>(QLatin1String(name))->text();
    };
    const auto button = [window](const char *name) {
        return window->findChild<QPushButton *>(QLatin1String(name));
    };
    auto *timer = window->findChild<QTimer *>(u"ControlDelTiempo"_qs);
    const auto at = [&](qint32 ticks, auto step) {
        fakes().clock.ticks = ticks;
        (window->*step)();
    };

    // The first start, before any reset, counts from the machine's start.
    at(1000, &CronometroWindow::inicioParadaClick);
    EXPECT_EQ(button("InicioParada")->text(), u"Parada"_qs);
    EXPECT_TRUE(button("ReInicio")->isHidden() && button("Command2")->isHidden());
    EXPECT_TRUE(timer->isActive());
    at(3000, &CronometroWindow::controlDelTiempoTimer);
    EXPECT_EQ(text("DigitalUno"), u"00:00:02.0"_qs);
    EXPECT_EQ(text("lblTotal"), u"00:00:03.0"_qs);
    at(3000, &CronometroWindow::inicioParadaClick);
    EXPECT_EQ(button("InicioParada")->text(), u"Inicio"_qs);
    EXPECT_FALSE(button("ReInicio")->isHidden() || button("Command2")->isHidden());
    EXPECT_FALSE(timer->isActive());

    button("ReInicio")->click();
    EXPECT_EQ(text("DigitalUno"), u"00:00:00.0"_qs);
    EXPECT_EQ(text("lblTotal"), u"00:00:00.0"_qs);
    EXPECT_TRUE(button("ReInicio")->isHidden());

    at(10000, &CronometroWindow::inicioParadaClick);
    at(5410000, &CronometroWindow::controlDelTiempoTimer);
    EXPECT_EQ(text("DigitalUno"), u"01:30:00.0"_qs);
    EXPECT_EQ(text("lblTotal"), u"01:30:00.0"_qs);
    at(5410000, &CronometroWindow::inicioParadaClick);
    at(5415000, &CronometroWindow::inicioParadaClick);
    at(5415000, &CronometroWindow::controlDelTiempoTimer);
    EXPECT_EQ(text("DigitalUno"), u"01:30:00.0"_qs) << "the pause is left out";
    EXPECT_EQ(text("lblTotal"), u"01:30:05.0"_qs);

    // A tick count that wraps around overflows the checked subtraction.
    EXPECT_EQ(test::errorNumber([&] { at(-2147483000, &CronometroWindow::controlDelTiempoTimer); }),
              6);
}

} // namespace
} // namespace zafro
