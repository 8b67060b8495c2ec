#include "signals/signals_forms.h"

#include "shell/forms.h"
#include "signals/cronometro_window.h"
#include "signals/morse_window.h"

namespace zafro {

void registerSignalsForms()
{
    Forms &f = forms();
    f.registerForm(QStringLiteral("morse"), [] { return new MorseWindow; });
    f.registerForm(QStringLiteral("cronometro"), [] { return new CronometroWindow; });
}

} // namespace zafro
