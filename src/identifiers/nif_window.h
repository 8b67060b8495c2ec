#pragma once

#include "shell/form.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// The letter of the identity number in Text10, worked out at every change, with
// a made-up number on Auto.
class NifWindow : public Form {
    Q_OBJECT
public:
    NifWindow();

    void formLoad() override;

    void text10Change();
    void text10Click();
    void command1Click();
    void formClick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLineEdit *text10_;
    QLineEdit *text11_;
    QLineEdit *text1_;
    QPushButton *command1_;
    QCheckBox *check1_;
    QCheckBox *check2_;
    QPushButton *command2_;
    QPushButton *command7_;
};

} // namespace zafro
