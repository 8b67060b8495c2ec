#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// Whether the year in Text1 is a leap year, and what the Gregorian rule is.
class BisiestoWindow : public Form {
    Q_OBJECT
public:
    BisiestoWindow();

    void formLoad() override;

    void command1Click(); // comprobar
    void command3Click(); // aclaración

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLabel *label2_;
    QLineEdit *text1_;
    QLineEdit *text2_;
    QPushButton *command1_;
    QPushButton *command2_;
    QPushButton *command3_;
    QPushButton *command4_;
};

} // namespace zafro
