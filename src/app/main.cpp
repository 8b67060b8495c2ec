// Zafro Suite: the command line, the application object, the real platform
// services, and the first window. Everything after that is a chain of windows.

#include "platform/qt_services.h"
#include "shell/accessibility.h"
#include "shell/application.h"
#include "shell/command_line.h"
#include "shell/forms.h"
#include "shell/register_forms.h"

#include <QIcon>

#include <cstdio>

namespace {

QStringList argumentList(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

QIcon suiteIcon()
{
    QIcon icon;
    for (int size : {16, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/zafrosuite-%1.png").arg(size), QSize(size, size));
    return icon;
}

} // namespace

int main(int argc, char **argv)
{
    // Before the application object, which needs a display: help, version and a
    // wrong tool name answer on the terminal alone.
    const zafro::CommandLine line = zafro::parseCommandLine(argumentList(argc, argv));
    if (line.done) {
        std::fputs(line.out.toLocal8Bit().constData(), stdout);
        std::fputs(line.err.toLocal8Bit().constData(), stderr);
        return line.status;
    }

    zafro::Application app(argc, argv);
    // The settings folder is named after the application, so the name stays short.
    zafro::Application::setApplicationName(QStringLiteral("zafro"));
    zafro::Application::setApplicationDisplayName(QStringLiteral("Zafro Suite"));
    zafro::Application::setApplicationVersion(QStringLiteral("%1.%2.%3")
                                                  .arg(ZAFRO_VERSION_MAJOR)
                                                  .arg(ZAFRO_VERSION_MINOR)
                                                  .arg(ZAFRO_VERSION_REVISION));
    zafro::Application::setDesktopFileName(QStringLiteral("zafrosuite"));
    zafro::Application::setWindowIcon(QIcon::fromTheme(QStringLiteral("zafrosuite"), suiteIcon()));
    zafro::installQtServices();
    zafro::installAccessibilityPass();
    zafro::registerForms();
    if (!line.tool.isEmpty())
        zafro::openToolOnceLauncherShows(line.tool);
    zafro::forms().show(QStringLiteral("inicio"));
    if (app.ending()) // ended before the event loop ever ran
        return app.endStatus();
    return zafro::Application::exec();
}
