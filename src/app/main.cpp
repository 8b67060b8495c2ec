// Zafro Suite: the application object, the real platform services, and the first
// window. Everything after that is a chain of windows.

#include "platform/qt_services.h"
#include "shell/application.h"
#include "shell/forms.h"
#include "shell/register_forms.h"

int main(int argc, char **argv)
{
    zafro::Application app(argc, argv);
    zafro::Application::setApplicationName(QStringLiteral("zafro"));
    zafro::Application::setApplicationDisplayName(QStringLiteral("Zafro Suite"));
    zafro::installQtServices();
    zafro::registerForms();
    zafro::forms().show(QStringLiteral("inicio"));
    if (app.ending()) // ended before the event loop ever ran
        return app.endStatus();
    return zafro::Application::exec();
}
