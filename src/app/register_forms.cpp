// The list of every window of the suite: the one place that knows all the tools.

#include "shell/register_forms.h"

#include "formulas/cformulas.h"
#include "formulas/graphs_forms.h"
#include "games/games_forms.h"
#include "identifiers/identifier_forms.h"
#include "maths/maths_forms.h"
#include "online/news_panel.h"
#include "online/online_forms.h"
#include "plates/plates_forms.h"
#include "shell/acercade_window.h"
#include "shell/arrival_window.h"
#include "shell/au_window.h"
#include "shell/colores_window.h"
#include "shell/colorestuyos_window.h"
#include "shell/configuracion_window.h"
#include "shell/forms.h"
#include "shell/idiomaa_window.h"
#include "shell/index_window.h"
#include "shell/inicio_window.h"
#include "shell/intro_window.h"
#include "shell/launcher_hooks.h"
#include "shell/limpia_window.h"
#include "shell/nuevos_window.h"
#include "shell/preferencias_window.h"
#include "signals/signals_forms.h"

namespace zafro {

void registerForms()
{
    Forms &f = forms();
    f.registerForm(QStringLiteral("inicio"), [] { return new InicioWindow; });
    f.registerForm(QStringLiteral("idiomaa"), [] { return new IdiomaaWindow; });
    f.registerForm(QStringLiteral("intro"), [] { return new IntroWindow; });
    f.registerForm(QStringLiteral("nuevos"), [] { return new NuevosWindow; });
    f.registerForm(QStringLiteral("index"), [] { return new IndexWindow; });
    f.registerForm(QStringLiteral("au"), [] { return new AuWindow; });
    f.registerForm(QStringLiteral("colores"), [] { return new ColoresWindow; });
    f.registerForm(QStringLiteral("colorestuyos"), [] { return new ColorestuyosWindow; });
    f.registerForm(QStringLiteral("preferencias"), [] { return new PreferenciasWindow; });
    f.registerForm(QStringLiteral("acercade"), [] { return new AcercadeWindow; });
    f.registerForm(QStringLiteral("limpia"), [] { return new LimpiaWindow; });
    f.registerForm(QStringLiteral("arrival"), [] { return new ArrivalWindow; });
    f.registerForm(QStringLiteral("configuracion"), [] { return new ConfiguracionWindow; });
    registerMathsForms();
    registerGraphForms();
    registerPlatesForms();
    registerOnlineForms();
    registerIdentifierForms();
    registerGamesForms();
    registerSignalsForms();
    launcherHooks().formulaBench = formulaBench;
    launcherHooks().newsPanel = [](QWidget *launcher) -> LauncherNews * {
        return new NewsPanel(launcher);
    };
}

} // namespace zafro
