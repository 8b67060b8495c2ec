#include "games/games_forms.h"

#include "games/nabes_window.h"
#include "games/nabesfin_window.h"
#include "shell/forms.h"

namespace zafro {

void registerGamesForms()
{
    Forms &f = forms();
    f.registerForm(QStringLiteral("nabes"), [] { return new NabesWindow; });
    f.registerForm(QStringLiteral("nabesg"), [] { return new NabesFinWindow(true); });
    f.registerForm(QStringLiteral("nabesp"), [] { return new NabesFinWindow(false); });
}

} // namespace zafro
