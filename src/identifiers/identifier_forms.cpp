#include "identifiers/identifier_forms.h"

#include "identifiers/isbn_window.h"
#include "identifiers/moviles_window.h"
#include "identifiers/nif_window.h"
#include "identifiers/visas_window.h"
#include "shell/forms.h"

namespace zafro {

void registerIdentifierForms()
{
    Forms &f = forms();
    f.registerForm(QStringLiteral("nif"), [] { return new NifWindow; });
    f.registerForm(QStringLiteral("ISBN"), [] { return new IsbnWindow; });
    f.registerForm(QStringLiteral("visas"), [] { return new VisasWindow; });
    f.registerForm(QStringLiteral("moviles"), [] { return new MovilesWindow; });
}

} // namespace zafro
