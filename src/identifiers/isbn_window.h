#pragma once

#include "identifiers/isbn.h"
#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// The check character of an ISBN from its first nine digits, typed in three fields.
class IsbnWindow : public Form {
    Q_OBJECT
public:
    IsbnWindow();

    void formLoad() override;

    void text1Change();
    void text2Change();
    void text3Change();
    void command1Click();

private:
    ToolFrame *frame_ = nullptr;
    DigitosIsbn digitos_;
    QLabel *label1_;
    QLabel *label3_;
    QLineEdit *text1_;
    QLineEdit *text2_;
    QLineEdit *text3_;
    QLineEdit *text4_;
    QPushButton *command1_;
    QPushButton *command7_;
    QPushButton *command8_;
};

} // namespace zafro
