#pragma once

#include "shell/form.h"

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// Card numbers made and checked with the tool's own rule, to show how they are coded.
class VisasWindow : public Form {
    Q_OBJECT
public:
    VisasWindow();

    void formLoad() override;

    void command1Click(); // generate
    void command3Click(); // random bank digits
    void command4Click(); // check
    void combo1Click();
    void text4Click();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLabel *label7_;
    QLabel *label9_;
    QLabel *label2_;
    QLabel *label3_;
    QLabel *label4_;
    QComboBox *combo1_;
    QLineEdit *text3_;
    QLineEdit *text4_;
    QPushButton *command3_;
    QCheckBox *check1_;
    QPushButton *command1_;
    std::array<QLabel *, 4> res_;
    QLineEdit *text1_;
    std::array<QLineEdit *, 4> grupos_; // Texta to Textd
    QPushButton *command4_;
    QLabel *label13_;
    QLabel *label88_;
    QPushButton *command2_;
    QPushButton *command7_;
};

} // namespace zafro
