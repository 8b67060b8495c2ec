#include "games/games_forms.h"

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
}

} // namespace zafro
