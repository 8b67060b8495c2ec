#pragma once

#include "formulas/coordenadas_grafica.h"

namespace zafro {

class ToolFrame;

// The graph window of the polar graphs: a fixed scale of -4 to 4 and no axes. It
// draws the module's curve at every activation over what is already there.
class Polares2Window : public GraficaWindow {
    Q_OBJECT
public:
    Polares2Window();

    void formLoad() override;

protected:
    std::unique_ptr<Muestreo> muestreo() override;

private:
    ToolFrame *frame_ = nullptr;
};

} // namespace zafro
