#pragma once

#include "shell/form.h"

#include <memory>

namespace zafro {

class DrawingSurface;
class Muestreo;

// What the two graph windows share: a surface over the whole client area, and a
// drawing at every activation over what is already there. The drawing lets the
// window's events through as it goes, so a loop that never ends (a density of 0)
// leaves the window alive and ends when the window closes; an activation inside
// a drawing starts no second one.
class GraficaWindow : public Form {
    Q_OBJECT
public:
    DrawingSurface *surface() const { return surface_; }

    void formUnload() override;
    void formActivate();

protected:
    explicit GraficaWindow(const QColor &fondo);

    bool event(QEvent *event) override;

    // Draws now, or has the drawing under way start over (after a change of scale).
    void redibujar();
    virtual bool suspendido() const { return false; }
    // The loop of the current curve; runs its steps "before the loop".
    virtual std::unique_ptr<Muestreo> muestreo() = 0;

private:
    void dibujar();

    DrawingSurface *surface_;
    bool dibujando_ = false;
    bool reiniciar_ = false;
    bool cerrada_ = false;
};

} // namespace zafro
