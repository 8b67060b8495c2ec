#include "games/games_forms.h"

#include "games/nabes_window.h"
#include "games/nabesfin_window.h"
#include "games/parejass_window.h"
#include "games/tresenraya_window.h"
#include "games/tresenrayaayuda_window.h"
#include "shell/forms.h"

namespace zafro {

void registerGamesForms()
{
    Forms &f = forms();
    f.registerForm(QStringLiteral("tresenraya"), [] { return new TresenrayaWindow; });
    f.registerForm(QStringLiteral("tresenrayaayuda"), [] { return new TresenrayaayudaWindow; });
    f.registerForm(QStringLiteral("parejass"), [] { return new ParejassWindow; });
    f.registerForm(QStringLiteral("nabes"), [] { return new NabesWindow; });
    f.registerForm(QStringLiteral("nabesg"), [] { return new NabesFinWindow(true); });
    f.registerForm(QStringLiteral("nabesp"), [] { return new NabesFinWindow(false); });
}

} // namespace zafro
