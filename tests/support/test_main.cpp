// One main for every test executable: it makes the application object once,
// points the settings store and the XDG folders at a temporary place, and gives
// each test fresh fakes and a fresh store.

#include "fakes.h"
#include "shell/settings.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <memory>

#ifdef ZAFRO_TEST_UI
#include "shell/forms.h"
#include "shell/register_forms.h"
#include <QApplication>
using TestApplication = QApplication;
#else
#include <QCoreApplication>
using TestApplication = QCoreApplication;
#endif

namespace zafro::test {

namespace {
std::unique_ptr<Fakes> currentFakes;
std::unique_ptr<QTemporaryDir> storeDir;
} // namespace

Fakes &fakes()
{
    return *currentFakes;
}

class FreshWorld : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo &) override
    {
        currentFakes = std::make_unique<Fakes>();
        services() = Services{&currentFakes->dialogs, &currentFakes->desktop, &currentFakes->clock,
                              &currentFakes->sound, &currentFakes->random};
        storeDir = std::make_unique<QTemporaryDir>();
        useSettingsFile(storeDir->filePath(QStringLiteral("registry.sqlite3")));
    }
    void OnTestEnd(const ::testing::TestInfo &) override
    {
#ifdef ZAFRO_TEST_UI
        forms().unloadAll();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        registerForms(); // a test may have put a stand-in under a tool's name
#endif
        useSettingsFile(QString());
        storeDir.reset();
    }
};

} // namespace zafro::test

namespace {
QtMessageHandler defaultHandler = nullptr;

// The offscreen platform complains at every raise(); that says nothing about the suite.
void quietHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message == QLatin1String("This plugin does not support raise()"))
        return;
    defaultHandler(type, context, message);
}
} // namespace

int main(int argc, char **argv)
{
    defaultHandler = qInstallMessageHandler(quietHandler);
    QTemporaryDir home;
    qputenv("XDG_RUNTIME_DIR", home.filePath(QStringLiteral("run")).toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    TestApplication app(argc, argv);
#ifdef ZAFRO_TEST_UI
    zafro::registerForms();
#endif
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new zafro::test::FreshWorld);
    return RUN_ALL_TESTS();
}
