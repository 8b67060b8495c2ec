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
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

// A tool window as the later tools build them: a frame, a few controls of each kind.
class SampleTool : public Form {
public:
    SampleTool()
    {
        for (const char *name : {"Label1", "Label10", "Label11"}) {
            auto *label = new QLabel(QLatin1String(name), this);
            label->setObjectName(QLatin1String(name));
        }
        box = new QLineEdit(this);
        check = new QCheckBox(this);
        close = new QPushButton(this);
        about = new QPushButton(this);
    }
    void formLoad() override
    {
        frame = new ToolFrame(this);
        frame->paint();
        frame->connectClose(close);
        frame->connectAbout(about);
    }
    ToolFrame *frame = nullptr;
    QLineEdit *box;
    QCheckBox *check;
    QPushButton *close;
    QPushButton *about;
};

SampleTool *openTool(const QString &name)
{
    forms().registerForm(name, [] { return new SampleTool; });
    return static_cast<SampleTool *>(forms().show(name));
}

QColor colourOf(QWidget *w, QPalette::ColorRole role)
{
    return w->palette().color(role);
}

TEST(FrameTitle, TheCaptionsCloseUpRestAndOpenAgain)
{
    EXPECT_EQ(tituloAnimado(1),
              QStringLiteral("      Z      a      f      r      o             S   "
                             "   u      i      t      e"));
    EXPECT_EQ(tituloAnimado(6), QStringLiteral(" Z a f r o   S u i t e"));
    EXPECT_EQ(tituloAnimado(5), QStringLiteral("  Z  a  f  r  o     S  u  i  t  e"));
    QSet<QString> distinct;
    for (int paso = 1; paso <= 19; ++paso) {
        distinct << tituloAnimado(paso);
        EXPECT_EQ(tituloAnimado(paso), tituloAnimado(20 - paso)) << paso;
        if (paso >= 7 && paso <= 13) {
            EXPECT_EQ(tituloAnimado(paso), QStringLiteral("Zafro Suite"));
        }
    }
    EXPECT_EQ(distinct.size(), 7);
}

TEST(FrameTitle, TheStepWrapsFromNineteenToOneAndStartsEmpty)
{
    EXPECT_EQ(siguientePasoTitulo(QString()), QStringLiteral("1"));
    EXPECT_EQ(siguientePasoTitulo(QStringLiteral("7")), QStringLiteral("8"));
    EXPECT_EQ(siguientePasoTitulo(QStringLiteral("19")), QStringLiteral("1"));
}

TEST(FrameTitle, TheFlagIsReadAtEveryTickAndTheStepMovesOnlyWhileItIsOn)
{
    guardarSkin(4);
    SampleTool *tool = openTool(QStringLiteral("trigo"));
    ToolFrame *frame = tool->frame;
    ASSERT_NE(frame->timer(), nullptr);
    EXPECT_TRUE(frame->timer()->isActive());
    EXPECT_EQ(frame->timer()->interval(), 100);

    tool->setWindowTitle(QStringLiteral("design caption"));
    frame->timer1Timer(); // the flag is absent: plain caption, no step
    EXPECT_EQ(tool->windowTitle(), QStringLiteral("Zafro Suite"));
    EXPECT_EQ(frame->pasoTitulo(), QString());

    writeConfig(QStringLiteral("tituloanimado"), QStringLiteral("1"));
    for (int i = 0; i < 4; ++i)
        frame->timer1Timer();
    EXPECT_EQ(frame->pasoTitulo(), QStringLiteral("4"));
    EXPECT_EQ(tool->windowTitle(), tituloAnimado(4));

    writeConfig(QStringLiteral("tituloanimado"), QStringLiteral("0"));
    frame->timer1Timer();
    frame->timer1Timer();
    EXPECT_EQ(tool->windowTitle(), QStringLiteral("Zafro Suite"));
    EXPECT_EQ(frame->pasoTitulo(), QStringLiteral("4")) << "turning it off keeps the step";

    writeConfig(QStringLiteral("tituloanimado"), QStringLiteral("1"));
    frame->timer1Timer();
    EXPECT_EQ(tool->windowTitle(), tituloAnimado(5));
}

TEST(FrameTitle, IntervalsFollowTheWindow)
{
    guardarSkin(4);
    EXPECT_EQ(openTool(QStringLiteral("areas"))->frame->timer()->interval(), 200);
    EXPECT_EQ(openTool(QStringLiteral("calculadora"))->frame->timer()->interval(), 200);
    EXPECT_EQ(openTool(QStringLiteral("romanos"))->frame->timer(), nullptr);
    EXPECT_EQ(openTool(QStringLiteral("visas"))->frame->timer(), nullptr);
}

TEST(FramePaint, EachRoleTakesItsSkinColourAndTitleLabelsTheTitleColour)
{
    guardarSkin(2); // "&H" texts: background 80C0FF is red FF, green C0, blue 80
    SampleTool *tool = openTool(QStringLiteral("matrices"));
    const QColor back(0xFF, 0xC0, 0x80), title(0x01, 0x01, 0xFF), text(0x01, 0x80, 0x01),
        button(0xFF, 0x01, 0x01);
    EXPECT_EQ(colourOf(tool, QPalette::Window), back);
    EXPECT_EQ(colourOf(tool->findChild<QLabel *>(QStringLiteral("Label1")), QPalette::WindowText),
              text);
    for (const char *name : {"Label10", "Label11"})
        EXPECT_EQ(colourOf(tool->findChild<QLabel *>(QLatin1String(name)), QPalette::WindowText),
                  title)
            << name;
    EXPECT_EQ(colourOf(tool->box, QPalette::Text), text);
    EXPECT_EQ(colourOf(tool->box, QPalette::Base), back);
    EXPECT_EQ(colourOf(tool->box, QPalette::Window), text) << "its edge stands out on any skin";
    EXPECT_EQ(colourOf(tool->check, QPalette::WindowText), text);
    EXPECT_EQ(colourOf(tool->check, QPalette::Window), back);
    EXPECT_EQ(colourOf(tool->close, QPalette::Button), button);
}

TEST(FramePaint, DecimalSkinsReadTheSameWayAsHexadecimalOnes)
{
    guardarSkin(4); // BackColor 14846691 = E28AE3, TituloForeColor FFFF01
    SampleTool *tool = openTool(QStringLiteral("nif"));
    EXPECT_EQ(colourOf(tool, QPalette::Window), QColor(0xE3, 0x8A, 0xE2));
    EXPECT_EQ(colourOf(tool->findChild<QLabel *>(QStringLiteral("Label1")), QPalette::WindowText),
              QColor(0x01, 0xFF, 0xFF));
}

TEST(FramePaint, TheStopwatchPaintsOnlyItsTitleAndButtons)
{
    guardarSkin(2);
    const QColor designText = QLabel().palette().color(QPalette::WindowText);
    const QColor designBase = QLineEdit().palette().color(QPalette::Base);
    SampleTool *tool = openTool(QStringLiteral("cronometro"));
    EXPECT_EQ(colourOf(tool->findChild<QLabel *>(QStringLiteral("Label1")), QPalette::WindowText),
              designText);
    EXPECT_EQ(colourOf(tool->box, QPalette::Base), designBase);
    EXPECT_EQ(colourOf(tool->close, QPalette::Button), QColor(0xFF, 0x01, 0x01));
}

TEST(FramePaint, AnAbsentColourIsAConversionErrorButUnpaintedWindowsNeverRead)
{
    try {
        openTool(QStringLiteral("trigo"));
        ADD_FAILURE() << "the load went through without a skin";
    } catch (const RuntimeError &e) {
        EXPECT_EQ(e.number(), 13);
    }
    forms().unloadAll();
    for (const char *name : {"tresenraya", "coordenadas2", "matriculasselect"})
        EXPECT_NO_THROW(openTool(QLatin1String(name))) << name;
}

TEST(FrameButtons, CloseUnloadsTheToolAndAboutOpensBesideIt)
{
    guardarSkin(1);
    forms().show(QStringLiteral("nuevos")); // keeps the suite alive
    SampleTool *tool = openTool(QStringLiteral("loga"));
    QTest::mouseClick(tool->about, Qt::LeftButton);
    EXPECT_NE(forms().find(QStringLiteral("acercade")), nullptr);
    EXPECT_EQ(forms().find(QStringLiteral("loga")), tool);
    QTest::mouseClick(tool->close, Qt::LeftButton);
    EXPECT_EQ(forms().find(QStringLiteral("loga")), nullptr);
    EXPECT_FALSE(test::fakes().desktop.ended());
}

TEST(NumericKeys, OnlyBackspacePointAndDigitsPass)
{
    for (int key = 0; key < 256; ++key) {
        const bool kept = key == 8 || key == '.' || (key >= '0' && key <= '9');
        EXPECT_EQ(solooonumeros(key, 99), kept ? key : 0) << key;
    }
}

TEST(NumericKeys, ATextBoxTakesTwoPointsButNoLetters)
{
    QLineEdit box;
    filterNumericKeys(&box);
    QTest::keyClicks(&box, QStringLiteral("1a.2,.b-3"));
    EXPECT_EQ(box.text(), QStringLiteral("1.2.3"));
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Left);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(box.text(), QStringLiteral("1.2"));
}

TEST(WindowShape, DesignPixelsScaleWithTheScreensDensity)
{
    const auto &pieces = windowShapePieces(QStringLiteral("idiomaa"));
    const QRegion at15 = buildWindowRegion(pieces, 15, 15);
    const QRegion at12 = buildWindowRegion(pieces, 12, 12);
    EXPECT_EQ(at15.boundingRect(), QRect(QPoint(8, 32), QPoint(447, 261)));
    EXPECT_EQ(at12.boundingRect(), QRect(QPoint(10, 40), QPoint(559, 327)));
    EXPECT_FALSE(at15.contains(QPoint(9, 33))) << "the corner is rounded off";
    EXPECT_TRUE(at15.contains(QPoint(228, 147)));
    EXPECT_TRUE(at15.contains(QPoint(8, 147)));
    EXPECT_EQ(buildWindowRegion(pieces, 15, 15, 1.0, 5.0).boundingRect().topLeft(), QPoint(13, 37));
}

TEST(WindowShape, PiecesCombineByUnionDifferenceAndExclusiveOr)
{
    const QRegion index = buildWindowRegion(windowShapePieces(QStringLiteral("index")), 15, 15);
    EXPECT_TRUE(index.contains(QPoint(2, 45))) << "the square band joins the rounded body";
    EXPECT_TRUE(index.contains(QPoint(376, 540))) << "the ellipse hangs below";
    EXPECT_FALSE(index.contains(QPoint(190, 540)));

    const QRegion conf =
        buildWindowRegion(windowShapePieces(QStringLiteral("configuracion")), 15, 15);
    EXPECT_TRUE(conf.contains(QPoint(350, 22))) << "the eye outside the face is added";
    EXPECT_FALSE(conf.contains(QPoint(350, 100))) << "and inside the face it is cut out";
    EXPECT_FALSE(conf.contains(QPoint(72, 289))) << "a hole";
    EXPECT_TRUE(conf.contains(QPoint(234, 189)));
    EXPECT_TRUE(windowShapePieces(QStringLiteral("trigo")).empty());
}

TEST(WindowShape, AShapedWindowIsFramelessAndDraggedByItsSurface)
{
    auto *nuevos = forms().show(QStringLiteral("nuevos"));
    EXPECT_TRUE(nuevos->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_FALSE(nuevos->mask().isEmpty());
    EXPECT_FALSE(nuevos->mask().contains(QPoint(0, 0)));

    const QPoint start = nuevos->pos();
    const QPoint surface(20, 100);
    ASSERT_EQ(nuevos->childAt(surface), nullptr);
    QTest::mousePress(nuevos, Qt::RightButton, {}, surface);
    QTest::mouseMove(nuevos, surface + QPoint(30, 20));
    QTest::mouseRelease(nuevos, Qt::RightButton, {}, surface + QPoint(30, 20));
    EXPECT_EQ(nuevos->pos(), start + QPoint(30, 20));

    const QPoint moved = nuevos->pos();
    auto *button = nuevos->findChild<QPushButton *>(QStringLiteral("Command1"));
    QTest::mousePress(button, Qt::LeftButton);
    QTest::mouseMove(nuevos, QPoint(5, 5));
    EXPECT_EQ(nuevos->pos(), moved) << "a press on a control is the control's";
}

} // namespace
} // namespace zafro
