#include "fakes.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"
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

class MorseWindowTest : public ::testing::Test {
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
    void play(const QString &code)
    {
        get<QLineEdit>("txtmorse")->setText(code);
        click("Command2");
    }

    MorseWindow *window = nullptr;
};

struct Reproduccion {
    const char *name;
    QString text;
    int frequency; // -1 leaves the scroll as it starts
    int speed;
    int interval;
    QString frequencyLabel;
    Beeps beeps;
};

class MorsePlayback : public MorseWindowTest, public ::testing::WithParamInterface<Reproduccion> {};

TEST_P(MorsePlayback, EachCharacterTakesATickAndTheLastTickEndsThePlay)
{
    const Reproduccion &row = GetParam();
    open();
    if (row.frequency >= 0)
        get<QScrollBar>("hsFreq")->setValue(row.frequency);
    if (row.speed >= 0)
        get<QScrollBar>("HScroll1")->setValue(row.speed);
    get<QLineEdit>("txttext")->setText(row.text);
    click("cmdcode");
    click("Command2");
    EXPECT_EQ(caption(), u"Parar"_qs);
    EXPECT_EQ(get<QTimer>("Timer2")->interval(), row.interval);
    QTRY_COMPARE_WITH_TIMEOUT(caption(), u"Reproducir"_qs, 10000);
    EXPECT_FALSE(window->tonoEnCurso());
    EXPECT_EQ(fakes().sound.beeps, row.beeps);
    EXPECT_EQ(fakes().sound.mostAtOnce.load(), 1);
    EXPECT_EQ(window->posicionMorse(), u"0"_qs);
    EXPECT_FALSE(get<QTimer>("Timer2")->isActive());
    EXPECT_EQ(get<QLabel>("lblFreq")->text(), row.frequencyLabel);
}

INSTANTIATE_TEST_SUITE_P(Rows, MorsePlayback,
                         ::testing::Values(
                             Reproduccion{
                                 "StartSpeed",
                                 u"e t"_qs,
                                 -1,
                                 -1,
                                 100,
                                 u"Frecuencia: 2100hz"_qs,
                                 {{2100, 66}, {0, 166}, {0, 166}, {2100, 200}, {0, 166}, {0, 166}}},
                             Reproduccion{"FastestSpeed",
                                          u"et"_qs,
                                          -1,
                                          4500,
                                          44,
                                          u"Frecuencia: 2100hz"_qs,
                                          {{2100, 44}, {0, 111}, {2100, 133}, {0, 111}, {0, 111}}},
                             Reproduccion{"Frequency440",
                                          u"e"_qs,
                                          440,
                                          -1,
                                          100,
                                          u"Frecuencia: 440hz"_qs,
                                          {{440, 66}, {0, 166}, {0, 166}}},
                             Reproduccion{"FrequencyZeroForDashesToo",
                                          u"t"_qs,
                                          0,
                                          1500,
                                          133,
                                          u"Frecuencia: 0hz"_qs,
                                          {{0, 400}, {0, 333}, {0, 333}}},
                             Reproduccion{"UnknownCharacterOnlyTakesATick",
                                          u"ñ"_qs,
                                          -1,
                                          -1,
                                          100,
                                          u"Frecuencia: 2100hz"_qs,
                                          {{0, 166}}}),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_F(MorseWindowTest, StopTakesEffectDuringATonePositionSurvivesAndEditsAreNotNoticed)
{
    CargarIngles(); // the switch reads the captions of the loaded language
    open();
    fakes().sound.hold = true;
    play(u".."_qs);
    EXPECT_EQ(caption(), u"Stop"_qs);
    QTRY_COMPARE(fakes().sound.playing.load(), 1);

    // The window answers while the tone sounds.
    get<QLineEdit>("txttext")->setText(u"et"_qs);
    click("cmdcode");
    EXPECT_EQ(get<QLineEdit>("txtmorse")->text(), u"./-//"_qs);
    get<QScrollBar>("hsFreq")->setValue(440);
    EXPECT_EQ(get<QLabel>("lblFreq")->text(), u"Frequency: 440hz"_qs);
    click("Command2");
    EXPECT_EQ(caption(), u"Continue"_qs);
    EXPECT_EQ(fakes().sound.playing.load(), 1);

    fakes().sound.releaseBeeps();
    QTRY_VERIFY(!window->tonoEnCurso());
    QTest::qWait(300);
    EXPECT_EQ(fakes().sound.beeps.size(), 1) << "nothing after the stop";
    EXPECT_EQ(window->posicionMorse(), u"1"_qs);

    click("Command2");
    QTRY_COMPARE_WITH_TIMEOUT(caption(), u"Play"_qs, 10000);
    EXPECT_EQ(fakes().sound.beeps, (Beeps{{2100, 66}, {0, 166}, {440, 200}, {0, 166}, {0, 166}}));
}

TEST_F(MorseWindowTest, TicksDuringAToneMergeIntoOneThatRunsAtItsEnd)
{
    open();
    fakes().sound.hold = true;
    play(u"...."_qs);
    get<QTimer>("Timer2")->stop(); // the test gives the ticks
    for (int tick = 0; tick < 4; ++tick)
        window->timer2Timer();
    EXPECT_EQ(window->posicionMorse(), u"1"_qs);
    fakes().sound.releaseBeeps();
    QTRY_VERIFY(fakes().sound.beepsSoFar().size() == 2 && !window->tonoEnCurso());
    EXPECT_EQ(window->posicionMorse(), u"2"_qs);
    EXPECT_EQ(fakes().sound.mostAtOnce.load(), 1);
}

class MorseClosing : public MorseWindowTest, public ::testing::WithParamInterface<int> {};

TEST_P(MorseClosing, NoToneStartsAfterTheWindowGoes)
{
    open();
    fakes().sound.realWait = true;
    play(u"---"_qs);
    QTRY_COMPARE(fakes().sound.playing.load(), 1);
    switch (GetParam()) {
    case 0:
        click("Command8");
        break;
    case 1:
        window->close();
        break;
    default:
        forms().unloadAll();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(forms().find(u"morse"_qs), nullptr);
    EXPECT_EQ(fakes().sound.playing.load(), 0)
        << "the tone in progress ran out before the window went";
    QTest::qWait(300);
    EXPECT_EQ(fakes().sound.beeps.size(), 1);
}

const char *const kWays[] = {"CloseButton", "WindowManager", "EndOfProgram"};
INSTANTIATE_TEST_SUITE_P(Ways, MorseClosing, ::testing::Values(0, 1, 2),
                         [](const auto &info) { return std::string(kWays[info.param]); });

TEST_F(MorseWindowTest, TheLauncherOpensBothToolsInTheCurrentLanguage)
{
    CargarIngles();
    writeConfig(u"Visitado"_qs, u"5"_qs);
    auto *index = qobject_cast<IndexWindow *>(forms().show(u"index"_qs));
    index->labelClick(u"Labelcom21"_qs);
    index->labelClick(u"Labelcom19b"_qs);
    open();
    EXPECT_EQ(caption(), u"Play"_qs);
    window = nullptr;
    QWidget *cronometro = forms().find(u"cronometro"_qs);
    ASSERT_NE(cronometro, nullptr);
    EXPECT_EQ(cronometro->findChild<QPushButton *>(u"InicioParada"_qs)->text(), u"Start"_qs);
}

} // namespace
} // namespace zafro
