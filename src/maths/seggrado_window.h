#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// a·X² + b·X + c = 0 solved into X1 and X2, real or complex.
class SeggradoWindow : public Form {
    Q_OBJECT
public:
    SeggradoWindow();

    void formLoad() override;

    void command3Click(); // calcular
    void formClick();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;   // X²
    QLabel *label2_;   // +
    QLabel *label3_;   // X
    QLabel *label4_;   // +
    QLabel *label5_;   // = 0
    QLabel *label6_;   // X1=
    QLabel *label7_;   // X2=
    QLineEdit *text1_; // a
    QLineEdit *text2_; // b
    QLineEdit *text3_; // c
    QLineEdit *text4_; // X1
    QLineEdit *text5_; // X2
    QLineEdit *text7_; // the note
    QPushButton *command1_;
    QPushButton *command2_;
    QPushButton *command3_;
};

} // namespace zafro
