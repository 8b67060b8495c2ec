#include "fakes.h"
#include "shell/au_window.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/launcher.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

using test::fakes;

const QColor kYellow(255, 255, 0);
const QColor kRed(255, 0, 0);

QString stored(const QString &name, const QString &subkey = {})
{
    return LeerClaveShell(configPath(name, subkey));
}

// A tool window that counts its loads and remembers what `ls` held when it loaded.
class CountingTool : public Form {
public:
    CountingTool()
    {
        auto *ls = new QLabel(this);
        ls->setObjectName(QStringLiteral("ls"));
    }
    void formLoad() override
    {
        ++loads;
        lsAtLoad = findChild<QLabel *>(QStringLiteral("ls"))->text();
    }
    static inline int loads = 0;
    static inline QString lsAtLoad;
};

// The mouse passing over a control, as the window system reports it.
void hover(QWidget *widget, QPoint at = {2, 2})
{
    QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

class Launcher : public ::testing::Test {
protected:
    void SetUp() override
    {
        CargarEspanol();
        writeConfig(QStringLiteral("Visitado"), QStringLiteral("5"));
        guardarSkin(4);
        CountingTool::loads = 0;
        CountingTool::lsAtLoad.clear();
    }
    IndexWindow *open()
    {
        return qobject_cast<IndexWindow *>(forms().show(QStringLiteral("index")));
    }
    static QLabel *label(QWidget *index, const QString &name)
    {
        return index->findChild<QLabel *>(name);
    }
    static QColor ink(QWidget *index, const QString &name)
    {
        return label(index, name)->palette().color(QPalette::WindowText);
    }
    static int redLabels(QWidget *index)
    {
        int red = 0;
        for (const LauncherLabel &entry : launcherLabels())
            red += ink(index, QLatin1String(entry.name)) == kRed;
        return red;
    }
};

TEST_F(Launcher, TheLoadCountsTheVisitAndStoresTheFallbackSkinOnlyAtTheFirst)
{
    const struct {
        const char *name, *visitado, *visits, *skin;
    } rows[] = {{"a later visit", "5", "6", "4"}, {"no count yet", nullptr, "1", "2"}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        guardarSkin(4);
        row.visitado ? writeConfig(QStringLiteral("Visitado"), QLatin1String(row.visitado))
                     : BorrarClave(configPath(QStringLiteral("Visitado")));
        IndexWindow *index = open();
        EXPECT_EQ(stored(QStringLiteral("Visitado")), QLatin1String(row.visits));
        EXPECT_EQ(label(index, QStringLiteral("Label2"))->text(),
                  QStringLiteral("has estado aqui %1 veces").arg(QLatin1String(row.visits)));
        EXPECT_EQ(stored(QStringLiteral("Tipo"), QStringLiteral("Colores")),
                  QLatin1String(row.skin));
        EXPECT_EQ(stored(QStringLiteral("hora")) + stored(QStringLiteral("fecha")),
                  QStringLiteral("11"));
        EXPECT_TRUE(index->isVisible()) << "the show that led to the load wins over the hide";
        EXPECT_TRUE(index->windowFlags() & Qt::FramelessWindowHint);
        EXPECT_FALSE(index->mask().isEmpty());
        forms().unloadAll();
    }
}

TEST_F(Launcher, TheLoadWritesTheMakersValuesAndClearsOnlyTheMakersWarning)
{
    writeConfig(QStringLiteral("Contador"), QStringLiteral("3"));
    EscribirClave(messengerWarningPath(), QStringLiteral("By Tirsamontes"));
    fakes().desktop.files.insert(fakes().desktop.programFolder() + QStringLiteral("/ZaFrO.txt"));
    open();
    EXPECT_FALSE(stored(QStringLiteral("Copyright")).isEmpty());
    EXPECT_EQ(LeerClaveShell(QStringLiteral("HKLM\\Software\\Tirsamontes\\Actual\\Mail\\Email1")),
              QStringLiteral("zafro@tirsamontes.com"));
    EXPECT_FALSE(
        LeerClaveShell(QStringLiteral("HKLM\\Software\\Tirsamontes\\Actual\\Web\\Web4")).isEmpty());
    EXPECT_EQ(stored(QStringLiteral("Contador")), QString());
    EXPECT_EQ(LeerClaveShell(messengerWarningPath()), QString());
    EXPECT_TRUE(fakes().desktop.files.isEmpty());
    EXPECT_EQ(LeerClaveShell(startPagePath()), QString()) << "internetinicio is not 1";
    forms().unloadAll();

    EscribirClave(messengerWarningPath(), QStringLiteral("by tirsamontes"));
    writeConfig(QStringLiteral("internetinicio"), QStringLiteral("1"));
    open();
    EXPECT_EQ(LeerClaveShell(messengerWarningPath()), QStringLiteral("by tirsamontes"));
    EXPECT_EQ(LeerClaveShell(startPagePath()), QStringLiteral("http://www.zafrosuite.com"));
}

TEST_F(Launcher, CaptionsComeFromTheTableExceptThePlacesHeldForLater)
{
    CargarIngles();
    IndexWindow *index = open();
    EXPECT_EQ(label(index, QStringLiteral("Label3"))->text(),
              QStringLiteral("Welcome to Zafro Suite"));
    EXPECT_EQ(label(index, QStringLiteral("Labelcom17"))->text(), QStringLiteral("Roman Numerals"));
    EXPECT_EQ(label(index, QStringLiteral("Labelcom13"))->text(), QStringLiteral("pa luego -->"));
    EXPECT_EQ(label(index, QStringLiteral("Labelcom15"))->text(), QStringLiteral("pa luego -->"));
    EXPECT_EQ(label(index, QStringLiteral("Labelcom1"))->text(),
              QStringLiteral("Coordinate Graphs"));
    auto *command7 = index->findChild<QPushButton *>(QStringLiteral("Command7"));
    EXPECT_EQ(command7->toolTip(), QStringLiteral("About Zafro Suite..."));
    EXPECT_EQ(index->findChild<QPushButton *>(QStringLiteral("Command9"))->text(),
              QStringLiteral("Close popup"));
}

TEST_F(Launcher, HoverNeverLeavesTwoLabelsRed)
{
    IndexWindow *index = open();
    for (const LauncherLabel &entry : launcherLabels())
        ASSERT_EQ(ink(index, QLatin1String(entry.name)), kYellow) << entry.name;
    hover(label(index, QStringLiteral("Labelcom7")));
    EXPECT_EQ(ink(index, QStringLiteral("Labelcom7")), kRed);
    hover(label(index, QStringLiteral("Labelcom8")));
    EXPECT_EQ(ink(index, QStringLiteral("Labelcom7")), kYellow);
    EXPECT_EQ(ink(index, QStringLiteral("Labelcom8")), kRed);
    EXPECT_EQ(redLabels(index), 1);
    index->labelMouseMove(QStringLiteral("Labelcom13"));
    EXPECT_EQ(ink(index, QStringLiteral("Labelcom13")), kRed) << "pa luego reacts too";
    EXPECT_EQ(redLabels(index), 1);
    index->label4MouseMove();
    EXPECT_EQ(redLabels(index), 0);
    index->labelMouseMove(QStringLiteral("Labelcom21"));
    hover(index, QPoint(5, 300));
    EXPECT_EQ(redLabels(index), 0) << "the bare surface resets them";
}

TEST_F(Launcher, AToolOpensOnceAndLaterClicksOnlyRaiseIt)
{
    forms().registerForm(QStringLiteral("morse"), [] { return new CountingTool; });
    IndexWindow *index = open();
    QTest::mouseClick(label(index, QStringLiteral("Labelcom21")), Qt::LeftButton);
    QWidget *morse = forms().find(QStringLiteral("morse"));
    ASSERT_NE(morse, nullptr);
    EXPECT_TRUE(morse->isVisible());
    QTest::mouseClick(label(index, QStringLiteral("Labelcom21")), Qt::LeftButton);
    EXPECT_EQ(forms().find(QStringLiteral("morse")), morse);
    EXPECT_EQ(CountingTool::loads, 1);
    EXPECT_TRUE(index->isVisible()) << "the launcher stays open";

    forms().registerForm(QStringLiteral("matriculasselect"), [] { return new CountingTool; });
    index->labelClick(QStringLiteral("Labelcom19c"));
    EXPECT_EQ(CountingTool::lsAtLoad, QStringLiteral("1")) << "the plates window knows its host";

    // Places held for later do nothing.
    const QStringList before = forms().loadedNames();
    index->labelClick(QStringLiteral("Labelcom13"));
    index->labelClick(QStringLiteral("Labelcom15"));
    EXPECT_EQ(forms().loadedNames(), before);
}

TEST_F(Launcher, TheCurrencyLabelDropsTheUpdateWindowAndSomeLabelsResetColoursFirst)
{
    forms().registerForm(QStringLiteral("divisas"), [] { return new CountingTool; });
    forms().registerForm(QStringLiteral("divisasact"), [] { return new Form; });
    forms().registerForm(QStringLiteral("parejass"), [] { return new Form; });
    IndexWindow *index = open();
    forms().show(QStringLiteral("divisasact"));
    index->labelClick(QStringLiteral("Labelcom12"));
    EXPECT_EQ(forms().find(QStringLiteral("divisasact")), nullptr);
    EXPECT_NE(forms().find(QStringLiteral("divisas")), nullptr);

    index->labelMouseMove(QStringLiteral("Labelcom20"));
    index->labelClick(QStringLiteral("Labelcom20"));
    EXPECT_EQ(redLabels(index), 0);
    index->labelMouseMove(QStringLiteral("Labelcom21"));
    index->labelClick(QStringLiteral("Labelcom21"));
    EXPECT_EQ(redLabels(index), 1) << "morse does not reset";
}

TEST_F(Launcher, TheShrinkingCloseEndsTheSuiteFromItsTopLeftCorner)
{
    forms().registerForm(QStringLiteral("morse"), [] { return new CountingTool; });
    IndexWindow *index = open();
    forms().show(QStringLiteral("morse"));
    writeConfig(QStringLiteral("tituloanimado"), QStringLiteral("1"));
    auto *timer1 = index->findChild<QTimer *>(QStringLiteral("Timer1"));
    auto *timer6 = index->findChild<QTimer *>(QStringLiteral("Timer6"));
    ASSERT_TRUE(timer1 && timer6);
    EXPECT_EQ(timer6->interval(), 1);
    index->setWindowTitle(QStringLiteral("   Z   a"));
    QTest::mouseClick(index->findChild<QPushButton *>(QStringLiteral("Command8")), Qt::LeftButton);
    EXPECT_EQ(index->windowTitle(), QStringLiteral("Zafro Suite"));
    EXPECT_FALSE(timer1->isActive());
    EXPECT_TRUE(timer6->isActive());

    const QPoint corner = index->pos();
    QSize last = index->size();
    int ticks = 0;
    while (!fakes().desktop.ended() && ticks < 100) {
        index->timer6Timer();
        ++ticks;
        if (!fakes().desktop.ended()) {
            EXPECT_LT(index->width(), last.width());
            last = index->size();
        }
    }
    EXPECT_EQ(fakes().desktop.endStatuses, QList<int>{0});
    EXPECT_EQ(index->pos(), corner);
    EXPECT_GT(ticks, 15) << "it shrinks away over many ticks";
    EXPECT_NE(forms().find(QStringLiteral("morse")), nullptr)
        << "an open tool dies with the process";
}

TEST_F(Launcher, AskingBeforeClosingGoesThroughTheQuestionWindow)
{
    writeConfig(QStringLiteral("pregcerrar"), QStringLiteral("1"));
    IndexWindow *index = open();
    index->command8Click();
    EXPECT_EQ(forms().find(QStringLiteral("index")), nullptr);
    auto *au = findForm<AuWindow>(QStringLiteral("au"));
    ASSERT_NE(au, nullptr);
    EXPECT_EQ(au->findChild<QPushButton *>(QStringLiteral("Command3"))->text(),
              QStringLiteral("No cerrar"));
    au->close();
    EXPECT_EQ(findForm<AuWindow>(QStringLiteral("au")), au) << "the window menu cannot close it";

    au->command3Click(); // "No cerrar": a new load, a new visit
    EXPECT_EQ(forms().find(QStringLiteral("au")), nullptr);
    EXPECT_NE(forms().find(QStringLiteral("index")), nullptr);
    EXPECT_EQ(stored(QStringLiteral("Visitado")), QStringLiteral("7"));
    EXPECT_FALSE(fakes().desktop.ended());

    findForm<IndexWindow>(QStringLiteral("index"))->command8Click();
    au = findForm<AuWindow>(QStringLiteral("au"));
    au->findChild<QCheckBox *>(QStringLiteral("Check1"))->setChecked(true);
    au->command2Click();
    EXPECT_EQ(fakes().desktop.openedUrls,
              QStringList{QStringLiteral("http://www.tirsamontes.com")});
    EXPECT_EQ(fakes().desktop.endStatuses, QList<int>{0});
}

TEST_F(Launcher, TheLanguageButtonUnloadsTheLauncherATickLater)
{
    IndexWindow *index = open();
    index->command12Click();
    EXPECT_TRUE(forms().find(QStringLiteral("idiomaa"))->isVisible());
    auto *timer5 = index->findChild<QTimer *>(QStringLiteral("Timer5"));
    EXPECT_TRUE(timer5->isActive());
    EXPECT_EQ(timer5->interval(), 100);
    index->timer5Timer();
    EXPECT_EQ(forms().find(QStringLiteral("index")), nullptr);
    EXPECT_FALSE(fakes().desktop.ended()) << "the language window keeps the suite alive";
}

TEST_F(Launcher, TheSiteTheChangeListAndTheShellWindows)
{
    IndexWindow *index = open();
    index->command11Click();
    index->command3Click();
    EXPECT_EQ(fakes().desktop.openedUrls,
              QStringList({QStringLiteral("http://www.zafrosuite.com"),
                           QStringLiteral("http://www.zafrosuite.com")}));
    QTest::mouseClick(label(index, QStringLiteral("Label6")), Qt::LeftButton);
    ASSERT_EQ(fakes().dialogs.messages.size(), 1);
    EXPECT_TRUE(fakes().dialogs.messages[0].text.startsWith(
        QStringLiteral("version beta2. cambios: -relieves en ventanas -eliminado txt persiguiendo "
                       "al raton -eliminado apertura multiple -problema en coordenadas -añadida la "
                       "precarga -compatibilidad con windowsvistabeta2")));
    EXPECT_EQ(fakes().dialogs.messages[0].style, 0);
    index->command19Click();
    index->command4Click();
    QTest::mouseClick(label(index, QStringLiteral("Label1")), Qt::LeftButton);
    for (const char *name : {"colores", "preferencias", "acercade"})
        EXPECT_NE(forms().find(QLatin1String(name)), nullptr) << name;
}

TEST_F(Launcher, EveryBuiltToolOpensFromItsLabelInTheCurrentLanguage)
{
    CargarIngles();
    IndexWindow *index = open();
    const struct {
        const char *label, *window;
    } tools[] = {{"Labelcom17", "romanos"},     {"Labelcom4", "calculadora"},
                 {"Labelcom7", "trigo"},        {"Labelcom5", "radian"},
                 {"Labelcom18", "temperatura"}, {"Labelcom16", "bisiesto"},
                 {"Labelcom2b", "matrices"}};
    for (const auto &tool : tools) {
        index->labelClick(QLatin1String(tool.label));
        QWidget *window = forms().find(QLatin1String(tool.window));
        ASSERT_NE(window, nullptr) << tool.window;
        EXPECT_TRUE(window->isVisible()) << tool.window;
        bool english = false;
        for (QWidget *control : window->findChildren<QWidget *>()) {
            const QVariant text = control->property("text");
            english |= text.toString() == QLatin1String("Close");
        }
        EXPECT_TRUE(english || QLatin1String(tool.window) == QLatin1String("romanos"))
            << tool.window;
    }
    EXPECT_TRUE(index->isVisible());
}

TEST_F(Launcher, TheHiddenBenchEvaluatesWithAFreshObjectPerClick)
{
    IndexWindow *index = open();
    auto *text2 = index->findChild<QLineEdit *>(QStringLiteral("Text2"));
    auto *text3 = index->findChild<QLineEdit *>(QStringLiteral("Text3"));
    auto *command14 = index->findChild<QPushButton *>(QStringLiteral("Command14"));
    ASSERT_TRUE(text2 && text3 && command14);
    EXPECT_TRUE(text2->isHidden() && text3->isHidden() && command14->isHidden());
    text2->setText(QStringLiteral("x=2:y=3:Max(x,y)*Sqr(16)"));
    index->command14Click();
    EXPECT_EQ(text3->text(), QStringLiteral("12"));
    text2->setText(QStringLiteral("x"));
    index->command14Click();
    EXPECT_NE(text3->text(), QStringLiteral("2")) << "a variable does not outlive its click";
}

} // namespace
} // namespace zafro
