#include "shell/inicio_window.h"

#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/settings.h"
#include "shell/startup.h"

namespace zafro {

InicioWindow::InicioWindow()
    : timer1_(makeTimer(this, QStringLiteral("Timer1"), 1, true, [this] { timer1Timer(); }))
{
    setWindowTitle(QStringLiteral("Cargando - Loading"));
    resizeTwips(4800, 1200);
}

void InicioWindow::formLoad()
{
    hide();
    writeConfig(QStringLiteral("Version"), versionText());
    if (readConfigNumber(QStringLiteral("borra")) == 1) {
        forms().show(QStringLiteral("limpia"));
        return;
    }
    if (readConfigNumber(QStringLiteral("idioma")) == 0) {
        forms().show(QStringLiteral("idiomaa"));
        return;
    }
    cargarIdiomaPorCodigo(readConfigNumber(QStringLiteral("idioma")));
    if (readConfigNumber(QStringLiteral("precarga")) != 1) {
        forms().show(QStringLiteral("intro"));
        writeConfig(QStringLiteral("precarga"), QStringLiteral("0"));
    } else {
        forms().show(QStringLiteral("index"));
    }
}

void InicioWindow::timer1Timer()
{
    unloadMe();
}

} // namespace zafro
