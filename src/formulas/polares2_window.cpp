#include "formulas/polares2_window.h"

#include "formulas/coordenadas_ui.h"
#include "formulas/drawing_surface.h"
#include "formulas/polares.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QPalette>

namespace zafro {

Polares2Window::Polares2Window() : GraficaWindow(QPalette().color(QPalette::Window))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(7200, 7200);
    surface()->setGeometry(rect());
    graficas::placeBesideCentre(this);
}

void Polares2Window::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    setWindowTitle(texto(slot::LaGraficaPolar));
}

std::unique_ptr<Muestreo> Polares2Window::muestreo()
{
    surface()->setScale(-4, 4, 4, -4);
    return std::make_unique<MuestreoPolar>(polaress());
}

} // namespace zafro
