#pragma once

#include "online/divisas.h"
#include "shell/form.h"

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;

namespace zafro {

class ClickLabel;
class ToolFrame;

// Converts an amount between the euro and 35 other currencies with the rates
// the update window stored, or with rates typed by hand.
class DivisasWindow : public Form {
    Q_OBJECT
public:
    DivisasWindow();

    void formLoad() override;
    void formUnload() override;

    void command1Click(); // actualizar valores
    void command3Click(); // calcular
    void command4Click(); // help on manual entry
    void check1Click();
    void combo1Click();
    void combo2Click();
    void label2Click();
    void formClick();
    void timer2Timer();

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    QString tasaDe(int index) const;

    ToolFrame *frame_ = nullptr;
    std::array<QString, kNumeroMonedas> tasas_; // index 0, the euro, stays empty
    QString fecha_;
    QLabel *label3_;
    QLabel *label1_;
    QLineEdit *text1_;
    QComboBox *combo1_;
    QLabel *label4_;
    QComboBox *combo2_;
    QCheckBox *check1_;
    QPushButton *command4_;
    QLineEdit *text3_;
    QLineEdit *text4_;
    QPushButton *command3_;
    QLabel *label6_;
    QLabel *label5_;
    ClickLabel *label2_;
    QPushButton *command1_;
    QPushButton *command7_;
    QPushButton *command2_;
    QTimer *timer2_;
};

} // namespace zafro
