#pragma once

#include "maths/calculadora.h"
#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// Two numbers, five operations and the result in three bases.
class CalculadoraWindow : public Form {
    Q_OBJECT
public:
    CalculadoraWindow();

    void formLoad() override;

    void command3Click(); // +
    void command4Click(); // -
    void command5Click(); // x
    void command6Click(); // /
    void command8Click(); // ^
    void conv1Click();    // Hex
    void conv2Click();    // Dec
    void conv3Click();    // Bin
    void text2Click();
    void text3Click();
    void formClick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void operacion(Operacion op);
    void convertida(QPushButton *pulsado, const QString &nuevaBase);

    ToolFrame *frame_ = nullptr;
    // The base Text4 is believed to be in. Only the conversion buttons set it: after
    // an operation it still names the base of the last conversion.
    QString base_ = kBaseDecimal;
    QLabel *label1_;
    QLabel *label2_;
    QLabel *label3_;
    QLabel *label9_; // sign of the last operation
    QLineEdit *text2_;
    QLineEdit *text3_;
    QLineEdit *text4_; // result
    QPushButton *command1_;
    QPushButton *command2_;
    QPushButton *command3_;
    QPushButton *command4_;
    QPushButton *command5_;
    QPushButton *command6_;
    QPushButton *command8_;
    QPushButton *conv1_;
    QPushButton *conv2_;
    QPushButton *conv3_;
};

} // namespace zafro
