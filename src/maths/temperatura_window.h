#pragma once

#include "shell/form.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// Temperature conversions: the chosen entry of Combo1 applied to Text8 at every
// change of either.
class TemperaturaWindow : public Form {
    Q_OBJECT
public:
    TemperaturaWindow();

    void formLoad() override;

    void text8Change();
    void combo1Click();
    void text8Click();
    void formClick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void convertir();
    void limpiarSiCero();

    ToolFrame *frame_ = nullptr;
    QLabel *label10_;
    QLabel *label11_;
    QLabel *label12_;
    QLabel *label13_;
    QLabel *label15_; // unit of the result
    QLabel *label17_; // unit of the input
    QComboBox *combo1_;
    QLineEdit *text8_;
    QLineEdit *text9_;
    QPushButton *command1_;
    QPushButton *command2_;
};

} // namespace zafro
