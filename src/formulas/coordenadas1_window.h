#pragma once

#include "shell/form.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// The input window of the Cartesian graphs: an equation from the list, its
// coefficients and the density; the drawing itself is the graph window's.
class Coordenadas1Window : public Form {
    Q_OBJECT
public:
    Coordenadas1Window();

    void formLoad() override;

    void combo1Click();
    void command1Click(); // Dibujar!
    void check1Click();   // Protegido
    void aKeyPress(int &keyAscii);
    void bKeyPress(int &keyAscii);
    void cKeyPress(int &keyAscii);
    void dKeyPress(int &keyAscii);
    void eKeyPress(int &keyAscii);

private:
    // Copies the boxes to the module and shows the graph window.
    void dibujar();
    void focoEnADibujar();

    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QComboBox *combo1_;
    QLabel *label5_; // Ecuación usada
    QLineEdit *text1_;
    QLabel *label2_;
    QLabel *label3_;
    QLabel *label4_;
    QLabel *de_;
    QLabel *ee_;
    QLineEdit *a_;
    QLineEdit *b_;
    QLineEdit *c_;
    QLineEdit *d_;
    QLineEdit *e_;
    QLabel *label6_; // Densidad
    QLineEdit *den_;
    QCheckBox *check1_;
    QPushButton *command1_;
    QPushButton *command2_;
    // Kept from the design, invisible and without a part in the window's work.
    QLabel *label7_;
    QLineEdit *text2_;
    QPushButton *command3_;
    QCheckBox *check2_;
};

} // namespace zafro
