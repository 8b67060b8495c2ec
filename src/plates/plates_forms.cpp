#include "plates/plates_forms.h"

#include "plates/matacercade_window.h"
#include "plates/matimportacion_window.h"
#include "plates/matriculas_window.h"
#include "shell/forms.h"

namespace zafro {

void registerPlatesForms()
{
    Forms &f = forms();
    f.registerForm(QStringLiteral("matriculasselect"), [] { return new MatriculasWindow; });
    f.registerForm(QStringLiteral("matacercade"), [] { return new MatacercadeWindow; });
    f.registerForm(QStringLiteral("matimportacion"), [] { return new MatimportacionWindow; });
}

} // namespace zafro
