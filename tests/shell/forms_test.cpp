#include "fakes.h"
#include "shell/form.h"
#include "shell/forms.h"

#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QCoreApplication>

namespace zafro {
namespace {

using test::fakes;

// A window that records what the registry did to it.
class Probe : public Form {
public:
    static inline QStringList log;
    bool refuseUser = false;

    void formLoad() override { log << QStringLiteral("load:") + windowTitle(); }
    bool queryUnload(UnloadMode mode) override
    {
        log << QStringLiteral("query:%1").arg(int(mode));
        return refuseUser && !isProgramReason(mode);
    }
    void formUnload() override { log << QStringLiteral("unload"); }
};

class FormsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        Probe::log.clear();
        forms().registerForm(QStringLiteral("probe"), [] { return new Probe; });
        forms().registerForm(QStringLiteral("other"), [] { return new Probe; });
    }
    static void flushDeletes()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(FormsTest, ShowLoadsOnceWithPrepareBeforeTheLoadStepAndRaisesAfter)
{
    QWidget *first = forms().show(QStringLiteral("probe"), [](QWidget *w) {
        Probe::log << QStringLiteral("prepare");
        w->setWindowTitle(QStringLiteral("ready"));
    });
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->objectName(), QStringLiteral("probe"));
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(Probe::log, (QStringList{QStringLiteral("prepare"), QStringLiteral("load:ready")}));

    first->hide();
    QWidget *second = forms().show(QStringLiteral("probe"),
                                   [](QWidget *) { Probe::log << QStringLiteral("again"); });
    EXPECT_EQ(second, first);
    EXPECT_TRUE(second->isVisible());
    EXPECT_EQ(Probe::log.size(), 2) << "a second show must neither prepare nor load again";
    EXPECT_EQ(forms().find(QStringLiteral("probe")), first);
    EXPECT_EQ(forms().find(QStringLiteral("nothing")), nullptr);
    EXPECT_EQ(forms().show(QStringLiteral("nothing")), nullptr);
}

TEST_F(FormsTest, UnloadDropsTheWindowAndTheNextShowLoadsAfresh)
{
    QPointer<QWidget> first = forms().show(QStringLiteral("probe"));
    forms().show(QStringLiteral("other"));
    forms().unload(QStringLiteral("probe"));
    EXPECT_EQ(forms().find(QStringLiteral("probe")), nullptr);
    EXPECT_TRUE(Probe::log.contains(QStringLiteral("query:1")));
    EXPECT_TRUE(Probe::log.contains(QStringLiteral("unload")));
    flushDeletes();
    EXPECT_TRUE(first.isNull());

    Probe::log.clear();
    QWidget *again = forms().show(QStringLiteral("probe"));
    EXPECT_NE(again, nullptr);
    EXPECT_EQ(Probe::log, QStringList{QStringLiteral("load:")});
    forms().unload(QStringLiteral("not loaded")); // nothing happens
}

TEST_F(FormsTest, TheUsersCloseCanBeRefusedButTheProgramsCannot)
{
    auto *probe = static_cast<Probe *>(forms().show(QStringLiteral("probe")));
    probe->refuseUser = true;
    probe->close(); // the window manager's close button
    EXPECT_EQ(forms().find(QStringLiteral("probe")), probe);
    EXPECT_TRUE(probe->isVisible());
    EXPECT_TRUE(Probe::log.contains(QStringLiteral("query:0")));

    forms().unload(QStringLiteral("probe"));
    EXPECT_EQ(forms().find(QStringLiteral("probe")), nullptr);
}

TEST_F(FormsTest, TheSuiteEndsWhenItsLastLoadedWindowUnloadsNotWhenNoneIsVisible)
{
    forms().show(QStringLiteral("probe"));
    QWidget *other = forms().show(QStringLiteral("other"));
    other->hide(); // hidden but loaded: keeps the suite alive
    forms().unload(QStringLiteral("probe"));
    EXPECT_FALSE(fakes().desktop.ended());

    other->close(); // the user closes the last one
    EXPECT_EQ(fakes().desktop.endStatuses, QList<int>{0});
}

TEST(Twips, FifteenToThePixelOnACommonScreen)
{
    // The offscreen platform reports 96 dpi.
    EXPECT_EQ(twipsPerPixelX(), 15);
    EXPECT_EQ(twipsToPixelsX(1440), 96);
    EXPECT_EQ(twipsRect(150, 300, 1500, 600), QRect(10, 20, 100, 40));
}

} // namespace
} // namespace zafro
