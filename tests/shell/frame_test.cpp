#include "fakes.h"
#include "runtime/runtime_error.h"
#include "shell/form.h"
#include "shell/forms.h"
#include "shell/frame_logic.h"
#include "shell/settings.h"
#include "shell/skins.h"
#include "shell/toolframe.h"
#include "shell/window_shape.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

// A window that records what the registry did to it.
class Probe : public Form {
public:
    static inline QStringList log;
    bool refuseUser = false;

    void formLoad() override { log << "load:" + windowTitle(); }
    bool queryUnload(UnloadMode mode) override
    {
        log << QString("query:%1").arg(int(mode));
        return refuseUser && !isProgramReason(mode);
    }
    void formUnload() override { log << "unload"; }
};

// A tool window as the tools build them: a frame, a few controls of each kind.
class SampleTool : public Form {
public:
    SampleTool()
    {
        for (const char *name : {"Label1", "Label10", "Label11"})
            (new QLabel(name, this))->setObjectName(name);
    }
    void formLoad() override
    {
        frame = new ToolFrame(this);
        frame->paint();
        frame->connectClose(close);
        frame->connectAbout(about);
    }
    ToolFrame *frame = nullptr;
    QLineEdit *box = new QLineEdit(this);
    QCheckBox *check = new QCheckBox(this);
    QPushButton *close = new QPushButton(this), *about = new QPushButton(this);
};

class WindowBase : public ::testing::Test {
protected:
    void SetUp() override
    {
        Probe::log.clear();
        forms().registerForm("probe", [] { return new Probe; });
        forms().registerForm("other", [] { return new Probe; });
    }
    static SampleTool *openTool(const QString &name)
    {
        forms().registerForm(name, [] { return new SampleTool; });
        return static_cast<SampleTool *>(forms().show(name));
    }
    static QColor colour(QWidget *w, QPalette::ColorRole role) { return w->palette().color(role); }
    static QColor ink(QWidget *tool, const char *label)
    {
        return colour(tool->findChild<QLabel *>(label), QPalette::WindowText);
    }
};

TEST_F(WindowBase, ShowLoadsOnceWithPrepareFirstAndUnloadMakesTheNextShowLoadAfresh)
{
    QPointer<QWidget> first = forms().show("probe", [](QWidget *w) {
        Probe::log << "prepare";
        w->setWindowTitle("ready");
    });
    ASSERT_TRUE(first && first->isVisible());
    EXPECT_EQ(first->objectName(), "probe");
    first->hide();
    EXPECT_EQ(forms().show("probe", [](QWidget *) { Probe::log << "again"; }), first);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(forms().show("nothing"), nullptr);

    forms().show("other");
    forms().unload("probe");
    forms().unload("not loaded"); // nothing happens
    EXPECT_EQ(forms().find("probe"), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
    EXPECT_NE(forms().show("probe"), nullptr);
    EXPECT_EQ(Probe::log,
              QStringList({"prepare", "load:ready", "load:", "query:1", "unload", "load:"}));
}

TEST_F(WindowBase, TheUsersCloseCanBeRefusedButTheProgramsCannotAndTheLastUnloadEnds)
{
    auto *probe = static_cast<Probe *>(forms().show("probe"));
    forms().show("other")->hide(); // hidden but loaded: keeps the suite alive
    probe->refuseUser = true;
    probe->close(); // the window manager's close button
    EXPECT_EQ(forms().find("probe"), probe);
    EXPECT_TRUE(probe->isVisible());
    forms().unload("probe");
    EXPECT_EQ(forms().find("probe"), nullptr);
    EXPECT_EQ(Probe::log, QStringList({"load:", "load:", "query:0", "query:1", "unload"}));
    EXPECT_FALSE(fakes().desktop.ended());
    forms().find("other")->close(); // the user closes the last one
    EXPECT_EQ(fakes().desktop.endStatuses, QList<int>{0});
}

TEST_F(WindowBase, TwipsAreFifteenToThePixelOnACommonScreen)
{
    // The offscreen platform reports 96 dpi.
    EXPECT_EQ(twipsPerPixelX(), 15);
    EXPECT_EQ(twipsToPixelsX(1440), 96);
    EXPECT_EQ(twipsRect(150, 300, 1500, 600), QRect(10, 20, 100, 40));
}

TEST_F(WindowBase, TheAnimatedCaptionClosesUpRestsOpensAgainAndWraps)
{
    EXPECT_EQ(tituloAnimado(6), " Z a f r o   S u i t e");
    QSet<QString> distinct;
    for (int paso = 1; paso <= 19; ++paso) {
        distinct << tituloAnimado(paso);
        EXPECT_EQ(tituloAnimado(paso), tituloAnimado(20 - paso)) << paso;
        EXPECT_EQ(tituloAnimado(paso) == "Zafro Suite", paso >= 7 && paso <= 13) << paso;
    }
    EXPECT_EQ(distinct.size(), 7);
    EXPECT_EQ(siguientePasoTitulo(QString()), "1");
    EXPECT_EQ(siguientePasoTitulo("7"), "8");
    EXPECT_EQ(siguientePasoTitulo("19"), "1");
}

TEST_F(WindowBase, TheFlagIsReadAtEveryTickAndTheStepMovesOnlyWhileItIsOn)
{
    guardarSkin(4);
    EXPECT_EQ(openTool("romanos")->frame->timer(), nullptr);
    SampleTool *tool = openTool("trigo");
    ToolFrame *frame = tool->frame;
    EXPECT_TRUE(frame->timer()->isActive());
    tool->setWindowTitle("design caption");
    frame->timer1Timer(); // the flag is absent: plain caption, no step
    EXPECT_EQ(tool->windowTitle(), "Zafro Suite");
    EXPECT_EQ(frame->pasoTitulo(), QString());

    writeConfig("tituloanimado", "1");
    for (int i = 0; i < 4; ++i)
        frame->timer1Timer();
    EXPECT_EQ(frame->pasoTitulo(), "4");
    EXPECT_EQ(tool->windowTitle(), tituloAnimado(4));

    writeConfig("tituloanimado", "0");
    frame->timer1Timer();
    frame->timer1Timer();
    EXPECT_EQ(tool->windowTitle(), "Zafro Suite");
    EXPECT_EQ(frame->pasoTitulo(), "4") << "turning it off keeps the step";
    writeConfig("tituloanimado", "1");
    frame->timer1Timer();
    EXPECT_EQ(tool->windowTitle(), tituloAnimado(5));
}

TEST_F(WindowBase, EachRoleTakesItsSkinColourAndTitleLabelsTheTitleColour)
{
    guardarSkin(2); // "&H" texts: background 80C0FF is red FF, green C0, blue 80
    SampleTool *tool = openTool("matrices");
    const QColor back(0xFF, 0xC0, 0x80), title(0x01, 0x01, 0xFF), text(0x01, 0x80, 0x01);
    EXPECT_EQ(colour(tool, QPalette::Window), back);
    EXPECT_EQ(ink(tool, "Label1"), text);
    EXPECT_EQ(ink(tool, "Label10"), title);
    EXPECT_EQ(ink(tool, "Label11"), title);
    EXPECT_EQ(colour(tool->box, QPalette::Text), text);
    EXPECT_EQ(colour(tool->box, QPalette::Base), back);
    EXPECT_EQ(colour(tool->box, QPalette::Window), text) << "its edge stands out on any skin";
    EXPECT_EQ(colour(tool->check, QPalette::WindowText), text);
    EXPECT_EQ(colour(tool->check, QPalette::Window), back);
    EXPECT_EQ(colour(tool->close, QPalette::Button), QColor(0xFF, 0x01, 0x01));

    guardarSkin(4); // decimal texts: BackColor 14846691 = E28AE3, TituloForeColor FFFF01
    tool = openTool("nif");
    EXPECT_EQ(colour(tool, QPalette::Window), QColor(0xE3, 0x8A, 0xE2));
    EXPECT_EQ(ink(tool, "Label1"), QColor(0x01, 0xFF, 0xFF));
}

TEST_F(WindowBase, TheStopwatchPaintsOnlyItsTitleAndButtons)
{
    guardarSkin(2);
    const QColor designText = QLabel().palette().color(QPalette::WindowText);
    const QColor designBase = QLineEdit().palette().color(QPalette::Base);
    SampleTool *tool = openTool("cronometro");
    EXPECT_EQ(ink(tool, "Label1"), designText);
    EXPECT_EQ(colour(tool->box, QPalette::Base), designBase);
    EXPECT_EQ(colour(tool->close, QPalette::Button), QColor(0xFF, 0x01, 0x01));
}

TEST_F(WindowBase, AnAbsentColourIsAConversionErrorButUnpaintedWindowsNeverRead)
{
    try {
        openTool("trigo");
        ADD_FAILURE() << "the load went through without a skin";
    } catch (const RuntimeError &e) {
        EXPECT_EQ(e.number(), 13);
    }
    forms().unloadAll();
    for (const char *name : {"tresenraya", "coordenadas2", "matriculasselect"})
        EXPECT_NO_THROW(openTool(name)) << name;
}

TEST_F(WindowBase, CloseUnloadsTheToolAndAboutOpensBesideIt)
{
    guardarSkin(1);
    forms().show("nuevos"); // keeps the suite alive
    SampleTool *tool = openTool("loga");
    QTest::mouseClick(tool->about, Qt::LeftButton);
    EXPECT_NE(forms().find("acercade"), nullptr);
    EXPECT_EQ(forms().find("loga"), tool);
    QTest::mouseClick(tool->close, Qt::LeftButton);
    EXPECT_EQ(forms().find("loga"), nullptr);
    EXPECT_FALSE(fakes().desktop.ended());
}

TEST_F(WindowBase, NumericBoxesTakeBackspacePointsAndDigitsOnly)
{
    for (const int key : {8, int('.'), int('0'), int('9')})
        EXPECT_EQ(solooonumeros(key, 99), key);
    for (const int key : {0, 13, int(','), int('-'), int('/'), int(':'), int('a'), 0xB7})
        EXPECT_EQ(solooonumeros(key, 99), 0) << key;
    QLineEdit box;
    filterNumericKeys(&box);
    QTest::keyClicks(&box, "1a.2,.b-3");
    EXPECT_EQ(box.text(), "1.2.3");
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Left);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(box.text(), "1.2");
}

TEST_F(WindowBase, ShapesScaleWithTheScreenAndCombineByUnionDifferenceAndExclusiveOr)
{
    const auto &pieces = windowShapePieces("idiomaa");
    const QRegion at15 = buildWindowRegion(pieces, 15, 15);
    EXPECT_EQ(at15.boundingRect(), QRect(QPoint(8, 32), QPoint(447, 261)));
    EXPECT_EQ(buildWindowRegion(pieces, 12, 12).boundingRect(),
              QRect(QPoint(10, 40), QPoint(559, 327)));
    EXPECT_FALSE(at15.contains(QPoint(9, 33))) << "the corner is rounded off";
    EXPECT_TRUE(at15.contains(QPoint(228, 147)));
    EXPECT_TRUE(at15.contains(QPoint(8, 147)));
    EXPECT_EQ(buildWindowRegion(pieces, 15, 15, 1.0, 5.0).boundingRect().topLeft(), QPoint(13, 37));

    const QRegion index = buildWindowRegion(windowShapePieces("index"), 15, 15);
    EXPECT_TRUE(index.contains(QPoint(2, 45))) << "the square band joins the rounded body";
    EXPECT_TRUE(index.contains(QPoint(376, 540))) << "the ellipse hangs below";
    EXPECT_FALSE(index.contains(QPoint(190, 540)));
    const QRegion conf = buildWindowRegion(windowShapePieces("configuracion"), 15, 15);
    EXPECT_TRUE(conf.contains(QPoint(350, 22))) << "the eye outside the face is added";
    EXPECT_FALSE(conf.contains(QPoint(350, 100))) << "and inside the face it is cut out";
    EXPECT_FALSE(conf.contains(QPoint(72, 289))) << "a hole";
    EXPECT_TRUE(conf.contains(QPoint(234, 189)));
    EXPECT_TRUE(windowShapePieces("trigo").empty());
}

TEST_F(WindowBase, AShapedWindowIsFramelessAndDraggedByItsSurface)
{
    QWidget *nuevos = forms().show("nuevos");
    EXPECT_TRUE(nuevos->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_FALSE(nuevos->mask().isEmpty());
    EXPECT_FALSE(nuevos->mask().contains(QPoint(0, 0)));

    const QPoint start = nuevos->pos(), surface(20, 100);
    ASSERT_EQ(nuevos->childAt(surface), nullptr);
    QTest::mousePress(nuevos, Qt::RightButton, {}, surface);
    QTest::mouseMove(nuevos, surface + QPoint(30, 20));
    QTest::mouseRelease(nuevos, Qt::RightButton, {}, surface + QPoint(30, 20));
    EXPECT_EQ(nuevos->pos(), start + QPoint(30, 20));

    const QPoint moved = nuevos->pos();
    QTest::mousePress(nuevos->findChild<QPushButton *>("Command1"), Qt::LeftButton);
    QTest::mouseMove(nuevos, QPoint(5, 5));
    EXPECT_EQ(nuevos->pos(), moved) << "a press on a control is the control's";
}

} // namespace
} // namespace zafro
