#pragma once

#include "formulas/coordenadas_grafica.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace zafro {

class ToolFrame;

// The graph window of the Cartesian graphs. It draws the module's equation at
// every activation, over what is already there; only a change of scale clears it.
// The axes and their tick labels belong to the design and stay as they are
// whatever the scale.
class Coordenadas2Window : public GraficaWindow {
    Q_OBJECT
public:
    Coordenadas2Window();

    void formLoad() override;

    void check1Click();
    void text1Change();
    void text2Change();

protected:
    bool suspendido() const override;
    std::unique_ptr<Muestreo> muestreo() override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label23_;
    QCheckBox *check1_;
    QLineEdit *text1_;
    QLineEdit *text2_;
};

} // namespace zafro
