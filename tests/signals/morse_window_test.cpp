#include "error_number.h"
#include "fakes.h"
#include "runtime/region.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/skins.h"
#include "signals/cronometro_window.h"
#include "signals/morse_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;
using Beeps = QList<QPair<int, int>>;

struct Reproduccion {
    const char *name;
    QString text;
    int frequency, speed, interval;
    Beeps beeps;
};

class SignalsWindowTest : public ::testing::TestWithParam<Reproduccion> {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
    }
    void open() { window = qobject_cast<MorseWindow *>(forms().show(u"morse"_qs)); }
    template <typename T = QPushButton> T *get(const char *name) const
    {
        return window->findChild<T *>(QLatin1String(name));
    }
    QString caption() const { return get("Command2")->text(); }
    void click(const char *name) { QTest::mouseClick(get(name), Qt::LeftButton); }
    void set(const char *box, const QString &text) { get<QLineEdit>(box)->setText(text); }

    const ScopedDecimalMark point{u'.'};
    MorseWindow *window = nullptr;
};

TEST_P(SignalsWindowTest, EachCharacterTakesATickAndTheLastTickEndsThePlay)
{
    const Reproduccion &row = GetParam();
    open();
    get<QScrollBar>("hsFreq")->setValue(row.frequency);
    get<QScrollBar>("HScroll1")->setValue(row.speed); // the interval moves only if it changes
    set("txttext", row.text);
    click("cmdcode");
    click("Command2");
    EXPECT_EQ(caption(), u"Parar"_qs);
    EXPECT_EQ(get<QTimer>("Timer2")->interval(), row.interval);
    QTRY_COMPARE_WITH_TIMEOUT(caption(), u"Reproducir"_qs, 10000);
    EXPECT_EQ(fakes().sound.beeps, row.beeps);
    EXPECT_EQ(window->posicionMorse(), u"0"_qs);
    EXPECT_FALSE(get<QTimer>("Timer2")->isActive() || window->tonoEnCurso());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, SignalsWindowTest, ::testing::Values(
    Reproduccion{"StartSpeed", u"e t"_qs, 2100, 3000, 100,
                 {{2100, 66}, {0, 166}, {0, 166}, {2100, 200}, {0, 166}, {0, 166}}},
    Reproduccion{"Fastest", u"et"_qs, 2100, 4500, 44,
                 {{2100, 44}, {0, 111}, {2100, 133}, {0, 111}, {0, 111}}},
    Reproduccion{"ZeroForDashesToo", u"tñ"_qs, 0, 1500, 133, {{0, 400}, {0, 333}, {0, 333}}}),
    [](const auto &info) { return std::string(info.param.name); });
// clang-format on

TEST_F(SignalsWindowTest, TranslatesBothWaysThroughItsButtons)
{
    const struct {
        const char *name;
        QString text, code, back;
    } rows[] = {
        {"WordAndNumber", u"Zafro 4.6"_qs, u"--../.-/..-./.-./---//....-/.-.-.-/-....//"_qs,
         u"zafro 4.6 "_qs},
        {"Empty", u""_qs, u"/"_qs, u" "_qs},
        {"SevenAndEightCharacterCodes", u"?'$"_qs, u"..--../.----./...-..-//"_qs, u"?'$ "_qs},
        {"BracketsShareTheOpeningCode", u"()/"_qs, u"-.--.-/-.--.-/-..-.//"_qs, u"((/ "_qs},
        {"UnknownCharactersPassUnchanged", u"!Ñ"_qs, u"!ñ/"_qs, u"!ñ "_qs},
    };
    open();
    for (const auto &row : rows) {
        set("txttext", row.text);
        click("cmdcode");
        EXPECT_EQ(get<QLineEdit>("txtmorse")->text(), row.code) << row.name;
        click("cmddecode");
        EXPECT_EQ(get<QLineEdit>("txttext")->text(), row.back) << row.name;
    }
}

TEST_F(SignalsWindowTest, DuringAToneTheWindowAnswersOneTickWaitsAndStopDropsIt)
{
    CargarIngles(); // the switch reads the captions of the loaded language
    open();
    fakes().sound.hold = true;
    set("txtmorse", u".."_qs);
    click("Command2");
    get<QTimer>("Timer2")->stop(); // the test gives the ticks
    for (int tick = 0; tick < 4; ++tick)
        window->timer2Timer();
    QTRY_COMPARE(fakes().sound.playing.load(), 1);
    set("txttext", u"et"_qs);
    click("cmdcode");
    get<QScrollBar>("hsFreq")->setValue(440);
    EXPECT_EQ(get<QLabel>("lblFreq")->text(), u"Frequency: 440hz"_qs);
    fakes().sound.releaseBeeps();
    QTRY_VERIFY(window->posicionMorse() == u"2"_qs && !window->tonoEnCurso());

    fakes().sound.hold = true;
    window->timer2Timer();
    window->timer2Timer(); // waits for the tone
    click("Command2");
    EXPECT_EQ(caption(), u"Continue"_qs);
    fakes().sound.releaseBeeps();
    QTRY_VERIFY(!window->tonoEnCurso());
    EXPECT_EQ(fakes().sound.beeps.size(), 3) << "nothing after the stop";
    click("Command2");
    QTRY_COMPARE_WITH_TIMEOUT(caption(), u"Play"_qs, 10000);
    EXPECT_EQ(fakes().sound.beeps, (Beeps{{2100, 66}, {0, 166}, {440, 200}, {0, 166}, {0, 166}}));
    EXPECT_EQ(fakes().sound.mostAtOnce.load(), 1);
}

TEST_F(SignalsWindowTest, NoToneStartsAfterTheWindowGoes)
{
    const std::function<void()> ways[] = {[this] { click("Command8"); },
                                          [this] { window->close(); }, [] { forms().unloadAll(); }};
    fakes().sound.realWait = true;
    for (const auto &close : ways) {
        fakes().sound.beeps.clear();
        open();
        set("txtmorse", u"---"_qs);
        click("Command2");
        QTRY_COMPARE(fakes().sound.playing.load(), 1);
        close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(fakes().sound.playing.load(), 0) << "the tone in progress ran out first";
        QTest::qWait(250);
        EXPECT_EQ(fakes().sound.beeps.size(), 1);
    }
}

TEST_F(SignalsWindowTest, TheLauncherOpensBothToolsAndTheStopwatchLeavesThePausesOut)
{
    CargarIngles();
    auto *index = qobject_cast<IndexWindow *>(forms().show(u"index"_qs));
    index->labelClick(u"Labelcom21"_qs);
    index->labelClick(u"Labelcom19b"_qs);
    open();
    EXPECT_EQ(caption(), u"Play"_qs);
    auto *crono = findForm<CronometroWindow>(u"cronometro"_qs);
    const auto clocks = [crono] {
        return crono->findChild<QLabel *>(u"DigitalUno"_qs)->text() + u" "_qs +
               crono->findChild<QLabel *>(u"lblTotal"_qs)->text();
    };
    auto *start = crono->findChild<QPushButton *>(u"InicioParada"_qs);
    auto *reset = crono->findChild<QPushButton *>(u"ReInicio"_qs);
    const auto at = [&](qint32 ticks, QPushButton *button = nullptr) {
        fakes().clock.ticks = ticks;
        button ? button->click() : crono->controlDelTiempoTimer();
    };
    // The first start, before any reset, counts the total from the machine's start.
    at(1000, start);
    EXPECT_TRUE(start->text() == u"Stop"_qs && reset->isHidden() &&
                crono->findChild<QWidget *>(u"Command2"_qs)->isHidden());
    at(3000);
    EXPECT_EQ(clocks(), u"00:00:02.0 00:00:03.0"_qs);
    at(3000, start);
    EXPECT_FALSE(reset->isHidden() ||
                 crono->findChild<QTimer *>(u"ControlDelTiempo"_qs)->isActive());
    reset->click();
    EXPECT_EQ(clocks(), u"00:00:00.0 00:00:00.0"_qs);
    EXPECT_TRUE(reset->isHidden());
    at(10000, start);
    at(5410000);
    EXPECT_EQ(clocks(), u"01:30:00.0 01:30:00.0"_qs);
    at(5410000, start);
    at(5415000, start);
    at(5415000);
    EXPECT_EQ(clocks(), u"01:30:00.0 01:30:05.0"_qs) << "a 5 s pause";
    EXPECT_EQ(test::errorNumber([&] { at(-2147483000); }), 6) << "the tick count wrapped";
    EXPECT_EQ(formatoCronometro(59960), u"00:00:60.0"_qs) << "the tenth rounds after the minutes";
}

} // namespace
} // namespace zafro
