#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// Arabic to Roman numerals and back. Enter in either box converts it as its button
// does; a click in a box that still shows its example empties it.
class RomanosWindow : public Form {
    Q_OBJECT
public:
    RomanosWindow();

    void formLoad() override;

    void command1Click(); // a árabes
    void command2Click(); // a romanos
    void text1KeyPress(int &keyAscii);
    void text2KeyPress(int &keyAscii);
    void text1Click();
    void text2Click();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLabel *label2_;
    QLineEdit *text1_;
    QLineEdit *text2_;
    QPushButton *command1_;
    QPushButton *command2_;
};

} // namespace zafro
