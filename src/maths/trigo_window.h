#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// Sine, cosine and tangent of the degrees in Text1, worked out at every change.
class TrigoWindow : public Form {
    Q_OBJECT
public:
    TrigoWindow();

    void formLoad() override;

    void text1Change();
    void text1Click();
    void formClick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void resultadoSiVacio();

    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLabel *label2_;
    QLabel *label3_;
    QLabel *label4_;
    QLabel *label5_;
    QLineEdit *text1_;
    QLineEdit *text2_; // sine
    QLineEdit *text3_; // cosine
    QLineEdit *text4_; // tangent
    QPushButton *command1_;
    QPushButton *command2_;
};

} // namespace zafro
