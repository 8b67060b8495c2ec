#include "formulas/coordenadas_grafica.h"

#include "formulas/drawing_surface.h"

#include <QEvent>
#include <QPointer>

namespace zafro {

GraficaWindow::GraficaWindow(const QColor &fondo) : surface_(new DrawingSurface(this, fondo))
{
    surface_->setObjectName(QStringLiteral("Superficie"));
}

void GraficaWindow::formUnload()
{
    cerrada_ = true;
}

bool GraficaWindow::event(QEvent *event)
{
    const bool handled = Form::event(event);
    if (event->type() == QEvent::WindowActivate)
        formActivate();
    else if (event->type() == QEvent::Resize)
        surface_->setGeometry(rect());
    return handled;
}

void GraficaWindow::formActivate()
{
    // An activation while a drawing runs would only repeat it.
    if (!dibujando_)
        dibujar();
}

void GraficaWindow::redibujar()
{
    if (dibujando_)
        reiniciar_ = true;
    else
        dibujar();
}

void GraficaWindow::dibujar()
{
    if (cerrada_ || suspendido())
        return;
    QPointer<GraficaWindow> vivo(this);
    dibujando_ = true;
    try {
        do {
            reiniciar_ = false;
            const std::unique_ptr<Muestreo> bucle = muestreo();
            trazar(surface_, *bucle, [&] { return vivo && !cerrada_ && !reiniciar_; });
            if (!vivo)
                return;
        } while (reiniciar_ && !cerrada_);
    } catch (...) {
        if (vivo)
            dibujando_ = false;
        throw;
    }
    dibujando_ = false;
}

} // namespace zafro
