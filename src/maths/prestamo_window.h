#pragma once

#include "maths/prestamo.h"
#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// The monthly payment of a loan from amount, yearly interest and months.
class PrestamoWindow : public Form {
    Q_OBJECT
public:
    PrestamoWindow();

    void formLoad() override;

    void calCularDatosClick();
    // The payment, or -1 after the message when there are no months.
    float calcularCuota();
    float cuotaMensual() const { return cuotaMensual_; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    DatosPrestamo datos_;
    float cuotaMensual_ = 0;
    QLabel *label5_;
    QLabel *label1_;
    QLabel *label2_;
    QLabel *label3_;
    QLabel *label4_;
    QLineEdit *capital_;
    QLineEdit *interesesGenerados_;
    QLineEdit *meses_;
    QLineEdit *apagar_;
    QPushButton *calCularDatos_;
    QPushButton *command1_;
    QPushButton *command2_;
};

} // namespace zafro
