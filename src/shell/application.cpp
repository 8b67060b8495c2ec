#include "shell/application.h"

#include "runtime/runtime_error.h"

#include <QTimerEvent>
#include <QWidget>
#include <cstdio>

namespace zafro {

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    // The registry decides when the suite ends: a hidden loaded window keeps it alive.
    setQuitOnLastWindowClosed(false);
}

Application *Application::instance()
{
    return dynamic_cast<Application *>(QCoreApplication::instance());
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    if (ending_) {
        switch (event->type()) {
        case QEvent::Timer:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return true;
        default:
            break;
        }
    }
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError &error) {
        if (!ending_)
            reportRuntimeError(error);
    } catch (const std::exception &error) {
        // Not a run-time error of the program's own rules: still an orderly end.
        std::fprintf(stderr, "zafrosuite: %s\n", error.what());
        endProgram(70);
    }
    return true;
}

void Application::endProgram(int status)
{
    if (ending_)
        return;
    ending_ = true;
    endStatus_ = status;
    const auto windows = topLevelWidgets();
    for (QWidget *window : windows)
        window->hide();
    exit(status);
}

} // namespace zafro
