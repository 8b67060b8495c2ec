#include "formulas/graphs_forms.h"

#include "formulas/coordenadas1_window.h"
#include "formulas/coordenadas2_window.h"
#include "formulas/polares1_window.h"
#include "formulas/polares2_window.h"
#include "shell/forms.h"

namespace zafro {

void registerGraphForms()
{
    Forms &f = forms();
    f.registerForm(QStringLiteral("coordenadas1"), [] { return new Coordenadas1Window; });
    f.registerForm(QStringLiteral("coordenadas2"), [] { return new Coordenadas2Window; });
    f.registerForm(QStringLiteral("polares1"), [] { return new Polares1Window; });
    f.registerForm(QStringLiteral("polares2"), [] { return new Polares2Window; });
}

} // namespace zafro
