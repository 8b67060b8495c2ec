#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// The operator of the mobile prefix in Text1, told at every change in its colour.
class MovilesWindow : public Form {
    Q_OBJECT
public:
    MovilesWindow();

    void formLoad() override;

    void text1Change();
    void formClick();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLabel *label2_;
    QLabel *label6_;
    QLineEdit *text1_;
    QLineEdit *text2_; // the rest of the number, kept for the user only
    QLabel *label5_;
    QLineEdit *text3_;
    QLabel *label4_;
    QLabel *label7_;
    QPushButton *command7_;
    QPushButton *command8_;
};

} // namespace zafro
