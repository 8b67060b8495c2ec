#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// Degrees to radians and back; the unit captions follow the last button pressed.
class RadianWindow : public Form {
    Q_OBJECT
public:
    RadianWindow();

    void formLoad() override;

    void command1Click(); // a radianes
    void command2Click(); // a grados
    void formClick();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLabel *label2_; // unit of the input
    QLabel *label3_; // unit of the result
    QLineEdit *text1_;
    QLineEdit *text2_;
    QPushButton *command1_;
    QPushButton *command2_;
    QPushButton *command3_;
    QPushButton *command4_;
};

} // namespace zafro
