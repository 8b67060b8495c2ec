#pragma once

#include "maths/matrices.h"
#include "shell/form.h"

#include <array>
#include <functional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTimer;

namespace zafro {

class ClickLabel;
class ToolFrame;

// Two matrices A and B, a result C, and an editor with a 6 by 6 grid of cells that
// slides out to the right of the calculation side.
class MatricesWindow : public Form {
    Q_OBJECT
public:
    static constexpr int kAnchoCerrado = 7410; // twips: only the calculation side
    static constexpr int kAlto = 7740;

    MatricesWindow();

    void formLoad() override;

    void cmdPlusClick();
    void cmdMinusClick();
    void cmdMultiplyClick();
    void command10Click(); // B x A
    void command8Click();  // A x nº
    void command9Click();  // B x nº
    void command11Click(); // normalise A
    void cmdNormalizeClick();
    void cmdTransposeClick();
    void command12Click(); // transpose of B
    void cmdInverseClick();
    void command13Click(); // inverse of B
    void command14Click(); // determinant of A
    void command15Click(); // determinant of B
    void command2Click();  // define A
    void command5Click();  // define B
    void command3Click();  // edit A
    void command4Click();  // edit B
    void command6Click();  // save
    void command7Click();  // back
    void text1Change();
    void text2Change();
    void timer1Timer();
    void timer2Timer();
    void label8Click();

    const Matriz &matrizA() const { return a_; }
    const Matriz &matrizB() const { return b_; }
    int anchoTwips() const { return ancho_; }

private:
    void calcular(const std::function<Matriz()> &operacion, int mensaje);
    void inversa(const Matriz &m, int sinInversa, int imposible);
    void determinante(const Matriz &m);
    void abrirEditor(const QString &cual);
    void editar(const Matriz &m, const QString &cual);
    void mostrartodo();
    void aplicarFilas();
    void aplicarColumnas();
    void vaciarCeldas();
    void ponerAncho(int twips);
    void pintarCajasDeMatriz();
    QLineEdit *celda(int fila, int columna) const { return celdas_[(fila - 1) * 6 + columna - 1]; }

    ToolFrame *frame_ = nullptr;
    Matriz a_;
    Matriz b_;
    Matriz c_;
    int ancho_ = kAnchoCerrado;

    QLabel *label1_, *label2_, *label3_, *label4_, *label5_, *label6_, *label7_, *label9_,
        *label10_, *label11_;
    ClickLabel *label8_;
    QPlainTextEdit *txtMatrixA_, *txtMatrixB_, *txtMatrixC_;
    QLineEdit *text1_, *text2_, *text3_, *text4_;
    std::array<QLineEdit *, 36> celdas_{};
    QPushButton *cmdPlus_, *cmdMinus_, *cmdMultiply_, *command10_, *command8_, *command9_,
        *command11_, *cmdNormalize_, *cmdTranspose_, *command12_, *cmdInverse_, *command13_,
        *command14_, *command15_, *command2_, *command5_, *command3_, *command4_, *command6_,
        *command7_;
    QTimer *timer1_, *timer2_;
};

} // namespace zafro
