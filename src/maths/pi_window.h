#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace zafro {

class CalculoPi;
class RuntimeError;
class ToolFrame;

// The digits of pi to the count in Text1. The work runs apart from the window, which
// stays usable meanwhile: a bar shows how far it has gone and Parar gives it up.
class PiWindow : public Form {
    Q_OBJECT
public:
    PiWindow();
    ~PiWindow() override;

    void formLoad() override;
    void formUnload() override;

    void command1Click(); // Calcular
    void command4Click(); // Explicación
    void command5Click(); // Parar

    void calculoTerminado(const QString &digitos);
    void calculoFallado(const RuntimeError &error);

private:
    void finDelCalculo();

    ToolFrame *frame_ = nullptr;
    CalculoPi *calculo_;
    float inicioReloj_ = 0;
    QString digitosPedidos_; // Text1 as it was at the start, for the footer
    QLabel *label10_;
    QLabel *label2_;
    QLineEdit *text1_;
    QLabel *label1_;
    QPushButton *command1_;
    QPlainTextEdit *text2_;
    QProgressBar *progressBar1_;
    QPushButton *command5_;
    QPushButton *command4_;
    QPushButton *command3_;
    QPushButton *command2_;
};

} // namespace zafro
