#pragma once

#include "shell/form.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// The input window of the polar graphs: a curve from an editable list and its
// three coefficients.
class Polares1Window : public Form {
    Q_OBJECT
public:
    Polares1Window();

    void formLoad() override;

    void command2Click(); // Ver la gráfica
    void combo1Change(const QString &text);
    void constanteKeyPress(int &keyAscii);
    void senoKeyPress(int &keyAscii);
    void cosenoKeyPress(int &keyAscii);

private:
    void dibujar();

    ToolFrame *frame_ = nullptr;
    QComboBox *combo1_;
    QLabel *label1_;
    QLabel *label2_;
    QLabel *label3_;
    QLineEdit *constante_;
    QLineEdit *seno_;
    QLineEdit *coseno_;
    QLabel *label4_;
    QPushButton *command3_; // Acerca de
    QPushButton *command2_;
    QPushButton *command1_; // Cerrar
};

} // namespace zafro
