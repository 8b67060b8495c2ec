#include "maths/maths_forms.h"

#include "maths/areas_window.h"
#include "maths/bisiesto_window.h"
#include "maths/calculadora_window.h"
#include "maths/diferencial_window.h"
#include "maths/loga_window.h"
#include "maths/matrices_window.h"
#include "maths/numletras_window.h"
#include "maths/pi_window.h"
#include "maths/prestamo_window.h"
#include "maths/radian_window.h"
#include "maths/romanos_window.h"
#include "maths/seggrado_window.h"
#include "maths/sucesiones_window.h"
#include "maths/temperatura_window.h"
#include "maths/trigo_window.h"
#include "shell/forms.h"

namespace zafro {

void registerMathsForms()
{
    Forms &f = forms();
    f.registerForm(QStringLiteral("romanos"), [] { return new RomanosWindow; });
    f.registerForm(QStringLiteral("calculadora"), [] { return new CalculadoraWindow; });
    f.registerForm(QStringLiteral("trigo"), [] { return new TrigoWindow; });
    f.registerForm(QStringLiteral("radian"), [] { return new RadianWindow; });
    f.registerForm(QStringLiteral("temperatura"), [] { return new TemperaturaWindow; });
    f.registerForm(QStringLiteral("bisiesto"), [] { return new BisiestoWindow; });
    f.registerForm(QStringLiteral("matrices"), [] { return new MatricesWindow; });
    f.registerForm(QStringLiteral("seggrado"), [] { return new SeggradoWindow; });
    f.registerForm(QStringLiteral("sucesiones"), [] { return new SucesionesWindow; });
    f.registerForm(QStringLiteral("diferencial"), [] { return new DiferencialWindow; });
    f.registerForm(QStringLiteral("loga"), [] { return new LogaWindow; });
    f.registerForm(QStringLiteral("areas"), [] { return new AreasWindow; });
    f.registerForm(QStringLiteral("prestamo"), [] { return new PrestamoWindow; });
    f.registerForm(QStringLiteral("numletras"), [] { return new NumletrasWindow; });
    f.registerForm(QStringLiteral("pi"), [] { return new PiWindow; });
}

} // namespace zafro
