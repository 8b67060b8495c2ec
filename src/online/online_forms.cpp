#include "online/online_forms.h"

#include "online/divisas_window.h"
#include "online/divisasact_window.h"
#include "online/divisasactualizando_window.h"
#include "shell/forms.h"

namespace zafro {

void registerOnlineForms()
{
    Forms &f = forms();
    f.registerForm(QStringLiteral("divisas"), [] { return new DivisasWindow; });
    f.registerForm(QStringLiteral("divisasact"), [] { return new DivisasActWindow; });
    f.registerForm(QStringLiteral("divisasactualizando"),
                   [] { return new DivisasActualizandoWindow; });
}

} // namespace zafro
