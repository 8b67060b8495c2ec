#pragma once

#include "shell/form.h"
#include "signals/cronometro.h"

class QLabel;
class QPushButton;
class QTimer;

namespace zafro {

class ToolFrame;

// A stopwatch with two clocks: the running time without the pauses, and the total
// since the start.
class CronometroWindow : public Form {
    Q_OBJECT
public:
    CronometroWindow();

    void formLoad() override;

    void inicioParadaClick();
    void reInicioClick();
    void controlDelTiempoTimer();

    const Cronometro &medida() const { return medida_; }

private:
    ToolFrame *frame_ = nullptr;
    Cronometro medida_;
    QLabel *label3_;
    QLabel *digitalUno_;
    QLabel *lblTotal_;
    QPushButton *inicioParada_;
    QPushButton *reInicio_;
    QPushButton *command2_;
    QPushButton *command7_;
    QTimer *controlDelTiempo_;
};

} // namespace zafro
