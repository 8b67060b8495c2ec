#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// The term An and the sum Sn of an arithmetic sequence.
class SucesionesWindow : public Form {
    Q_OBJECT
public:
    SucesionesWindow();

    void formLoad() override;

    void command1Click(); // aritméticas
    void command3Click(); // geométricas, announced only
    void command5Click(); // término An
    void command4Click(); // suma de n términos

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLabel *label2_; // A1=
    QLabel *label3_; // n=
    QLabel *label5_; // D= or R=
    QLabel *label6_; // An=
    QLabel *label8_; // Sn=
    QLabel *label4_; // the kind of sequence
    QLabel *label7_; // messages
    QLineEdit *text1_;
    QLineEdit *text2_;
    QLineEdit *text3_;
    QLineEdit *text4_;
    QLineEdit *text5_;
    QPushButton *command1_;
    QPushButton *command3_;
    QPushButton *command5_;
    QPushButton *command4_;
    QPushButton *command2_;
    QPushButton *command6_;
};

} // namespace zafro
