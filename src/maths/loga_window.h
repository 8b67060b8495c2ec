#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// The logarithm of Text1 in the base of Text4 and its natural logarithm, at every
// change of either.
class LogaWindow : public Form {
    Q_OBJECT
public:
    LogaWindow();

    void formLoad() override;

    void recalcular(); // the change step of Text1 and of Text4
    void text1Click();
    void formClick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLabel *label2_;
    QLabel *label3_;
    QLabel *label4_;
    QLineEdit *text1_; // the number
    QLineEdit *text4_; // the base
    QLineEdit *text2_; // in the base
    QLineEdit *text3_; // natural
    QPushButton *command1_;
    QPushButton *command2_;
};

} // namespace zafro
