#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// The derivative and the integral of a·X^n.
class DiferencialWindow : public Form {
    Q_OBJECT
public:
    DiferencialWindow();

    void formLoad() override;

    void command1Click(); // derivada
    void command2Click(); // integral
    void text1Click();
    void text4Click();
    void formClick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLabel *label2_;
    QLabel *label3_; // X
    QLabel *label4_;
    QLabel *label5_;   // X
    QLineEdit *text1_; // a
    QLineEdit *text2_; // n
    QLineEdit *text3_; // resulting coefficient
    QLineEdit *text4_; // resulting exponent
    QPushButton *command1_;
    QPushButton *command2_;
    QPushButton *command3_;
    QPushButton *command4_;
};

} // namespace zafro
